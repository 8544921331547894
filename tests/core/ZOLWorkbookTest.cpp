#include "model/ZOLWorkbook.h"
#include "model/ZOLWall.h"
#include "support/AlertRecorder.h"
#include "support/GoldenFile.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> names(const ZOLWorkbook& workbook) {
    std::vector<std::string> out;
    for (const auto& sheet : workbook.worksheets())
        out.push_back(sheet->name());
    return out;
}

} // namespace

TEST(ZOLWorkbook, NewWorkbookClearsRefusesTakenNamesAndEscapesMarkup) {
    // The new workbook's file (one worksheet, "Worksheet 1", dated now): see zolest new.
    ZOLWorkbook workbook;
    workbook.pricingData()->addPriceItem(std::make_shared<ZOLPriceItem>(13, 0.09));
    workbook.setSummarizeTilt(false);
    workbook.clear();
    EXPECT_TRUE(workbook.worksheets().empty());
    EXPECT_EQ(workbook.pricingData()->priceItems().size(), 44U);
    EXPECT_TRUE(workbook.summarizeTilt());

    // Clearing a worksheet keeps its records and clears them.
    ZOLWorksheet sheet("Garage");
    const auto wall = sheet.wallData();
    wall->setWallLength(120.0);
    sheet.clear();
    EXPECT_EQ(sheet.name(), "");
    EXPECT_EQ(sheet.wallData(), wall);
    EXPECT_EQ(wall->wallLength(), 0.0);

    // Taken names are refused with the alert.
    ScopedAlertRecorder alerts;
    ZOLWorkbook named;
    for (const char* name : {"Worksheet 1", "worksheet 1", "Garage", "Garage"})
        named.addWorksheetsObject(std::make_shared<ZOLWorksheet>(name));
    EXPECT_EQ(names(named), (std::vector<std::string>{"Worksheet 1", "worksheet 1", "Garage"}));
    ASSERT_EQ(alerts->alerts.size(), 2U);
    EXPECT_EQ(alerts->alerts[0].message, "A worksheet with that name already exists.");
    EXPECT_EQ(alerts->alerts[0].informativeText, "");
    EXPECT_EQ(alerts->alerts[0].buttons, std::vector<std::string>{"OK"});

    // Project texts are written with markup escaped.
    ZOLWorkbook texts;
    texts.setProjectName(std::string("Smith & Sons <Lakeside>"));
    texts.setClientName(std::nullopt);
    texts.setProjectDate(std::nullopt);
    texts.setRoundToFullBundles(true);
    texts.setSummarizeRebar(false);
    // Without worksheets or prices the whole file is the project header.
    texts.setWorksheets({});
    texts.pricingData()->setPriceItems({});
    expectGoldenFile("xml/workbook-texts.xml", texts.getXMLString());
    // The template file's frame around the lines is pinned by the example template.
}

TEST(ZOLWorkbook, WorkbookWithoutWorksheetsTotalsNothingAndKeepsItsLines) {
    ZOLWorkbook workbook;
    // 100 ft of wall with 50 sq ft of openings; 50 ft with a half course, 8.667 ft high.
    *workbook.worksheets()[0]->wallData() = readRecord<ZOLWall>({{47, "100"}, {58, "50"}});
    auto garage = std::make_shared<ZOLWorksheet>("Garage");
    *garage->wallData() = readRecord<ZOLWall>({{47, "50"}, {64, "true"}});
    workbook.addWorksheetsObject(garage);
    EXPECT_NEAR(workbook.getTotalGrossSquareFeet(), 800.0 + 433.35, 1e-9);
    EXPECT_NEAR(workbook.getTotalNetSquareFeet(), 750.0 + 433.35, 1e-9);

    workbook.generateCustomItems();
    const auto lines = workbook.customItems();
    workbook.setWorksheets({}); // every worksheet deleted
    workbook.generateCustomItems();
    EXPECT_EQ(workbook.customItems(), lines);
    EXPECT_EQ(lines[0]->quantity(), 1.0);
    EXPECT_EQ(workbook.getTotalGrossSquareFeet(), 0.0);
    EXPECT_NE(workbook.getCustomItemTemplateXMLString().find("<Name>Zol Blocks Package</Name>"),
              std::string::npos);
}
