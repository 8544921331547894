// The files in examples/ (a house of three worksheets, its price list and its job-summary
// template) and the resaved house in tests/data/ are exactly what the program reads and writes.
// (The new workbook's file is pinned by zolest new.)
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLTemplateReader.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"
#include "support/ChangedSample.h"
#include "support/GoldenFile.h"
#include "support/ScopedTimeZone.h"
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>

namespace {

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

} // namespace

TEST(ZOLExamples, TheExamplesSaveAgainAsTheyWereOrWithTheChangesOpeningMakes) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    ScopedAlertRecorder alerts;
    const std::string saved = sampleHouseText();
    const std::string resaved = openedWorkbook(saved)->getXMLString();
    expectGoldenFile("sample-house-resaved.zol", resaved);

    // The differences, and nothing else: the default prices come first, the fields that are
    // never read are back at their defaults.
    std::string expected = saved;
    const ZOLPricing defaults;
    std::string defaultItems;
    for (const auto& item : defaults.priceItems())
        defaultItems += item->getXMLString(3);
    replaceAll(expected, "\t\t<PriceItems>\n", "\t\t<PriceItems>\n" + defaultItems);
    replaceAll(expected, "<ProjectVersion>Bid 2<", "<ProjectVersion><");
    replaceAll(expected, "<DistributorName>Prairie ICF Supply<", "<DistributorName><");
    EXPECT_EQ(firstDifference(expected, resaved), "");
    // Each further open adds the defaults once more.
    EXPECT_EQ(openedWorkbook(resaved)->pricingData()->priceItems().size(), 44u * 3);
    EXPECT_TRUE(alerts->alerts.empty());

    // The price file and the template read and save unchanged.
    const std::string prices = TempFolder::contents(kPrices);
    ZOLPricing pricing;
    ASSERT_EQ(ZOLPriceFileReader::readPriceData(prices, pricing), ZOLReadStatus::Read);
    EXPECT_EQ(firstDifference(prices, pricing.getFullXMLString()), "");

    const std::string lines = TempFolder::contents(kTemplate);
    ZOLWorkbook workbook;
    ASSERT_EQ(ZOLTemplateReader::readTemplateData(lines, workbook), ZOLReadStatus::Read);
    // An empty text is no text at all: the user lines' empty calculator type comes back absent
    // and is saved as "(null)".
    std::string expectedLines = lines;
    replaceAll(expectedLines, "<CalculatorType></", "<CalculatorType>(null)</");
    ASSERT_NE(expectedLines, lines);
    EXPECT_EQ(firstDifference(expectedLines, workbook.getCustomItemTemplateXMLString()), "");
    EXPECT_TRUE(alerts->alerts.empty());
}
