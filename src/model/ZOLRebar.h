#pragma once
#include <cstdint>
#include <optional>
#include <string>

// The rebar of one worksheet's wall: two sets of horizontal bars, the vertical bars and the
// dowels, each with a bar size. Holds inputs only; the four lengths are computed on every call.
class ZOLRebar {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLRebar&) const = default;
    ZOLRebar();
    void clear();

    int32_t measurement() const { return measurement_; }
    void setMeasurement(int32_t value) { measurement_ = value; }
    double wallLength() const { return wallLength_; }
    void setWallLength(double value) { wallLength_ = value; }
    double wallHeight() const { return wallHeight_; }
    void setWallHeight(double value) { wallHeight_ = value; }
    int32_t horizontalSize1() const { return horizontalSize1_; }
    void setHorizontalSize1(int32_t value) { horizontalSize1_ = value; }
    int32_t horizontalRowCount1() const { return horizontalRowCount1_; }
    void setHorizontalRowCount1(int32_t value) { horizontalRowCount1_ = value; }
    int32_t horizontalLap1() const { return horizontalLap1_; }
    void setHorizontalLap1(int32_t value) { horizontalLap1_ = value; }
    int32_t horizontalSize2() const { return horizontalSize2_; }
    void setHorizontalSize2(int32_t value) { horizontalSize2_ = value; }
    int32_t horizontalRowCount2() const { return horizontalRowCount2_; }
    void setHorizontalRowCount2(int32_t value) { horizontalRowCount2_ = value; }
    int32_t horizontalLap2() const { return horizontalLap2_; }
    void setHorizontalLap2(int32_t value) { horizontalLap2_ = value; }
    int32_t verticalSize() const { return verticalSize_; }
    void setVerticalSize(int32_t value) { verticalSize_ = value; }
    int32_t verticalSpacing() const { return verticalSpacing_; }
    void setVerticalSpacing(int32_t value) { verticalSpacing_ = value; }
    int32_t dowelSize() const { return dowelSize_; }
    void setDowelSize(int32_t value) { dowelSize_ = value; }
    int32_t dowelSpacing() const { return dowelSpacing_; }
    void setDowelSpacing(int32_t value) { dowelSpacing_ = value; }
    int32_t dowelLength() const { return dowelLength_; }
    void setDowelLength(int32_t value) { dowelLength_ = value; }

    // Linear feet of each set of bars.
    double getHorizontalLength1() const;
    double getHorizontalLength2() const;
    double getVerticalLength() const;
    double getDowelLength() const;

    // The "RebarData" element of the workbook file, and the reading of its codes (29 to 42).
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    int32_t measurement_ = 0;
    double wallLength_ = 0.0;
    double wallHeight_ = 8.0;
    int32_t horizontalSize1_ = 1;
    int32_t horizontalRowCount1_ = 0;
    int32_t horizontalLap1_ = 0;
    int32_t horizontalSize2_ = 1;
    int32_t horizontalRowCount2_ = 0;
    int32_t horizontalLap2_ = 0;
    int32_t verticalSize_ = 1;
    int32_t verticalSpacing_ = 0;
    int32_t dowelSize_ = 1;
    int32_t dowelSpacing_ = 0;
    int32_t dowelLength_ = 0;
};
