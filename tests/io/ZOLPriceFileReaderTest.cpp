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

std::vector<std::string> messages(AlertRecorder& recorder) {
    std::vector<std::string> list;
    for (const auto& alert : recorder.alerts)
        list.push_back(alert.message);
    return list;
}

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

TEST(ZOLPriceFileReader, APriceFileReadsBackToExactlyItsItems) {
    ScopedAlertRecorder alerts;
    // The default list comes back as the same 44 items, without duplicates.
    ZOLPricing defaults;
    ZOLPricing target;
    ASSERT_EQ(ZOLPriceFileReader::readPriceData(defaults.getFullXMLString(), target),
              ZOLReadStatus::Read);
    EXPECT_EQ(target.priceItems().size(), 44u);
    EXPECT_EQ(target.getFullXMLString(), defaults.getFullXMLString());

    // A priced list replaces whatever the window held, every price kept, the last one too.
    const ZOLPricing priced = pricedList();
    ZOLPricing window;
    window.addPriceItem(std::make_shared<ZOLPriceItem>(6, 0, 99.0));
    ASSERT_EQ(ZOLPriceFileReader::readPriceData(priced.getFullXMLString(), window),
              ZOLReadStatus::Read);
    EXPECT_EQ(window.getFullXMLString(), priced.getFullXMLString());
    EXPECT_DOUBLE_EQ(window.priceItems().back()->price(), priced.priceItems().back()->price());
    EXPECT_DOUBLE_EQ(window.getPriceForItemType(0, 6), priced.getPriceForItemType(0, 6));
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLPriceFileReader, AFileWithoutAPriceItemsElementLeavesTheListAlone) {
    ScopedAlertRecorder alerts;
    ZOLPricing pricing = pricedList();
    const std::string before = pricing.getFullXMLString();
    EXPECT_EQ(ZOLPriceFileReader::readPriceData("<?xml version=\"1.0\"?>\n<Pricing/>", pricing),
              ZOLReadStatus::Read);
    EXPECT_EQ(pricing.getFullXMLString(), before);
    // Items outside the list element are added to the list as it stands.
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(
                  "<Pricing><PriceItem><PartSize>Four</PartSize><PartType>Buck</PartType>"
                  "<Price>3.10</Price></PriceItem></Pricing>",
                  pricing),
              ZOLReadStatus::Read);
    ASSERT_EQ(pricing.priceItems().size(), 45u);
    EXPECT_EQ(pricing.priceItems().back()->partSize(), 4);
    EXPECT_DOUBLE_EQ(pricing.priceItems().back()->price(), 3.10);
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLPriceFileReader, ItemsReadBeforeAParseErrorStay) {
    ScopedAlertRecorder alerts;
    const std::string full = pricedList().getFullXMLString();
    // Cut the file after its third item.
    std::size_t cut = 0;
    for (int i = 0; i < 3; ++i)
        cut = full.find("</PriceItem>", cut) + 1;
    ZOLPricing pricing;
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(full.substr(0, cut + 40), pricing),
              ZOLReadStatus::ParseError);
    EXPECT_EQ(messages(*alerts), std::vector<std::string>{kOpenError});
    ASSERT_EQ(pricing.priceItems().size(), 3u);
    EXPECT_DOUBLE_EQ(pricing.priceItems()[2]->price(), pricedList().priceItems()[2]->price());
}

TEST(ZOLPriceFileReader, BytesThatAreNotTextGetTheWrongFormatAlert) {
    ScopedAlertRecorder alerts;
    ZOLPricing pricing = pricedList();
    const std::string before = pricing.getFullXMLString();
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(std::string("PK\3\4\0\0", 6), pricing),
              ZOLReadStatus::Refused);
    EXPECT_EQ(ZOLPriceFileReader::readPriceData("", pricing), ZOLReadStatus::Refused);
    EXPECT_EQ(messages(*alerts), (std::vector<std::string>{kWrongFormat, kWrongFormat}));
    EXPECT_EQ(pricing.getFullXMLString(), before);
}

TEST(ZOLPriceFileReader, APriceListLongerThanAnyRealOneIsAnOpenError) {
    ScopedAlertRecorder alerts;
    ZOLReadLimits limits;
    limits.priceItems = 2;
    ZOLPricing pricing;
    EXPECT_EQ(ZOLPriceFileReader::readPriceData(
                  "<Pricing><PriceItems><PriceItem/><PriceItem/></PriceItems></Pricing>", pricing,
                  limits),
              ZOLReadStatus::Read);
    EXPECT_EQ(ZOLPriceFileReader::readPriceData("<Pricing><PriceItems><PriceItem/><PriceItem/>"
                                                "<PriceItem/></PriceItems></Pricing>",
                                                pricing, limits),
              ZOLReadStatus::ParseError);
    EXPECT_EQ(pricing.priceItems().size(), 2u);
    EXPECT_EQ(messages(*alerts), std::vector<std::string>{kOpenError});
}
