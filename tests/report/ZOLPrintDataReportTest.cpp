// The whole report: the worksheet a report picks, the openings pagination, the workbook pages,
// and a golden copy of a full two-worksheet report pinned byte for byte. The fixed page order is
// checked on zolest report.
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "report/ZOLPrintSettings.h"
#include "support/GoldenFile.h"
#include "support/RecordFile.h"
#include "support/ReportPages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

// 2 May 2014 at noon UTC: the same calendar day in every time zone a CI machine may use.
constexpr int64_t kProjectDate = 1399032000;

class ZOLPrintDataReport : public ::testing::Test {
protected:
    void SetUp() override {
        previousResources_ = ZOLPrintData::resourcesDirectory();
        // A fixed folder, so that the golden files do not depend on where the sources are.
        ZOLPrintData::setResourcesDirectory("/opt/zol-estimator/resources");
    }
    void TearDown() override { ZOLPrintData::setResourcesDirectory(previousResources_); }

    static std::shared_ptr<ZOLWorkbook> workbookOf(const std::vector<std::string>& names) {
        auto workbook = std::make_shared<ZOLWorkbook>();
        ZOLWorkbook::Worksheets worksheets;
        for (const auto& name : names)
            worksheets.push_back(std::make_shared<ZOLWorksheet>(name));
        workbook->setWorksheets(worksheets);
        workbook->setProjectName("Lakeview House");
        workbook->setProjectVersion("2");
        workbook->setClientName("Dana Ortiz");
        workbook->setDistributorName("North Supply");
        workbook->setProjectDate(kProjectDate);
        return workbook;
    }

    // The named settings on; with every key of the print window's, everything.
    template <class Keys = std::initializer_list<const char*>>
    static ZOLPrintData::Settings only(const Keys& keys) {
        ZOLPrintData::Settings settings;
        for (const char* key : keys)
            settings[key] = true;
        return settings;
    }

    // Openings numbered 101, 102, ... (tells them apart on the page), 31, 32, ... inches wide,
    // 48 high, every other one with a sill.
    static void setOpenings(const std::shared_ptr<ZOLWorksheet>& worksheet, int count) {
        std::vector<std::shared_ptr<ZOLOpening>> list;
        for (int i = 1; i <= count; ++i)
            list.push_back(std::make_shared<ZOLOpening>(
                readRecord<ZOLOpening>({{25, std::to_string(100 + i).c_str()},
                                        {26, std::to_string(30 + i).c_str()},
                                        {27, "48"},
                                        {28, i % 2 == 1 ? "true" : "false"}})));
        worksheet->openingData()->setOpeningList(list);
    }

    // The numbers of the openings listed on a page, in order.
    static std::vector<int> listedOpenings(const std::string& page) {
        static const std::regex opening("Number of Openings: (\\d+)");
        std::vector<int> numbers;
        for (std::sregex_iterator it(page.begin(), page.end(), opening), end; it != end; ++it)
            numbers.push_back(std::stoi((*it)[1]) - 100);
        return numbers;
    }

    // A job-summary line read from its codes: 84 the name, 85 the quantity, 87 the cost, 90 shown.
    static std::shared_ptr<ZOLCustomItem> customItem(const char* name, const char* quantity,
                                                     const char* cost, const char* visible) {
        return std::make_shared<ZOLCustomItem>(readRecord<ZOLCustomItem>(
            {{84, name}, {85, quantity}, {86, "Each"}, {87, cost}, {90, visible}}));
    }

private:
    std::string previousResources_;
};

} // namespace

TEST_F(ZOLPrintDataReport, NothingSelectedPrintsABlankDocumentAndNothingCountedNoTotals) {
    auto workbook = workbookOf({"North", "South"});
    const std::string blank = ZOLPrintData::getHeaderHTML() + "</body></html>";
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, {}), blank);
    ZOLPrintData::Settings allFalse = only(ZOLPrintSettings::keys());
    for (auto& [key, on] : allFalse)
        on = false;
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, allFalse), blank);
    // Settings the report does not know change nothing.
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, {{"PrintEverything", true}}), blank);

    // No wall with a length counts no blocks: the summary table stays empty, without sign or
    // totals.
    workbook->setRoundToFullBundles(true);
    const std::string page = ZOLPrintData::getSummaryHTML(workbook);
    EXPECT_THAT(page, EndsWith("<th>Approx. Weight</th>\n</tr>\n</table>\n"
                               "<br /><p>* Quantities rounded to full bundles</p>\n"
                               "</div>\n</div>\n"));
    EXPECT_THAT(page, Not(HasSubstr("Job Site Sign")));
}

