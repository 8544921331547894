#include "model/ZOLPricing.h"
#include "support/GoldenFile.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

TEST(ZOLPricing, ClipsSticksAndExtendersMatchAnySizeButPravexAndPelmoDoNot) {
    ZOLPricing pricing;
    pricing.setPriceItems({std::make_shared<ZOLPriceItem>(8, 0, 23.40),
                           std::make_shared<ZOLPriceItem>(8, 10, 99.0), // no 8" radius block
                           std::make_shared<ZOLPriceItem>(4, 12, 1.85),
                           std::make_shared<ZOLPriceItem>(13, 0.09),
                           std::make_shared<ZOLPriceItem>(15, 12.75)});
    pricing.addPriceItem(std::make_shared<ZOLPriceItem>(8, 0, 30.0)); // shadowed
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(0, 8), 23.40);
    EXPECT_EQ(pricing.getPriceForItemType(0, 6), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(10, 8), 0.0);
    for (int32_t size : {4, 8, 12, 5}) {
        EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(12, size), 1.85);
        EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(13, size), 0.09);
    }
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(15, 12), 12.75);
    EXPECT_EQ(pricing.getPriceForItemType(15, 8), 0.0);
    EXPECT_EQ(pricing.priceItems().size(), 6U);
}

TEST(ZOLPricing, LabelsReaderCodesAndBothFileForms) {
    EXPECT_EQ(ZOLPriceItem(6, 0, 0.0).getPartText(), "6\" Straight Block");
    EXPECT_EQ(ZOLPriceItem(12, 0.0).getPartText(), "4\" Extender");
    EXPECT_EQ(ZOLPriceItem(15, 0.0).getPartText(), "12\" Pravex");

    ZOLPriceItem item = readRecord<ZOLPriceItem>(
        {{81, "TEN"}, {82, "cornercurb"}, {83, " 31.75 each"}, {84, "Six"}});
    EXPECT_EQ(item.partSize(), 10);
    EXPECT_EQ(item.partType(), 6);
    EXPECT_DOUBLE_EQ(item.price(), 31.75); // digits are no size word: see the part catalogue

    // Both file forms write accessories under twelve, and the default list in order.
    ZOLPricing pricing;
    pricing.setPriceItems({std::make_shared<ZOLPriceItem>(6, 9, 18.257),
                           std::make_shared<ZOLPriceItem>(8, 13, 0.09)});
    const std::string partial = pricing.getPartialXMLString();
    EXPECT_NE(partial.find("<PartSize>Six</PartSize>\n\t\t\t\t<PartType>Tapered</PartType>\n"
                           "\t\t\t\t<Price>18.26</Price>"),
              std::string::npos);
    EXPECT_NE(partial.find("<PartSize>Twelve</PartSize>\n\t\t\t\t<PartType>HV</PartType>"),
              std::string::npos);
    // The partial form's layout is pinned by the new workbook's file, the full form here; it
    // also pins the default list: every shape made in each size, size by size, then the five
    // accessories, all unpriced.
    ZOLPricing defaults;
    ASSERT_EQ(defaults.priceItems().size(), 44U);
    defaults.priceItems()[6]->setPrice(21.5); // 6" straight
    EXPECT_EQ(defaults.getFullXMLString(), goldenFile("default-prices.zp"));
}
