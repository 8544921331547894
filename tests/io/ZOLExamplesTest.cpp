// The files in examples/ (a house of three worksheets, its price list and its job-summary
// template) and the golden files in tests/data/ are exactly what the program reads and writes.
// Running the tests with ZOL_UPDATE_EXAMPLES=1 rewrites the golden files after a deliberate
// change; review the difference.
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLTemplateReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLClock.h"
#include "support/AlertRecorder.h"
#include "support/ScopedTimeZone.h"
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

const std::string kExamples = std::string(ZOL_SOURCE_DIR) + "/examples/";
const std::string kData = std::string(ZOL_TEST_DATA) + "/";

// Compares a file with what the program writes now, or rewrites it when asked to.
void pin(const std::string& path, const std::string& written) {
    const char* update = std::getenv("ZOL_UPDATE_EXAMPLES");
    if (update && std::string(update) == "1")
        TempFolder::write(path, written);
    EXPECT_EQ(firstDifference(TempFolder::contents(path), written), "")
        << path << " is not what the program writes";
}

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

} // namespace

TEST(ZOLExamples, ANewWorkbookIsWrittenByteForByte) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    ZOLClock::setSource([] { return int64_t{1399041000}; }); // 2014-05-02 09:30 CDT
    const std::string written = ZOLWorkbook().getXMLString();
    ZOLClock::setSource({});
    pin(kData + "new-workbook.zol", written);
}

TEST(ZOLExamples, TheSampleHouseResavesWithTheChangesOpeningMakes) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    ScopedAlertRecorder alerts;
    const std::string saved = TempFolder::contents(kExamples + "sample-house.zol");
    const auto opened = ZOLWorkbookReader::readWorkbookData(saved);
    ASSERT_TRUE(opened.ok());
    const std::string resaved = opened.workbook->getXMLString();
    pin(kData + "sample-house-resaved.zol", resaved);

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
    const auto again = ZOLWorkbookReader::readWorkbookData(resaved);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again.workbook->pricingData()->priceItems().size(), 44u * 3);
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLExamples, ThePriceFileAndTheTemplateReadAndSaveUnchanged) {
    ScopedAlertRecorder alerts;
    const std::string prices = TempFolder::contents(kExamples + "prices.zp");
    ZOLPricing pricing;
    ASSERT_EQ(ZOLPriceFileReader::readPriceData(prices, pricing), ZOLReadStatus::Read);
    EXPECT_EQ(firstDifference(prices, pricing.getFullXMLString()), "");

    const std::string lines = TempFolder::contents(kExamples + "job-summary.zci");
    ZOLWorkbook workbook;
    ASSERT_EQ(ZOLTemplateReader::readTemplateData(lines, workbook), ZOLReadStatus::Read);
    // An empty text is no text at all: the user lines' empty calculator type comes back absent
    // and is saved as "(null)".
    std::string expected = lines;
    replaceAll(expected, "<CalculatorType></", "<CalculatorType>(null)</");
    ASSERT_NE(expected, lines);
    EXPECT_EQ(firstDifference(expected, workbook.getCustomItemTemplateXMLString()), "");
    EXPECT_TRUE(alerts->alerts.empty());
}
