#pragma once
#include <cstdint>
#include <optional>
#include <string>

// One line of the job summary: a named quantity with a unit and a unit price. Generated lines
// (tiedToWorkbook) are rebuilt from the worksheets and name their source in calculatorType;
// user lines are typed in on the job summary screen. A line's total is quantity x cost.
class ZOLCustomItem {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLCustomItem&) const = default;
    ZOLCustomItem();
    void clear();

    const std::optional<std::string>& name() const { return name_; }
    void setName(std::optional<std::string> value) { name_ = std::move(value); }
    double quantity() const { return quantity_; }
    void setQuantity(double value) { quantity_ = value; }
    const std::optional<std::string>& unit() const { return unit_; }
    void setUnit(std::optional<std::string> value) { unit_ = std::move(value); }
    double cost() const { return cost_; }
    void setCost(double value) { cost_ = value; }
    bool tiedToWorkbook() const { return tiedToWorkbook_; }
    void setTiedToWorkbook(bool value) { tiedToWorkbook_ = value; }
    const std::optional<std::string>& calculatorType() const { return calculatorType_; }
    void setCalculatorType(std::optional<std::string> value) { calculatorType_ = std::move(value); }
    bool visible() const { return visible_; }
    void setVisible(bool value) { visible_ = value; }

    // The line's "CustomItem" element of the template file, two tabs deep.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    // Template reader hook: codes 84 to 90 set name, quantity, unit, cost, tiedToWorkbook,
    // calculatorType and visible; every other code is ignored.
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    std::optional<std::string> name_;
    double quantity_ = 0.0;
    std::optional<std::string> unit_;
    double cost_ = 0.0;
    bool tiedToWorkbook_ = false;
    std::optional<std::string> calculatorType_;
    bool visible_ = true;
};
