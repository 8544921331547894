// Opening price files into the price list window.
#include "io/ZOLPriceFileReader.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "support/AlertRecorder.h"

#include <gtest/gtest.h>

namespace {

const std::string kOpenError = "There was an error opening the file.";
const std::string kWrongFormat =
    "There was an error opening the file. The file may be corrupted or of the wrong format.";

// A price list with a different price on every item, the last one included.
ZOLPricing pricedList() {
    ZOLPricing pricing;
    double price = 1.25;
    for (const auto& item : pricing.priceItems()) {
        item->setPrice(price);
        price += 0.5;
    }
    return pricing;
}

} // namespace

TEST(ZOLPriceFileReader, APriceFileReplacesTheListWithExactlyItsItemsOrChangesNothing) {
    ScopedAlertRecorder alerts;
    // A priced list replaces whatever the window held, every price kept, the last one too.
    ZOLPricing target;
    const ZOLPricing priced = pricedList();
    target.addPriceItem(std::make_shared<ZOLPriceItem>(6, 0, 99.0));
    ASSERT_EQ(ZOLPriceFileReader::readPriceData(priced.getFullXMLString(), target),
              ZOLReadStatus::Read);
    EXPECT_EQ(target.getFullXMLString(), priced.getFullXMLString());
    EXPECT_DOUBLE_EQ(target.getPriceForItemType(0, 6), priced.getPriceForItemType(0, 6));

    // Without a "PriceItems" element the list stays; items outside it are added to it.
    const std::string before = target.getFullXMLString();
    EXPECT_EQ(ZOLPriceFileReader::readPriceData("<?xml version=\"1.0\"?>\n<Pricing/>", target),
              ZOLReadStatus::Read);
    EXPECT_EQ(target.getFullXMLString(), before);
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(
                  "<Pricing><PriceItem><PartSize>Four</PartSize><PartType>Buck</PartType>"
                  "<Price>3.10</Price></PriceItem></Pricing>",
                  target),
              ZOLReadStatus::Read);
    ASSERT_EQ(target.priceItems().size(), 45u);
    EXPECT_EQ(target.priceItems().back()->partType(), 11);
    EXPECT_DOUBLE_EQ(target.priceItems().back()->price(), 3.10);
    EXPECT_TRUE(alerts->alerts.empty());

    // A file that cannot be read whole changes nothing.
    const std::string full = pricedList().getFullXMLString();
    const std::string defaults = ZOLPricing().getFullXMLString();
    // Cut the file after its third item: the alert, and the list as it was.
    std::size_t cut = 0;
    for (int i = 0; i < 3; ++i)
        cut = full.find("</PriceItem>", cut) + 1;
    ZOLPricing pricing;
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(full.substr(0, cut + 40), pricing),
              ZOLReadStatus::ParseError);
    EXPECT_EQ(pricing.getFullXMLString(), defaults);
    // A list longer than any real one fails the same way.
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(full, pricing, {.priceItems = 2}),
              ZOLReadStatus::ParseError);
    EXPECT_EQ(pricing.getFullXMLString(), defaults);

    for (const std::string& bytes : {std::string("PK\3\4\0\0", 6), std::string()})
        EXPECT_EQ(ZOLPriceFileReader::readPriceData(bytes, pricing), ZOLReadStatus::Refused);
    EXPECT_EQ(pricing.getFullXMLString(), defaults);
    EXPECT_EQ(alerts->messages(),
              (std::vector<std::string>{kOpenError, kOpenError, kWrongFormat, kWrongFormat}));
}
