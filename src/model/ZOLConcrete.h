#pragma once
#include <cstdint>
#include <optional>
#include <string>

// The four pours of one worksheet: a footing, equal round piles, a slab and the wall. Lengths
// are feet, widths, depths and diameters whole inches; `measurement` only picks the unit of
// the volumes (0 cubic yards, 1 cubic metres). Weights are always pounds.
class ZOLConcrete {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLConcrete&) const = default;
    ZOLConcrete();
    void clear();

    int32_t measurement() const { return measurement_; }
    void setMeasurement(int32_t value) { measurement_ = value; }
    int32_t footingWidth() const { return footingWidth_; }
    void setFootingWidth(int32_t value) { footingWidth_ = value; }
    double footingLength() const { return footingLength_; }
    void setFootingLength(double value) { footingLength_ = value; }
    int32_t footingDepth() const { return footingDepth_; }
    void setFootingDepth(int32_t value) { footingDepth_ = value; }
    double pileDepth() const { return pileDepth_; }
    void setPileDepth(double value) { pileDepth_ = value; }
    int32_t pileDiameter() const { return pileDiameter_; }
    void setPileDiameter(int32_t value) { pileDiameter_ = value; }
    int32_t pileCount() const { return pileCount_; }
    void setPileCount(int32_t value) { pileCount_ = value; }
    double slabLength() const { return slabLength_; }
    void setSlabLength(double value) { slabLength_ = value; }
    double slabWidth() const { return slabWidth_; }
    void setSlabWidth(double value) { slabWidth_ = value; }
    int32_t slabDepth() const { return slabDepth_; }
    void setSlabDepth(int32_t value) { slabDepth_ = value; }
    double wallLength() const { return wallLength_; }
    void setWallLength(double value) { wallLength_ = value; }
    int32_t wallThickness() const { return wallThickness_; }
    void setWallThickness(int32_t value) { wallThickness_ = value; }
    double wallHeight() const { return wallHeight_; }
    void setWallHeight(double value) { wallHeight_ = value; }
    bool removeSqFtOpenings() const { return removeSqFtOpenings_; }
    void setRemoveSqFtOpenings(bool value) { removeSqFtOpenings_ = value; }
    double sqFtOpenings() const { return sqFtOpenings_; }
    void setSqFtOpenings(double value) { sqFtOpenings_ = value; }

    double getFootingVolume() const;
    double getFootingWeight() const;
    double getPileVolume() const;
    double getPileWeight() const;
    double getSlabVolume() const;
    double getSlabWeight() const;
    double getWallVolume() const;
    double getWallWeight() const;

    // The "ConcreteData" element: all fifteen fields are written, but only codes 11 to 23
    // (measurement to wallHeight) are read back; the openings flag and area are not restored.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    int32_t measurement_ = 0;
    int32_t footingWidth_ = 0;
    double footingLength_ = 0.0;
    int32_t footingDepth_ = 0;
    double pileDepth_ = 0.0;
    int32_t pileDiameter_ = 0;
    int32_t pileCount_ = 0;
    double slabLength_ = 0.0;
    double slabWidth_ = 0.0;
    int32_t slabDepth_ = 0;
    double wallLength_ = 0.0;
    int32_t wallThickness_ = 0;
    double wallHeight_ = 0.0;
    bool removeSqFtOpenings_ = false;
    double sqFtOpenings_ = 0.0;
};
