#include "model/ZOLPriceItem.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "io/ZOLXMLWriter.h"

namespace {

// Extender, HV clips and calora sticks are sold without a size.
bool isSizeless(int32_t type) {
    return type == 12 || type == 13 || type == 14;
}

} // namespace

ZOLPriceItem::ZOLPriceItem(int32_t type, double withPrice)
    : partSize_(12), partType_(type), price_(withPrice) {}

ZOLPriceItem::ZOLPriceItem(int32_t size, int32_t withType, double withPrice)
    : partSize_(size), partType_(withType), price_(withPrice) {}

std::string ZOLPriceItem::getPartText() const {
    const std::optional<std::string> name = ZOLWallData::getPartNameWithBlockType(partType_);
    if (isSizeless(partType_))
        return name.value_or("(null)");
    return ZOLFormat::format("%d\" %@", partSize_, name);
}

void ZOLPriceItem::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case 81:
        partSize_ = ZOLWallData::getBlockSizeWithBasicSizeString(value);
        break;
    case 82:
        partType_ = ZOLWallData::getBlockTypeWithBasicPartString(value);
        break;
    case 83:
        price_ = ZOLText::leadingDouble(value);
        break;
    default:
        break;
    }
}

void ZOLPriceItem::appendXML(std::string& out, int32_t depth) const {
    const std::string tabs = ZOLXMLWriter::tabs(depth);
    // Every accessory (types 12 to 16) is filed under the largest size word,
    // "Twelve".
    const int32_t sizeWritten = (partType_ >= 12 && partType_ <= 16) ? 12 : partSize_;
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
