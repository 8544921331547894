#include "model/ZOLPricing.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

TEST(ZOLPricingTest, DefaultListHoldsEveryValidShapePerSizeThenTheAccessories) {
    ZOLPricing pricing;
    const int32_t expected[][2] = {
        {4, 0},  {4, 1},  {4, 2},   {4, 3},   {4, 4},   {4, 11},  {6, 0},   {6, 1},  {6, 2},
        {6, 3},  {6, 4},  {6, 7},   {6, 8},   {6, 9},   {6, 10},  {6, 11},  {8, 0},  {8, 1},
        {8, 2},  {8, 3},  {8, 4},   {8, 5},   {8, 6},   {8, 7},   {8, 8},   {8, 9},  {8, 11},
        {10, 0}, {10, 1}, {10, 2},  {10, 3},  {10, 5},  {10, 6},  {10, 11}, {12, 0}, {12, 1},
        {12, 2}, {12, 3}, {12, 11}, {12, 12}, {12, 13}, {12, 14}, {12, 15}, {12, 16}};
    ASSERT_EQ(pricing.priceItems().size(), 44U);
    for (std::size_t i = 0; i < 44; ++i) {
        EXPECT_EQ(pricing.priceItems()[i]->partSize(), expected[i][0]) << i;
        EXPECT_EQ(pricing.priceItems()[i]->partType(), expected[i][1]) << i;
        EXPECT_EQ(pricing.priceItems()[i]->price(), 0.0) << i;
    }
}

TEST(ZOLPricingTest, ClipsSticksAndExtendersMatchAnySizeButPravexAndPelmoDoNot) {
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

TEST(ZOLPricingTest, LabelsAndReaderCodes) {
    EXPECT_EQ(ZOLPriceItem(6, 0, 0.0).getPartText(), "6\" Straight Block");
    EXPECT_EQ(ZOLPriceItem(12, 0.0).getPartText(), "4\" Extender");
    EXPECT_EQ(ZOLPriceItem(15, 0.0).getPartText(), "12\" Pravex");

    ZOLPriceItem item;
    item.setValue(std::string("TEN"), 81);
    item.setValue(std::string("cornercurb"), 82);
    item.setValue(std::string(" 31.75 each"), 83);
    item.setValue(std::string("Six"), 84);
    EXPECT_EQ(item.partSize(), 10);
    EXPECT_EQ(item.partType(), 6);
    EXPECT_DOUBLE_EQ(item.price(), 31.75);
    item.setValue(std::string("10"), 81); // digits are no size word: the 8-inch default
    EXPECT_EQ(item.partSize(), 8);
}

TEST(ZOLPricingTest, BothFileFormsWriteAccessoriesUnderTwelve) {
    ZOLPricing pricing;
    pricing.setPriceItems({std::make_shared<ZOLPriceItem>(6, 9, 18.257),
                           std::make_shared<ZOLPriceItem>(8, 13, 0.09)});
    const std::string partial = pricing.getPartialXMLString();
    EXPECT_NE(partial.find("<PartSize>Six</PartSize>\n\t\t\t\t<PartType>Tapered</PartType>\n"
                           "\t\t\t\t<Price>18.26</Price>"),
              std::string::npos);
    EXPECT_NE(partial.find("<PartSize>Twelve</PartSize>\n\t\t\t\t<PartType>HV</PartType>"),
              std::string::npos);
    // The partial form's layout is pinned by the new workbook's file, the full form here.
    ZOLPricing defaults;
    defaults.priceItems()[6]->setPrice(21.5); // 6" straight
    EXPECT_EQ(defaults.getFullXMLString(), goldenFile("default-prices.zp"));
}
