#pragma once
#include <cstdint>
#include <optional>
#include <string>

// One unit price of the price list, keyed by part type and block size.
// Accessories that come in no size (extenders, HV clips, calora sticks, Pravex,
// pelmo) carry size 12.
class ZOLPriceItem {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLPriceItem&) const = default;
    // Size 0, type 0, price 0.0: the file readers start from this and fill it in.
    ZOLPriceItem() = default;
    ZOLPriceItem(int32_t type, double withPrice);
    ZOLPriceItem(int32_t size, int32_t withType, double withPrice);

    int32_t partSize() const { return partSize_; }
    void setPartSize(int32_t value) { partSize_ = value; }
    int32_t partType() const { return partType_; }
    void setPartType(int32_t value) { partType_ = value; }
    double price() const { return price_; }
    void setPrice(double value) { price_ = value; }

    // The label of the price tables: "8\" Straight Block", or the bare name for
    // the extender, the HV clips and the calora sticks.
    std::string getPartText() const;
    // File reader hook: 81 size word, 82 part key, 83 price; other codes are
    // ignored.
    void setValue(const std::optional<std::string>& value, int32_t forProperty);
    // The "PriceItem" element, indented by the given number of tabs (three in the
    // workbook file, two in the price file).
    std::string getXMLString(int32_t depth) const;
    void appendXML(std::string& out, int32_t depth) const;

private:
    int32_t partSize_ = 0;
    int32_t partType_ = 0;
    double price_ = 0.0;
};
