// The spreadsheet exports: fields quoted as spreadsheets expect, numbers as plain numbers, and
// the same counts and totals as the Block Info tab and the printed summaries.
#include "report/ZOLCsvExport.h"
#include "io/ZOLPriceFileReader.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "support/ChangedSample.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

namespace {

// The lines of a text whose lines end in CR LF.
std::vector<std::string> lines(const std::string& csv) {
    static const std::regex lineEnd("\r\n");
    return {std::sregex_token_iterator(csv.begin(), csv.end(), lineEnd, -1), {}};
}

} // namespace

TEST(ZOLCsvExport, FieldsAreQuotedOnlyWhenTheyMustBeAndTheOrderListHasTheBlockInfoCounts) {
    const std::pair<const char*, const char*> cases[] = {
        {"8\" Straight", "\"8\"\" Straight\""}, // a quote doubles inside quotes
        {"North, upper", "\"North, upper\""},
        {"two\nlines", "\"two\nlines\""},
        {"cr\r", "\"cr\r\""},
        {"Façade 1", "Façade 1"}, // UTF-8 as it is
        {"", ""},
        {" padded ", " padded "},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(ZOLCsvExport::field(text), expected) << text;

    // The order list has the Block Info counts of every worksheet.
    ZOLWorkbook workbook;
    workbook.worksheets().front()->setName("North, \"A\"");
    auto wall = workbook.worksheets().front()->wallData();
    wall->setWallLength(100);
    wall->setWallHeight(8);
    const auto rows = lines(ZOLCsvExport::getOrderListCSV(workbook));
    ASSERT_GE(rows.size(), 2u);
    EXPECT_EQ(rows[0], "Worksheet,Part,Block Size,Count,Per Bundle,Full Bundles,Bundles,"
                       "Weight (lbs)");
    // 100 ft of 8" wall, 8 ft high: the Block Info tab's 153, 12, 156, 13 and 1170.00 lbs.
    EXPECT_EQ(rows[1], "\"North, \"\"A\"\"\",Straight Block,8,153,12,156,13,1170.00");
    // Only parts with a count: a wall with no corners lists no corner row.
    for (const auto& row : rows)
        EXPECT_EQ(row.find("Corner"), std::string::npos) << row;
    // A new workbook's empty wall orders nothing.
    EXPECT_EQ(lines(ZOLCsvExport::getOrderListCSV(ZOLWorkbook())).size(), 1u);
}

TEST(ZOLCsvExport, TotalsAreThoseOfThePrintedSummaries) {
    auto workbook = openedWorkbook(sampleHouseText());
    ZOLPriceFileReader::readPriceData(TempFolder::contents(kPrices), *workbook->pricingData());
    auto items = workbook->customItems();
    items.push_back(std::make_shared<ZOLCustomItem>(readRecord<ZOLCustomItem>(
        {{84, "Permit, \"city\""}, {85, "1.5"}, {86, "Each"}, {87, "425"}})));
    workbook->setCustomItems(items);

    const auto job = lines(ZOLCsvExport::getJobSummaryCSV(*workbook));
    EXPECT_EQ(job.front(), "Item,Quantity,Unit,Unit Price,Total");
    EXPECT_NE(std::find(job.begin(), job.end(), "\"Permit, \"\"city\"\"\",1.50,Each,425.00,637.50"),
              job.end());
    // "Totals,QUANTITY,,,COST" against the printed page's "<td>QUANTITY</td> ... <td>$COST</td>".
    std::smatch csvTotals;
    ASSERT_TRUE(std::regex_match(job.back(), csvTotals, std::regex(R"(Totals,(\d+),,,([\d.]+))")));
    const std::string printed = ZOLPrintData::getJobSummaryHTML(workbook);
    EXPECT_NE(printed.find("<td>Totals</td>\n<td>" + csvTotals[1].str() +
                           "</td>\n<td> </td>\n"
                           "<td> </td>\n<td>$" +
                           csvTotals[2].str() + "</td>"),
              std::string::npos)
        << job.back();

    const auto summary = lines(ZOLCsvExport::getWorkbookSummaryCSV(*workbook));
    EXPECT_EQ(summary.front(), "Part,Quantity,Unit Price,Total Cost,Sq Ft Cost,Weight (lbs)");
    EXPECT_EQ(summary[summary.size() - 2], "Zol Blocks Job Site Sign,1,0.00,0.00,0.00,0.00");
    std::smatch sums;
    ASSERT_TRUE(std::regex_match(summary.back(), sums,
                                 std::regex(R"(Totals,(\d+),,([\d.]+),([\d.]+),([\d.]+))")));
    EXPECT_NE(ZOLPrintData::getSummaryHTML(workbook).find(
                  "<td>Totals</td>\n<td>" + sums[1].str() + "</td>\n<td> </td>\n<td>$" +
                  sums[2].str() + "</td>\n<td>$" + sums[3].str() + "</td>\n<td>" + sums[4].str() +
                  " lbs</td>"),
              std::string::npos)
        << summary.back();
    // No blocks, no lines: the header alone.
    EXPECT_EQ(ZOLCsvExport::getWorkbookSummaryCSV(ZOLWorkbook()), summary.front() + "\r\n");
}
