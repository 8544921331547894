#include "model/ZOLPriceItem.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "io/ZOLXMLWriter.h"
#include "model/ZOLFileProperty.h"

ZOLPriceItem::ZOLPriceItem(int32_t type, double withPrice)
    : partSize_(ZOLWallData::kNoSize), partType_(type), price_(withPrice) {}

ZOLPriceItem::ZOLPriceItem(int32_t size, int32_t withType, double withPrice)
    : partSize_(size), partType_(withType), price_(withPrice) {}

std::string ZOLPriceItem::getPartText() const {
    const std::optional<std::string> name = ZOLWallData::getPartNameWithBlockType(partType_);
    if (ZOLWallData::isSoldWithoutSize(partType_))
        return name.value_or("(null)");
    return ZOLFormat::format("%d\" %@", partSize_, name);
}

void ZOLPriceItem::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case ZOLFileProperty::PartSize:
        partSize_ = ZOLWallData::getBlockSizeWithBasicSizeString(value);
        break;
    case ZOLFileProperty::PartType:
        partType_ = ZOLWallData::getBlockTypeWithBasicPartString(value);
        break;
    case ZOLFileProperty::Price:
        price_ = ZOLText::leadingDouble(value);
        break;
    default:
        break;
    }
}

void ZOLPriceItem::appendXML(std::string& out, int32_t depth) const {
    const std::string tabs = ZOLXMLWriter::tabs(depth);
    // Every accessory is filed under the largest size word, "Twelve".
    const bool accessory =
        partType_ >= ZOLWallData::kFirstAccessory && partType_ <= ZOLWallData::kLastAccessory;
    const int32_t sizeWritten = accessory ? ZOLWallData::kNoSize : partSize_;
    ZOLFormat::append(out,
                      "%@<PriceItem>\n"
                      "%@\t<PartSize>%@</PartSize>\n"
                      "%@\t<PartType>%@</PartType>\n"
                      "%@\t<Price>%.2f</Price>\n"
                      "%@</PriceItem>\n",
                      tabs, tabs, ZOLWallData::getBasicSizeStringWithBlockSize(sizeWritten),
                      tabs, ZOLWallData::getBasicPartStringWithBlockType(partType_), tabs,
                      price_, tabs);
}

std::string ZOLPriceItem::getXMLString(int32_t depth) const {
    std::string out;
    appendXML(out, depth);
    return out;
}
