#include "model/ZOLPricing.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

namespace {

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace

TEST(ZOLPricingTest, DefaultListHoldsEveryValidShapePerSizeThenTheAccessories) {
    ZOLPricing pricing;
    const std::vector<std::pair<int32_t, std::vector<int32_t>>> expected = {
        {4, {0, 1, 2, 3, 4, 11}},
        {6, {0, 1, 2, 3, 4, 7, 8, 9, 10, 11}},
        {8, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11}},
        {10, {0, 1, 2, 3, 5, 6, 11}},
        {12, {0, 1, 2, 3, 11}},
        {12, {12, 13, 14, 15, 16}},
    };
    std::vector<std::pair<int32_t, int32_t>> want;
    for (const auto& [size, types] : expected)
        for (int32_t type : types)
            want.emplace_back(size, type);

    ASSERT_EQ(pricing.priceItems().size(), 44U);
    for (std::size_t i = 0; i < want.size(); ++i) {
        const auto& item = *pricing.priceItems()[i];
        EXPECT_EQ(item.partSize(), want[i].first) << i;
        EXPECT_EQ(item.partType(), want[i].second) << i;
        EXPECT_EQ(item.price(), 0.0) << i;
    }
    for (int32_t type = -1; type <= 17; ++type)
        for (int32_t size : {4, 6, 8, 10, 12})
            EXPECT_EQ(pricing.getPriceForItemType(type, size), 0.0);

    pricing.clear();
    EXPECT_TRUE(pricing.priceItems().empty());
}

TEST(ZOLPricingTest, LookUpMatchesSizelessAccessoriesOnTypeAloneButNotPravexOrPelmo) {
    ZOLPricing pricing;
    pricing.setPriceItems({
        std::make_shared<ZOLPriceItem>(8, 0, 23.40),
        std::make_shared<ZOLPriceItem>(6, 0, 21.50),
        std::make_shared<ZOLPriceItem>(8, 10, 99.0), // radius blocks come in 6 inches only
        std::make_shared<ZOLPriceItem>(13, 0.09),
        std::make_shared<ZOLPriceItem>(4, 12, 1.85), // an extender filed under 4 inches
        std::make_shared<ZOLPriceItem>(15, 12.75),
        std::make_shared<ZOLPriceItem>(16, 0.40),
    });
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(0, 8), 23.40);
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(0, 6), 21.50);
    EXPECT_EQ(pricing.getPriceForItemType(0, 10), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(10, 8), 0.0);

    for (int32_t size : {4, 6, 8, 10, 12, 5, -3}) {
        EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(13, size), 0.09) << size;
        EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(12, size), 1.85) << size;
    }
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(15, 12), 12.75);
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(16, 12), 0.40);
    EXPECT_EQ(pricing.getPriceForItemType(15, 8), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(16, 4), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(14, 8), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(17, 12), 0.0);
    EXPECT_EQ(pricing.getPriceForItemType(-1, 12), 0.0);
}

TEST(ZOLPricingTest, AddedItemIsAppendedAndShadowedByAnEarlierOneOfTheSameKey) {
    ZOLPricing pricing;
    pricing.priceItems()[0]->setPrice(19.0); // 4" straight
    const auto before = pricing.priceItems();
    pricing.addPriceItem(std::make_shared<ZOLPriceItem>(4, 0, 25.0));
    pricing.addPriceItem(std::make_shared<ZOLPriceItem>(14, 3.10));
    ASSERT_EQ(pricing.priceItems().size(), 46U);
    EXPECT_EQ(before.size(), 44U); // the list is replaced, not changed in place
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(0, 4), 19.0);
    EXPECT_EQ(pricing.getPriceForItemType(14, 4), 0.0);
    EXPECT_DOUBLE_EQ(pricing.priceItems().back()->price(), 3.10);
}

