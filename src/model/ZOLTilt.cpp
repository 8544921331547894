#include "model/ZOLTilt.h"

#include "calc/ZOLTiltCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

ZOLTilt::ZOLTilt() {
    clear();
}

void ZOLTilt::clear() {
    wallHeight_ = 0.0;
    wallLength_ = 0.0;
}

int32_t ZOLTilt::getPanels() const {
    return ZOLTiltCalculator::calculatePanelsWithSqFtOfWall(wallLength_ * wallHeight_);
}

int32_t ZOLTilt::getPanelBundles() const {
    return ZOLTiltCalculator::calculatePanelBundlesWithPanels(getPanels());
}

double ZOLTilt::getPanelWeight() const {
    return ZOLTiltCalculator::calculatePanelWeightWithPanels(getPanels());
}

int32_t ZOLTilt::getInserts() const {
    return ZOLTiltCalculator::calculateInsertsWithPanels(getPanels());
}

int32_t ZOLTilt::getInsertBundles() const {
    return ZOLTiltCalculator::calculateInsertBundlesWithInserts(getInserts());
}

double ZOLTilt::getInsertWeight() const {
    return ZOLTiltCalculator::calculateInsertWeightWithInserts(getInserts());
}

void ZOLTilt::appendXML(std::string& out) const {
    out += "\t\t\t<TiltData>\n";
    ZOLFormat::append(out, "\t\t\t\t<WallHeight>%f</WallHeight>\n", wallHeight_);
    ZOLFormat::append(out, "\t\t\t\t<WallLength>%f</WallLength>\n", wallLength_);
    out += "\t\t\t</TiltData>\n";
}

std::string ZOLTilt::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLTilt::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    if (forProperty == ZOLFileProperty::TiltWallHeight)
        wallHeight_ = ZOLText::leadingDouble(value);
    else if (forProperty == ZOLFileProperty::TiltWallLength)
        wallLength_ = ZOLText::leadingDouble(value);
}