TEST_F(ZOLPrintDataReport, ProjectInformationFillsMissingTextsAndNamesTheWorksheet) {
    EXPECT_EQ(ZOLPrintData::getProjectInfoHTML(nullptr, "Lakeview", std::nullopt, std::nullopt,
                                               std::nullopt, kProjectDate),
              "<div>\n<p>Project: Lakeview\tVersion: 1.0<br />\nClient: \tDistributor: <br />\n"
              "Date: 05/02/2014</p>\n</div>");
    auto worksheet = std::make_shared<ZOLWorksheet>("Garage <east>");
    EXPECT_EQ(ZOLPrintData::getProjectInfoHTML(worksheet, std::nullopt, "3b", "Dana", "North",
                                               std::nullopt),
              "<div>\n<p>Project: \tVersion: 3b<br />\nClient: Dana\tDistributor: North<br />\n"
              "Date: <br />\nWorksheet: Garage <east></p>\n</div>");
}

TEST_F(ZOLPrintDataReport, OneWorksheetReportPicksTheIndexAndKeepsTheWholeWorkbookSummary) {
    auto workbook = workbookOf({"North", "South", "Garage"});
    workbook->worksheets()[2]->wallData()->setWallLength(40);
    workbook->worksheets()[2]->wallData()->setWallHeight(8);
    const auto settings = only({ZOLPrintSettings::kPrintWall, ZOLPrintSettings::kPrintSummary});

    std::string html = ZOLPrintData::getHTMLWithWorkbook(workbook, -1, settings);
    EXPECT_THAT(pageClasses(html), ElementsAre("wall", "wall-summary"));
    EXPECT_THAT(html, HasSubstr("Worksheet: North</p>"));
    // The summary counts the garage's blocks although only the first worksheet prints.
    EXPECT_THAT(html, HasSubstr("<td>8\" Straight Block</td>"));
    // A worksheet picked by its index: the golden one-worksheet report.

    // Past the last worksheet (or with none left) only the workbook pages print.
    EXPECT_THAT(pageClasses(ZOLPrintData::getHTMLWithWorkbook(workbook, 3, settings)),
                ElementsAre("wall-summary"));
    workbook->setWorksheets({});
    EXPECT_THAT(pageClasses(ZOLPrintData::getHTMLWithWorkbook(workbook, 0, settings)),
                ElementsAre("wall-summary"));
}

TEST_F(ZOLPrintDataReport, OnlyTheLastOpeningsPageListsOpenings) {
    auto workbook = workbookOf({"North"});
    const auto worksheet = workbook->worksheets()[0];
    const struct {
        int openings;
        std::size_t pages;
        std::vector<int> lastPage;
    } cases[] = {{8, 1, {1, 2, 3, 4, 5, 6, 7, 8}}, {9, 2, {9}}, {17, 3, {17}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.openings);
        setOpenings(worksheet, c.openings);
        const std::string html = ZOLPrintData::getHTMLWithWorkbook(
            workbook, 0, only({ZOLPrintSettings::kPrintOpenings}));
        // The titles and the empty tables before the last page: see the golden reports.
        ASSERT_EQ(pageClasses(html).size(), c.pages);
        EXPECT_EQ(listedOpenings(html.substr(html.rfind("<div class=\"page\">"))), c.lastPage);
    }
    // The worksheet's own list is left as it was.
    EXPECT_EQ(worksheet->openingData()->openingList().size(), 17u);
}

