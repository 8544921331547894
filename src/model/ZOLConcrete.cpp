#include "model/ZOLConcrete.h"

#include "calc/ZOLConcreteCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

ZOLConcrete::ZOLConcrete() {
    clear();
}

void ZOLConcrete::clear() {
    measurement_ = 0;
    footingWidth_ = 0;
    footingLength_ = 0.0;
    footingDepth_ = 0;
    pileDepth_ = 0.0;
    pileDiameter_ = 0;
    pileCount_ = 0;
    slabLength_ = 0.0;
    slabWidth_ = 0.0;
    slabDepth_ = 0;
    wallLength_ = 0.0;
    wallThickness_ = 0;
    wallHeight_ = 0.0;
    removeSqFtOpenings_ = false;
    sqFtOpenings_ = 0.0;
}

double ZOLConcrete::getFootingVolume() const {
    return ZOLConcreteCalculator::calculateConcreteWithLength(footingLength_ * 12.0, footingWidth_,
                                                              footingDepth_, measurement_, 0.0);
}

double ZOLConcrete::getFootingWeight() const {
    return ZOLConcreteCalculator::calculateConcreteWeightForVolume(getFootingVolume(),
                                                                   measurement_);
}

double ZOLConcrete::getPileVolume() const {
    // The radius is half the diameter in whole inches: a 15-inch pile is poured as 7 inches.
    const int32_t radius = ZOLNumeric::wrapDiv(pileDiameter_, 2);
    const double onePile = ZOLConcreteCalculator::calculatePileConcreteWithDepth(
        pileDepth_ * 12.0, radius, measurement_);
    return onePile * pileCount_;
}

double ZOLConcrete::getPileWeight() const {
    return ZOLConcreteCalculator::calculateConcreteWeightForVolume(getPileVolume(), measurement_);
}

double ZOLConcrete::getSlabVolume() const {
    return ZOLConcreteCalculator::calculateConcreteWithLength(slabLength_ * 12.0, slabWidth_ * 12.0,
                                                              slabDepth_, measurement_, 0.0);
}

double ZOLConcrete::getSlabWeight() const {
    return ZOLConcreteCalculator::calculateConcreteWeightForVolume(getSlabVolume(), measurement_);
}

double ZOLConcrete::getWallVolume() const {
    // The wall is the one pour with openings; its width is the core thickness.
    const double removed = removeSqFtOpenings_ ? sqFtOpenings_ : 0.0;
    return ZOLConcreteCalculator::calculateConcreteWithLength(
        wallLength_ * 12.0, wallThickness_, wallHeight_ * 12.0, measurement_, removed);
}

double ZOLConcrete::getWallWeight() const {
    return ZOLConcreteCalculator::calculateConcreteWeightForVolume(getWallVolume(), measurement_);
}

void ZOLConcrete::appendXML(std::string& out) const {
    out += "\t\t\t<ConcreteData>\n";
    ZOLFormat::append(out, "\t\t\t\t<Measurement>%@</Measurement>\n",
                             measurement_ == 0 ? "Imperial" : "Metric");
    ZOLFormat::append(out, "\t\t\t\t<FootingWidth>%d</FootingWidth>\n", footingWidth_);
    ZOLFormat::append(out, "\t\t\t\t<FootingLength>%f</FootingLength>\n", footingLength_);
    ZOLFormat::append(out, "\t\t\t\t<FootingDepth>%d</FootingDepth>\n", footingDepth_);
    ZOLFormat::append(out, "\t\t\t\t<PileDepth>%f</PileDepth>\n", pileDepth_);
    ZOLFormat::append(out, "\t\t\t\t<PileDiameter>%d</PileDiameter>\n", pileDiameter_);
    ZOLFormat::append(out, "\t\t\t\t<PileCount>%d</PileCount>\n", pileCount_);
    ZOLFormat::append(out, "\t\t\t\t<SlabLength>%f</SlabLength>\n", slabLength_);
    ZOLFormat::append(out, "\t\t\t\t<SlabWidth>%f</SlabWidth>\n", slabWidth_);
    ZOLFormat::append(out, "\t\t\t\t<SlabDepth>%d</SlabDepth>\n", slabDepth_);
    ZOLFormat::append(out, "\t\t\t\t<WallLength>%f</WallLength>\n", wallLength_);
    ZOLFormat::append(out, "\t\t\t\t<WallThickness>%d</WallThickness>\n", wallThickness_);
    ZOLFormat::append(out, "\t\t\t\t<WallHeight>%f</WallHeight>\n", wallHeight_);
    ZOLFormat::append(out, "\t\t\t\t<RemoveSqFtOpenings>%@</RemoveSqFtOpenings>\n",
                             ZOLText::boolText(removeSqFtOpenings_));
    ZOLFormat::append(out, "\t\t\t\t<SqFtOpenings>%f</SqFtOpenings>\n", sqFtOpenings_);
    out += "\t\t\t</ConcreteData>\n";
}

std::string ZOLConcrete::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLConcrete::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case ZOLFileProperty::ConcreteMeasurement:
        if (value == "Imperial")
            measurement_ = 0;
        else if (value == "Metric")
            measurement_ = 1;
        break;
    case ZOLFileProperty::FootingWidth:
        footingWidth_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::FootingLength:
        footingLength_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::FootingDepth:
        footingDepth_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::PileDepth:
        pileDepth_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::PileDiameter:
        pileDiameter_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::PileCount:
        pileCount_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::SlabLength:
        slabLength_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::SlabWidth:
        slabWidth_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::SlabDepth:
        slabDepth_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::ConcreteWallLength:
        wallLength_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::WallThickness:
        wallThickness_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::ConcreteWallHeight:
        wallHeight_ = ZOLText::leadingDouble(value);
        break;
    default:
        // The openings flag and area have no code: they last only until the workbook closes.
        break;
    }
}