TEST(ZOLPricingTest, PartTextShowsTheSizeExceptForExtenderClipsAndSticks) {
    EXPECT_EQ(ZOLPriceItem(6, 0, 0.0).getPartText(), "6\" Straight Block");
    EXPECT_EQ(ZOLPriceItem(8, 2, 0.0).getPartText(), "8\" 90\u00b0 Corner Block");
    EXPECT_EQ(ZOLPriceItem(12, 0.0).getPartText(), "4\" Extender");
    EXPECT_EQ(ZOLPriceItem(13, 0.0).getPartText(), "Zol Block HV Clips");
    EXPECT_EQ(ZOLPriceItem(14, 0.0).getPartText(), "R9 Calora Sticks");
    EXPECT_EQ(ZOLPriceItem(15, 0.0).getPartText(), "12\" Pravex");
    EXPECT_EQ(ZOLPriceItem(16, 0.0).getPartText(), "12\" pelmo");
    EXPECT_EQ(ZOLPriceItem(10, 17, 0.0).getPartText(), "10\" (null)");
}

TEST(ZOLPricingTest, ReaderCodesTakeSizeWordsPartKeysAndPrices) {
    ZOLPriceItem item;
    EXPECT_EQ(item.partSize(), 0);
    EXPECT_EQ(item.partType(), 0);
    EXPECT_EQ(item.price(), 0.0);

    item.setValue(std::string("TEN"), 81);
    item.setValue(std::string("cornercurb"), 82);
    item.setValue(std::string(" 31.75 each"), 83);
    EXPECT_EQ(item.partSize(), 10);
    EXPECT_EQ(item.partType(), 6);
    EXPECT_DOUBLE_EQ(item.price(), 31.75);

    item.setValue(std::string("10"), 81);          // digits are no size word: the 8-inch default
    item.setValue(std::string("Corner Curb"), 82); // not a key: no such part
    item.setValue(std::nullopt, 83);
    EXPECT_EQ(item.partSize(), 8);
    EXPECT_EQ(item.partType(), 17);
    EXPECT_EQ(item.price(), 0.0);

    for (int32_t code : {80, 84, 11, -81})
        item.setValue(std::string("Six"), code);
    EXPECT_EQ(item.partSize(), 8);
}

TEST(ZOLPricingTest, WorkbookElementWritesSizelessAccessoriesAsTwelve) {
    ZOLPricing pricing;
    pricing.setPriceItems({std::make_shared<ZOLPriceItem>(6, 9, 18.257),
                           std::make_shared<ZOLPriceItem>(8, 13, 0.09),
                           std::make_shared<ZOLPriceItem>(0, 0, 1.0)});
    EXPECT_EQ(pricing.getPartialXMLString(), "\t<PricingData>\n"
                                             "\t\t<PriceItems>\n"
                                             "\t\t\t<PriceItem>\n"
                                             "\t\t\t\t<PartSize>Six</PartSize>\n"
                                             "\t\t\t\t<PartType>Tapered</PartType>\n"
                                             "\t\t\t\t<Price>18.26</Price>\n"
                                             "\t\t\t</PriceItem>\n"
                                             "\t\t\t<PriceItem>\n"
                                             "\t\t\t\t<PartSize>Twelve</PartSize>\n"
                                             "\t\t\t\t<PartType>HV</PartType>\n"
                                             "\t\t\t\t<Price>0.09</Price>\n"
                                             "\t\t\t</PriceItem>\n"
                                             "\t\t\t<PriceItem>\n"
                                             "\t\t\t\t<PartSize>(null)</PartSize>\n"
                                             "\t\t\t\t<PartType>Straight</PartType>\n"
                                             "\t\t\t\t<Price>1.00</Price>\n"
                                             "\t\t\t</PriceItem>\n"
                                             "\t\t</PriceItems>\n"
                                             "\t</PricingData>\n");
    pricing.clear();
    EXPECT_EQ(pricing.getPartialXMLString(),
              "\t<PricingData>\n\t\t<PriceItems>\n\t\t</PriceItems>\n\t</PricingData>\n");
}

TEST(ZOLPricingTest, PriceFileOfTheDefaultListMatchesTheSavedFile) {
    ZOLPricing pricing;
    pricing.priceItems()[6]->setPrice(21.5); // 6" straight
    EXPECT_EQ(pricing.getFullXMLString(), readFile(ZOL_TEST_DATA "/default-prices.zp"));
}