TEST_F(ZOLPrintDataReport, JobSummaryTruncatesTheQuantityTotalAndUserTextsGoInAsTyped) {
    auto workbook = workbookOf({"A"});
    workbook->setCustomItems({customItem("Anchor bolts", "1.5", "2.25", "true"),
                              customItem("Hidden", "7", "100", "false"),
                              customItem("Sill plate <2x6>", "1.5", "3.3333", "true")});
    const std::string page = ZOLPrintData::getJobSummaryHTML(workbook);
    EXPECT_THAT(page, HasSubstr("<tr>\n<td>Anchor bolts</td>\n<td>1.50</td>\n<td>Each</td>\n"
                                "<td>$2.25</td>\n<td>$3.38</td>\n</tr>\n"));
    EXPECT_THAT(page, HasSubstr("<td>Sill plate <2x6></td>"));
    EXPECT_THAT(page, Not(HasSubstr("Hidden")));
    // 1 after the first line, int(1 + 1.5) = 2 after the second; the cost keeps its decimals
    // (3.375 + 4.99995).
    EXPECT_THAT(page, EndsWith("<tr></tr>\n<tr><td>Totals</td>\n<td>2</td>\n<td> </td>\n"
                               "<td> </td>\n<td>$8.37</td>\n</tr>\n</table>\n</div>\n</div>\n"));
    EXPECT_THAT(page, HasSubstr("<th>Total Cost</th>\n<tr>\n")); // the head row stays open

    // The notes go in as typed, as the line names do.
    workbook->setNotes(
        "Pour Tuesday.\n<script>alert('x')</script> <img src=http://example.com/a> & more");
    EXPECT_THAT(ZOLPrintData::getProjectNotesHTML(workbook),
                EndsWith("<div><p>Pour Tuesday.\n<script>alert('x')</script> "
                         "<img src=http://example.com/a> & more</p></div>\n</div>\n</div>\n"));
}

TEST_F(ZOLPrintDataReport, FullReportMatchesTheGoldenCopy) {
    auto workbook = workbookOf({"North Wall", "Garage"});
    // Through the file's codes: the north wall 124.5 ft of 8" block 9.334 ft high with 2 inside
    // corners, 6 outside, 2 angles and a T, 20 ft of corbel, 12 ft of radius 15, 96 sq ft of
    // openings, extenders and two layers of calora sticks; its rebar in three rows of the first
    // size lapped 30" and two of the second lapped 24", verticals every 16", dowels every 32";
    // a 20" by 10" footing, an 8" wall and six 12" piles 8 ft deep; tilt-up; 1162 sq ft of labour
    // with 9 corners and Ts at $32.50. The garage is 60 ft of 6" block 8 ft high, metric.
    const auto north = workbook->worksheets()[0];
    const CodeTexts northWall = {
        {47, "124.5"}, {46, "9.334"}, {45, "Eight"}, {48, "2"},  {49, "6"},    {50, "2"}, {51, "1"},
        {52, "20"},    {56, "12"},    {57, "15"},    {58, "96"}, {65, "true"}, {62, "2"}};
    *north->wallData() = readRecord<ZOLWall>(northWall);
    setOpenings(north, 3);
    const CodeTexts rebar = {{30, "124.5"}, {37, "9.334"}, {32, "3"},  {35, "2"}, {34, "0"},
                             {33, "30"},    {36, "24"},    {39, "16"}, {41, "32"}};
    *north->rebarData() = readRecord<ZOLRebar>(rebar);
    const CodeTexts concrete = {{12, "20"},    {14, "10"}, {13, "124.5"}, {22, "8"}, {23, "9.334"},
                                {21, "124.5"}, {17, "6"},  {16, "12"},    {15, "8"}};
    *north->concreteData() = readRecord<ZOLConcrete>(concrete);
    *north->tiltData() = readRecord<ZOLTilt>({{43, "9.334"}, {44, "124.5"}});
    *north->manHourData() = readRecord<ZOLManHours>({{70, "1162"}, {71, "9"}, {79, "32.5"}});
    const auto garage = workbook->worksheets()[1];
    *garage->wallData() = readRecord<ZOLWall>({{47, "60"}, {46, "8"}, {45, "Six"}});
    setOpenings(garage, 10);
    garage->concreteData()->setMeasurement(1);
    garage->rebarData()->setMeasurement(1);

    for (const auto& item : workbook->pricingData()->priceItems())
        item->setPrice(2.5 + item->partType() * 0.75 + item->partSize() * 0.1);
    workbook->setNotes("Deliver to the north side of the lot.\nCall before pouring.");
    workbook->setCustomItems({customItem("Window bucks (site built)", "4", "18.75", "true")});

    expectGoldenFile("report/two-worksheets.html",
                     ZOLPrintData::getHTMLWithWorkbook(workbook, only(ZOLPrintSettings::keys())));
    expectGoldenFile("report/one-worksheet.html",
                     ZOLPrintData::getHTMLWithWorkbook(
                         workbook, 1,
                         only({ZOLPrintSettings::kPrintOpenings, ZOLPrintSettings::kPrintWall,
                               ZOLPrintSettings::kPrintJobSummary})));
}
