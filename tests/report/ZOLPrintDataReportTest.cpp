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

    static ZOLPrintData::Settings only(std::initializer_list<const char*> keys) {
        ZOLPrintData::Settings settings;
        for (const char* key : keys)
            settings[key] = true;
        return settings;
    }

    static ZOLPrintData::Settings everything() {
        ZOLPrintData::Settings settings;
        for (const char* key : ZOLPrintSettings::keys())
            settings[key] = true;
        return settings;
    }

    static void setOpenings(const std::shared_ptr<ZOLWorksheet>& worksheet, int count) {
        std::vector<std::shared_ptr<ZOLOpening>> list;
        for (int i = 1; i <= count; ++i) {
            auto opening = std::make_shared<ZOLOpening>();
            opening->setNumberOfOpenings(100 + i); // tells the openings apart on the page
            opening->setOpeningWidth(30 + i);
            opening->setOpeningHeight(48);
            opening->setUseSill(i % 2 == 1);
            list.push_back(opening);
        }
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

    static std::shared_ptr<ZOLCustomItem> customItem(const char* name, double quantity, double cost,
                                                     bool visible) {
        auto item = std::make_shared<ZOLCustomItem>();
        item->setName(name);
        item->setUnit("Each");
        item->setQuantity(quantity);
        item->setCost(cost);
        item->setVisible(visible);
        return item;
    }

    static std::vector<std::string> pages(const std::string& html) {
        std::vector<std::string> result;
        const std::string start = "<div class=\"page\">";
        for (auto at = html.find(start); at != std::string::npos;) {
            const auto next = html.find(start, at + 1);
            result.push_back(html.substr(at, next == std::string::npos ? next : next - at));
            at = next;
        }
        return result;
    }

private:
    std::string previousResources_;
};

} // namespace

TEST_F(ZOLPrintDataReport, NothingSelectedPrintsABlankDocument) {
    auto workbook = workbookOf({"North", "South"});
    const std::string blank = ZOLPrintData::getHeaderHTML() + "</body></html>";
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, {}), blank);
    ZOLPrintData::Settings allFalse = everything();
    for (auto& [key, on] : allFalse)
        on = false;
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, allFalse), blank);
    // Settings the report does not know change nothing.
    EXPECT_EQ(ZOLPrintData::getHTMLWithWorkbook(workbook, {{"PrintEverything", true}}), blank);
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

    html = ZOLPrintData::getHTMLWithWorkbook(workbook, 1, settings);
    EXPECT_THAT(html, HasSubstr("Worksheet: South</p>"));
    EXPECT_THAT(html, Not(HasSubstr("Worksheet: North")));

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
        const auto printed = pages(ZOLPrintData::getHTMLWithWorkbook(
            workbook, 0, only({ZOLPrintSettings::kPrintOpenings})));
        // The titles and the empty tables before the last page: see the golden reports.
        ASSERT_EQ(printed.size(), c.pages);
        EXPECT_EQ(listedOpenings(printed.back()), c.lastPage);
    }
    // The worksheet's own list is left as it was.
    EXPECT_EQ(worksheet->openingData()->openingList().size(), 17u);
}

TEST_F(ZOLPrintDataReport, AnEmptyWorkbookSummaryHasNoSignAndNoTotals) {
    auto workbook = workbookOf({"A", "B", "C"});
    // No wall with a length counts no blocks: the table stays empty, without sign or totals.
    workbook->setRoundToFullBundles(true);
    const std::string page = ZOLPrintData::getSummaryHTML(workbook);
    EXPECT_THAT(page, EndsWith("<th>Approx. Weight</th>\n</tr>\n</table>\n"
                               "<br /><p>* Quantities rounded to full bundles</p>\n"
                               "</div>\n</div>\n"));
    EXPECT_THAT(page, Not(HasSubstr("Job Site Sign")));
}

