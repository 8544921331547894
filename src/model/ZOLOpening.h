#pragma once
#include <cstdint>
#include <optional>
#include <string>

// One row of a worksheet's openings: a rough opening size in inches and how many there are.
class ZOLOpening {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLOpening&) const = default;
    ZOLOpening() = default;

    int32_t rowNumber() const { return rowNumber_; }
    void setRowNumber(int32_t v) { rowNumber_ = v; }
    int32_t numberOfOpenings() const { return numberOfOpenings_; }
    void setNumberOfOpenings(int32_t v) { numberOfOpenings_ = v; }
    double openingWidth() const { return openingWidth_; }
    void setOpeningWidth(double v) { openingWidth_ = v; }
    double openingHeight() const { return openingHeight_; }
    void setOpeningHeight(double v) { openingHeight_ = v; }
    bool useSill() const { return useSill_; }
    void setUseSill(bool v) { useSill_ = v; }

    // One opening: square feet, and perimeter with the buck overlap allowance.
    double getNetSquareFeet() const;
    double getNetLinearFeet() const;
    // All openings of the row.
    double getTotalSquareFeet() const;
    double getTotalLinearFeet() const;
    double getTotalLinearFeetOfBuck() const;

    // The "Opening" element of the workbook file.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    // An element's text read back from the file; acts on codes 24 to 28 only.
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    int32_t rowNumber_ = 0;
    int32_t numberOfOpenings_ = 0;
    double openingWidth_ = 0.0;
    double openingHeight_ = 0.0;
    bool useSill_ = true;
};
