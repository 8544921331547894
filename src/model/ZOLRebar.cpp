#include "model/ZOLRebar.h"

#include "calc/ZOLRebarCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

ZOLRebar::ZOLRebar() {
    clear();
}

void ZOLRebar::clear() {
    measurement_ = 0;
    wallLength_ = 0.0;
    wallHeight_ = 8.0;
    horizontalSize1_ = 1;
    horizontalRowCount1_ = 0;
    horizontalLap1_ = 0;
    horizontalSize2_ = 1;
    horizontalRowCount2_ = 0;
    horizontalLap2_ = 0;
    verticalSize_ = 1;
    verticalSpacing_ = 0;
    dowelSize_ = 1;
    dowelSpacing_ = 0;
    dowelLength_ = 0;
}

double ZOLRebar::getHorizontalLength1() const {
    return ZOLRebarCalculator::calculateHorizontalRebarWithWallLength(wallLength_, horizontalLap1_,
                                                                      horizontalRowCount1_);
}

double ZOLRebar::getHorizontalLength2() const {
    return ZOLRebarCalculator::calculateHorizontalRebarWithWallLength(wallLength_, horizontalLap2_,
                                                                      horizontalRowCount2_);
}

double ZOLRebar::getVerticalLength() const {
    return ZOLRebarCalculator::calculateVerticalRebarWithWallLength(wallLength_, verticalSpacing_,
                                                                    wallHeight_);
}

double ZOLRebar::getDowelLength() const {
    return ZOLRebarCalculator::calculateDowelsWithWallLength(wallLength_, dowelSpacing_,
                                                             dowelLength_);
}

void ZOLRebar::appendXML(std::string& out) const {
    out += "\t\t\t<RebarData>\n";
    ZOLFormat::append(out, "\t\t\t\t<Measurement>%@</Measurement>\n",
                             measurement_ == 0 ? "Imperial" : "Metric");
    ZOLFormat::append(out, "\t\t\t\t<WallLength>%f</WallLength>\n", wallLength_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalSize1>%d</HorizontalSize1>\n", horizontalSize1_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalRowCount1>%d</HorizontalRowCount1>\n",
                             horizontalRowCount1_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalLap1>%d</HorizontalLap1>\n", horizontalLap1_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalSize2>%d</HorizontalSize2>\n", horizontalSize2_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalRowCount2>%d</HorizontalRowCount2>\n",
                             horizontalRowCount2_);
    ZOLFormat::append(out, "\t\t\t\t<HorizontalLap2>%d</HorizontalLap2>\n", horizontalLap2_);
    ZOLFormat::append(out, "\t\t\t\t<WallHeight>%f</WallHeight>\n", wallHeight_);
    ZOLFormat::append(out, "\t\t\t\t<VerticalSize>%d</VerticalSize>\n", verticalSize_);
    ZOLFormat::append(out, "\t\t\t\t<VerticalSpacing>%d</VerticalSpacing>\n", verticalSpacing_);
    ZOLFormat::append(out, "\t\t\t\t<DowelSize>%d</DowelSize>\n", dowelSize_);
    ZOLFormat::append(out, "\t\t\t\t<DowelSpacing>%d</DowelSpacing>\n", dowelSpacing_);
    ZOLFormat::append(out, "\t\t\t\t<DowelLength>%d</DowelLength>\n", dowelLength_);
    out += "\t\t\t</RebarData>\n";
}

std::string ZOLRebar::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLRebar::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case ZOLFileProperty::RebarMeasurement:
        // Only the two words the writer produces change the system; anything else is kept.
        if (value == "Imperial")
            measurement_ = 0;
        else if (value == "Metric")
            measurement_ = 1;
        break;
    case ZOLFileProperty::RebarWallLength:
        wallLength_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::HorizontalSize1:
        horizontalSize1_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::HorizontalRowCount1:
        horizontalRowCount1_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::HorizontalLap1:
        horizontalLap1_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::HorizontalSize2:
        horizontalSize2_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::HorizontalRowCount2:
        horizontalRowCount2_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::HorizontalLap2:
        horizontalLap2_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::RebarWallHeight:
        wallHeight_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::VerticalSize:
        verticalSize_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::VerticalSpacing:
        verticalSpacing_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::DowelSize:
        dowelSize_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::DowelSpacing:
        dowelSpacing_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::DowelLength:
        dowelLength_ = ZOLText::leadingInt(value);
        break;
    default:
        break;
    }
}
