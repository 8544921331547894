#include "model/ZOLPricing.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLXMLWriter.h"

ZOLPricing::ZOLPricing() {
    std::vector<std::shared_ptr<ZOLPriceItem>> items;
    for (int32_t size : ZOLWallData::kBlockSizes) {
        for (int32_t type = 0; type <= ZOLWallData::kLastSizedPartType; ++type) {
            if (ZOLWallData::getValidSizeWithBlockType(type, size))
                items.push_back(std::make_shared<ZOLPriceItem>(size, type, 0.0));
        }
    }
    for (int32_t type = ZOLWallData::kFirstAccessory; type <= ZOLWallData::kLastAccessory; ++type)
        items.push_back(std::make_shared<ZOLPriceItem>(type, 0.0));
    priceItems_ = std::move(items);
}

void ZOLPricing::clear() {
    priceItems_ = {};
}

void ZOLPricing::addPriceItem(std::shared_ptr<ZOLPriceItem> item) {
    priceItems_.push_back(std::move(item));
}

double ZOLPricing::getPriceForItemType(int32_t type, int32_t withItemSize) const {
    if (!ZOLWallData::getValidSizeWithBlockType(type, withItemSize))
        return 0.0;
    for (const auto& item : priceItems_) {
        if (item && itemAnswers(*item, type, withItemSize))
            return item->price();
    }
    return 0.0;
}

bool ZOLPricing::itemAnswers(const ZOLPriceItem& item, int32_t type, int32_t size) {
    // Extenders, HV clips and calora sticks are priced whatever size is asked
    // for. Pravex and pelmo are stored under size 12 yet looked up by the size
    // asked for, so only a look-up at 12 finds them; price lists in the field
    // depend on this.
    return item.partType() == type &&
           (ZOLWallData::isSoldWithoutSize(type) || item.partSize() == size);
}

std::vector<std::shared_ptr<ZOLPriceItem>> ZOLPricing::savedItems() const {
    static const ZOLPricing defaults;
    const auto& front = defaults.priceItems_;
    if (priceItems_.size() <= front.size())
        return {};
    for (size_t i = 0; i < front.size(); ++i) {
        const auto& item = priceItems_[i];
        if (!item || item->partSize() != front[i]->partSize() ||
            item->partType() != front[i]->partType() || item->price() != 0.0)
            return {};
    }
    return {priceItems_.begin() + static_cast<std::ptrdiff_t>(front.size()), priceItems_.end()};
}

bool ZOLPricing::savedItemsChangePrices() const {
    ZOLPricing saved;
    saved.priceItems_ = savedItems();
    if (saved.priceItems_.empty())
        return false;
    for (int32_t size : ZOLWallData::kBlockSizes)
        for (int32_t type = 0; type < ZOLWallData::kPartTypeCount; ++type)
            if (saved.getPriceForItemType(type, size) != getPriceForItemType(type, size))
                return true;
    return false;
}

bool ZOLPricing::useSavedItems() {
    auto saved = savedItems();
    if (saved.empty())
        return false;
    priceItems_ = std::move(saved);
    return true;
}

std::string ZOLPricing::getPartialXMLString() const {
    std::string out;
    appendPartialXML(out);
    return out;
}

void ZOLPricing::appendPartialXML(std::string& out) const {
    out += "\t<PricingData>\n\t\t<PriceItems>\n";
    for (const auto& item : priceItems_) {
        if (item)
            item->appendXML(out, 3);
    }
    out += "\t\t</PriceItems>\n\t</PricingData>\n";
}

std::string ZOLPricing::getFullXMLString() const {
    std::string out;
    out.reserve(kXMLBytesPerItem * (priceItems_.size() + 1));
    ZOLXMLWriter::appendOpenDocument(out, "Pricing");
    out += "\t<PriceItems>\n";
    for (const auto& item : priceItems_) {
        if (item)
            item->appendXML(out, 2);
    }
    out += "\t</PriceItems>\n</Pricing>";
    return out;
}