TEST_F(ZOLPrintDataReport, JobSummaryTruncatesTheQuantityTotalAtEveryLine) {
    auto workbook = workbookOf({"A"});
    workbook->setCustomItems({customItem("Anchor bolts", 1.5, 2.25, true),
                              customItem("Hidden", 7, 100, false),
                              customItem("Sill plate <2x6>", 1.5, 3.3333, true)});
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
}

TEST_F(ZOLPrintDataReport, NotesGoInAsTyped) {
    auto workbook = workbookOf({"A"});
    workbook->setNotes(
        "Pour Tuesday.\n<script>alert('x')</script> <img src=http://example.com/a> & more");
    EXPECT_THAT(ZOLPrintData::getProjectNotesHTML(workbook),
                EndsWith("<div><p>Pour Tuesday.\n<script>alert('x')</script> "
                         "<img src=http://example.com/a> & more</p></div>\n</div>\n</div>\n"));
}

TEST_F(ZOLPrintDataReport, FullReportMatchesTheGoldenCopy) {
    auto workbook = workbookOf({"North Wall", "Garage"});
    const auto north = workbook->worksheets()[0];
    auto wall = north->wallData();
    wall->setWallLength(124.5);
    wall->setWallHeight(9.334);
    wall->setBlockSize(8);
    wall->setInsideCornerLocations(2);
    wall->setOutsideCornerLocations(6);
    wall->setAngleLocations(2);
    wall->setTBlockLocations(1);
    wall->setLinearFeetCorbel(20);
    wall->setLinearFeetRadius(12);
    wall->setRadius(15);
    wall->setSqftOpenings(96);
    wall->setUseExtenders(true);
    wall->setCaloraStickLayers(2);
    setOpenings(north, 3);
    auto rebar = north->rebarData();
    rebar->setWallLength(124.5);
    rebar->setWallHeight(9.334);
    rebar->setHorizontalRowCount1(3);
    rebar->setHorizontalRowCount2(2);
    rebar->setHorizontalSize2(0);
    rebar->setHorizontalLap1(30);
    rebar->setHorizontalLap2(24);
    rebar->setVerticalSpacing(16);
    rebar->setDowelSpacing(32);
    auto concrete = north->concreteData();
    concrete->setFootingWidth(20);
    concrete->setFootingDepth(10);
    concrete->setFootingLength(124.5);
    concrete->setWallThickness(8);
    concrete->setWallHeight(9.334);
    concrete->setWallLength(124.5);
    concrete->setPileCount(6);
    concrete->setPileDiameter(12);
    concrete->setPileDepth(8);
    auto tilt = north->tiltData();
    tilt->setWallHeight(9.334);
    tilt->setWallLength(124.5);
    auto manHours = north->manHourData();
    manHours->setSquareFeetOfWall(1162);
    manHours->setCornersAndTs(9);
    manHours->setLaborCost(32.5);

    const auto garage = workbook->worksheets()[1];
    garage->wallData()->setWallLength(60);
    garage->wallData()->setWallHeight(8);
    garage->wallData()->setBlockSize(6);
    setOpenings(garage, 10);
    garage->concreteData()->setMeasurement(1);
    garage->rebarData()->setMeasurement(1);

    for (const auto& item : workbook->pricingData()->priceItems())
        item->setPrice(2.5 + item->partType() * 0.75 + item->partSize() * 0.1);
    workbook->setNotes("Deliver to the north side of the lot.\nCall before pouring.");
    workbook->setCustomItems({customItem("Window bucks (site built)", 4, 18.75, true)});

    expectGoldenFile("report/two-worksheets.html",
                     ZOLPrintData::getHTMLWithWorkbook(workbook, everything()));
    expectGoldenFile("report/one-worksheet.html",
                     ZOLPrintData::getHTMLWithWorkbook(
                         workbook, 1,
                         only({ZOLPrintSettings::kPrintOpenings, ZOLPrintSettings::kPrintWall,
                               ZOLPrintSettings::kPrintJobSummary})));
}
