// Files from someone else: whatever they hold, opening them ends in the open alert or in a
// clean read, and what was read can be computed and saved without faults (the sanitizer build
// turns any undefined behaviour here into a failure).
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLTemplateReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "support/AlertRecorder.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace {

// A saved workbook (one worksheet with an opening and the price list) with the same text in
// every leaf element and in the worksheet's name.
std::string everyValue(const std::string& value) {
    ZOLWorkbook workbook;
    workbook.worksheets()[0]->openingData()->addOpeningObject(std::make_shared<ZOLOpening>());
    const std::string saved = workbook.getXMLString();
    std::string xml = std::regex_replace(saved, std::regex(">[^<\n]*</"), ">" + value + "</");
    return std::regex_replace(xml, std::regex("Name=\"[^\"]*\""), "Name=\"" + value + "\"");
}

// What the application does with an opened workbook: show the job summary, total it, save.
void useWorkbook(ZOLWorkbook& workbook) {
    workbook.generateCustomItems();
    (void)workbook.getTotalGrossSquareFeet();
    (void)workbook.getTotalNetSquareFeet();
    EXPECT_FALSE(workbook.getXMLString().empty());
    (void)workbook.getCustomItemTemplateXMLString();
}

// clang-format off
const std::vector<std::string> kExtremes = {
    "1e308", "-1e308", "1e400", "-1e400", "99999999999999999999", "-99999999999999999999",
    "2147483647", "-2147483648", "2147483648", "nan", "NaN", "inf", "-inf", "0x7fffffff",
    "4.9e-324", "-0", "", " ", "Metric", "Twelve", "Sixteen", "Intense", "true", "(null)"};
// clang-format on

} // namespace

TEST(ZOLHostileFiles, ExtremeValuesInEveryKindOfFileReadCleanlyAndCanBeComputedAndSaved) {
    ScopedAlertRecorder alerts;
    for (const std::string& value : kExtremes) {
        auto result = ZOLWorkbookReader::readWorkbookData(everyValue(value));
        ASSERT_EQ(result.status, ZOLReadStatus::Read) << value;
        useWorkbook(*result.workbook);

        // The same in a price file and in a template.
        ZOLPricing pricing;
        const std::string price = "<Pricing><PriceItems><PriceItem><PartSize>" + value +
                                  "</PartSize><PartType>" + value + "</PartType><Price>" + value +
                                  "</Price></PriceItem></PriceItems></Pricing>";
        ASSERT_EQ(ZOLPriceFileReader::readPriceData(price, pricing), ZOLReadStatus::Read);
        for (int32_t type = 0; type <= 16; ++type)
            (void)pricing.getPriceForItemType(type, 8);
        (void)pricing.priceItems()[0]->getPartText();
        (void)pricing.getFullXMLString();

        ZOLWorkbook workbook;
        const std::string line = "<CustomItems><Items><CustomItem><Name>" + value +
                                 "</Name><Quantity>" + value + "</Quantity><Cost>" + value +
                                 "</Cost><TiedToWorkbook>" + value +
                                 "</TiedToWorkbook><CalculatorType>Wall</CalculatorType>"
                                 "</CustomItem></Items></CustomItems>";
        ASSERT_EQ(ZOLTemplateReader::readTemplateData(line, workbook), ZOLReadStatus::Read);
        useWorkbook(workbook);
    }
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLHostileFiles, DamagedFilesEndInTheOpenAlertNeverInACrash) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook source;
    source.worksheets()[0]->wallData()->setWallLength(88.0);
    const std::string good = source.getXMLString();
    int failures = 0;
    // Truncations and flipped bytes all through a real file.
    for (std::size_t at = 1; at < good.size(); at += 29) {
        std::string flipped = good;
        flipped[at] = static_cast<char>(flipped[at] ^ 0xA5);
        for (const std::string& damaged : {good.substr(0, at), flipped}) {
            const auto result = ZOLWorkbookReader::readWorkbookData(damaged);
            if (result.ok())
                useWorkbook(*result.workbook);
            else
                ++failures;
        }
    }
    EXPECT_GT(failures, 0);
    for (const auto& alert : alerts->alerts)
        EXPECT_TRUE(alert.message == "There was an error opening the file." ||
                    alert.message == "A worksheet with that name already exists.")
            << alert.message;
}
