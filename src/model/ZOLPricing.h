#pragma once
#include "model/ZOLPriceItem.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The workbook's price list: one unit price per wall part. Order matters: the
// first item that matches a look-up wins, so a loaded list appended after the
// defaults is shadowed by them.
class ZOLPricing {
public:
    // The default list: every valid block shape and the buck per size (4 to 12
    // inches), then the five sizeless accessories; 44 items, all at 0.0.
    ZOLPricing();
    // Empties the list.
    void clear();

    const std::vector<std::shared_ptr<ZOLPriceItem>>& priceItems() const { return priceItems_; }
    void setPriceItems(std::vector<std::shared_ptr<ZOLPriceItem>> value) {
        priceItems_ = std::move(value);
    }

    // Appends the item; an item with the same key earlier in the list keeps
    // winning.
    void addPriceItem(std::shared_ptr<ZOLPriceItem> item);
    double getPriceForItemType(int32_t type, int32_t withItemSize) const;
    // Whether a look-up of (type, size) stops at `item`.
    static bool itemAnswers(const ZOLPriceItem& item, int32_t type, int32_t size);

    // The items a workbook file brought with it, behind the default list that opening a file
    // puts in front of them: whatever follows an untouched default list (all its prices zero).
    // Empty when the list does not start with the defaults or holds nothing after them.
    std::vector<std::shared_ptr<ZOLPriceItem>> savedItems() const;
    // Whether pricing by the saved items alone would change the price of any part.
    bool savedItemsChangePrices() const;
    // Makes the saved items the whole list, in their order, as opening a price file does.
    // False (and nothing changed) when there are none.
    bool useSavedItems();

    // The "PricingData" element of the workbook file.
    std::string getPartialXMLString() const;
    void appendPartialXML(std::string& out) const;
    // The stand-alone price file.
    std::string getFullXMLString() const;

    // Room for one price item's element, so that a file is built without growing its buffer.
    static constexpr std::size_t kXMLBytesPerItem = 128;

private:
    std::vector<std::shared_ptr<ZOLPriceItem>> priceItems_;
};
