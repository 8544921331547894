#pragma once
#include <cstdint>
#include <optional>
#include <string>

// The wall to be covered with tilt-up panels on one worksheet, in feet. The panel and insert
// counts, bundles and weights are computed from its area on every call.
class ZOLTilt {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLTilt&) const = default;
    ZOLTilt();
    void clear();

    double wallHeight() const { return wallHeight_; }
    void setWallHeight(double value) { wallHeight_ = value; }
    double wallLength() const { return wallLength_; }
    void setWallLength(double value) { wallLength_ = value; }

    int32_t getPanels() const;
    int32_t getPanelBundles() const;
    double getPanelWeight() const;
    int32_t getInserts() const;
    int32_t getInsertBundles() const;
    double getInsertWeight() const;

    // The "TiltData" element and the reading of its codes (43 height, 44 length).
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    double wallHeight_ = 0.0;
    double wallLength_ = 0.0;
};
