#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using Line = std::shared_ptr<ZOLCustomItem>;

void setPrice(ZOLPricing& pricing, int32_t type, int32_t size, double price) {
    for (const auto& item : pricing.priceItems())
        if (item->partType() == type && item->partSize() == size)
            item->setPrice(price);
}

void expectLine(const Line& line, const char* type, const std::string& name, const char* unit,
                double quantity, double cost, bool visible) {
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->tiedToWorkbook()) << name;
    EXPECT_EQ(line->calculatorType(), type) << name;
    EXPECT_EQ(line->name(), name);
    EXPECT_EQ(line->unit(), unit) << name;
    EXPECT_NEAR(line->quantity(), quantity, 1e-9) << name;
    EXPECT_NEAR(line->cost(), cost, 1e-9) << name;
    EXPECT_EQ(line->visible(), visible) << name;
}

// A job-summary line tied to the workbook, read from its codes (84 the name, 85 the quantity, 89
// the calculator).
Line tiedLine(CodeTexts values) {
    values.emplace_back(88, "true");
    return std::make_shared<ZOLCustomItem>(readRecord<ZOLCustomItem>(values));
}

std::vector<Line> linesOf(const ZOLWorkbook& workbook, const char* type) {
    std::vector<Line> out;
    for (const auto& line : workbook.customItems())
        if (line->calculatorType() == type)
            out.push_back(line);
    return out;
}

// A house of four worksheets: two 8-inch walls, a 6-inch wall and an empty
// 10-inch porch, priced from a distributor's list that has no calora-stick
// item.
class ZOLSummaryItems : public ::testing::Test {
protected:
    void SetUp() override {
        // The walls through their file codes (8 inches and 8 feet high unless said): North 100 ft
        // with 2 inside corners, 20 ft of buck, extenders and a layer of calora sticks; South 50
        // ft of 6" with 2 angles; Garage 40 ft, 4 ft high; Porch, 10", no length.
        const std::pair<const char*, CodeTexts> sheets[] = {
            {"North", {{47, "100"}, {48, "2"}, {59, "20"}, {65, "true"}, {62, "1"}}},
            {"South", {{45, "Six"}, {47, "50"}, {50, "2"}}},
            {"Garage", {{47, "40"}, {46, "4"}}},
            {"Porch", {{45, "Ten"}}}};
        workbook.setWorksheets({});
        for (const auto& [name, codes] : sheets) {
            auto sheet = std::make_shared<ZOLWorksheet>(name);
            *sheet->wallData() = readRecord<ZOLWall>(codes);
            workbook.addWorksheetsObject(sheet);
        }

        auto& pricing = *workbook.pricingData();
        const std::tuple<int32_t, int32_t, double> prices[] = {
            {0, 6, 21.50},  {4, 6, 28.75},  {0, 8, 23.40},  {2, 8, 31.10},  {11, 8, 4.25},
            {0, 10, 26.00}, {12, 12, 1.85}, {13, 12, 0.09}, {15, 12, 12.75}};
        for (const auto& [type, size, price] : prices)
            setPrice(pricing, type, size, price);
        auto items = pricing.priceItems();
        std::erase_if(items, [](const auto& item) { return item->partType() == 14; });
        pricing.setPriceItems(items);
    }
    ZOLWorksheet& sheet(std::size_t i) { return *workbook.worksheets()[i]; }
    ZOLWall& wall(std::size_t i) { return *sheet(i).wallData(); }
    // One record of every worksheet, in worksheet order.
    template <class R>
    std::vector<std::shared_ptr<R>> each(const std::shared_ptr<R>& (ZOLWorksheet::*record)()
                                             const) {
        std::vector<std::shared_ptr<R>> out;
        for (const auto& s : workbook.worksheets())
            out.push_back(((*s).*record)());
        return out;
    }
    std::vector<std::shared_ptr<ZOLWall>> walls() { return each(&ZOLWorksheet::wallData); }
    ZOLWorkbook workbook;
};

} // namespace

TEST_F(ZOLSummaryItems, WallPackageIsPricedPartByPartWithAccessoriesOncePerSizeInUseAtTheTop) {
    // The take-off the package is priced from: North 143 straight, 12 corners, 6
    // buck, 53 extenders, 500 clips, 465 sticks; South 68 straight, 12 angles,
    // 250 clips; Garage 31 straight, 250 clips.
    // 6": 68 x 21.50 + 12 x 28.75. 8": 174 x 23.40 + 12 x 31.10 + 6 x 4.25. The
    // accessories of all walls (sticks at the clips' price) once each for 6", 8"
    // and the empty 10" porch.
    const double accessories = 53 * 1.85 + 1000 * 0.09 + 465 * 0.09;
    const Line line =
        workbook.getWallSummaryItemForWalls(walls(), workbook.pricingData(), false, true);
    expectLine(line, "Wall", "Zol Blocks Package", "Package", 1.0,
               1807.0 + 4470.3 + 3 * accessories, true);

    // Rounded to full bundles wall by wall: 143 and 31 straight become 144
    // and 36.
    const double roundedAccessories = 60 * 1.85 + 1000 * 0.09 + 468 * 0.09;
    EXPECT_NEAR(
        workbook.getWallSummaryItemForWalls(walls(), workbook.pricingData(), true, true)->cost(),
        72 * 21.50 + 18 * 28.75 + 180 * 23.40 + 12 * 31.10 + 10 * 4.25 + 3 * roundedAccessories,
        1e-9);

    // The workbook's sizes decide the passes even for a list of one 6-inch wall.
    EXPECT_NEAR(
        workbook.getWallSummaryItemForWalls({walls()[1]}, workbook.pricingData(), false, true)
            ->cost(),
        1807.0 + 3 * 250 * 0.09, 1e-9);

    // An accessory without a price item is charged at the price before it.
    auto pricing = std::make_shared<ZOLPricing>();
    setPrice(*pricing, 11, 10, 4.80); // the 10" buck
    auto items = pricing->priceItems();
    std::erase_if(items, [](const auto& item) { return item->partType() >= 12; });
    pricing->setPriceItems(items);
    // The 10" buck is the only priced part before an accessory pass (6" and 8" buck cost
    // nothing), so the accessories are charged once, at its price.
    EXPECT_NEAR(workbook.getWallSummaryItemForWalls(walls(), pricing, false, true)->cost(),
                0.0 + 4.80 * (53 + 1000 + 465), 1e-9);

    // The line replaces the old one at the top, and is hidden when the walls order nothing.
    auto user = std::make_shared<ZOLCustomItem>();
    auto oldWall = tiedLine({{89, "Wall"}});
    workbook.setCustomItems({user, oldWall});
    workbook.generateWallItem();
    ASSERT_EQ(workbook.customItems().size(), 2U);
    EXPECT_NEAR(workbook.customItems()[0]->cost(), 6967.0, 1e-9);
    EXPECT_EQ(workbook.customItems()[1], user);

    for (std::size_t i = 0; i < 3; ++i)
        wall(i).clear();
    workbook.generateWallItem();
    expectLine(workbook.customItems()[0], "Wall", "Zol Blocks Package", "Package", 0.0, 0.0, false);
}

TEST_F(ZOLSummaryItems, RebarLinesNameTheStoredSizeAsTheListPositionThenEndHidden) {
    // North: 220 feet of size 1 (two rows lapped 30") and 400 of size 3 (every 24"); South: 50
    // feet of size 3; Garage, metric: 80 feet of size 1 and 320 of size 4, past the metric list;
    // Porch: 10 feet of size 5, past the imperial list. Entered through the file's codes: 29 the
    // units, 30 the length, 31 to 33 and 34 to 36 the two horizontal sizes, rows and laps, 38 and
    // 39 the vertical size and spacing.
    const CodeTexts bars[] = {{{30, "100"}, {32, "2"}, {33, "30"}, {38, "3"}, {39, "24"}},
                              {{30, "50"}, {31, "3"}, {32, "1"}},
                              {{29, "Metric"}, {30, "40"}, {32, "2"}, {38, "4"}, {39, "12"}},
                              {{30, "10"}, {34, "5"}, {35, "1"}}};
    for (std::size_t i = 0; i < 4; ++i)
        *sheet(i).rebarData() = readRecord<ZOLRebar>(bars[i]);
    const auto lines =
        ZOLWorkbook::getRebarSummaryItemsForRebars(each(&ZOLWorksheet::rebarData), true);
    // Per record, imperial before metric, by size; sizes past a list have no name.
    const std::pair<const char*, double> expected[] = {{"#5 Rebar", 220}, {"#7 Rebar", 400},
                                                       {"#7 Rebar", 50},  {" Rebar", 10},
                                                       {"15M Rebar", 80}, {" Rebar", 320}};
    ASSERT_EQ(lines.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i)
        expectLine(lines[i], "Rebar", expected[i].first, "Linear Feet", expected[i].second, 0.0,
                   true);

    // Merged by name, then zeroed and hidden; a line of a size no longer used
    // stays as it is.
    auto stale = tiedLine({{84, "#8 Rebar"}, {85, "75"}, {89, "Rebar"}});
    workbook.setCustomItems({stale});
    workbook.generateRebarItems();
    const auto merged = linesOf(workbook, "Rebar");
    ASSERT_EQ(merged.size(), 5U);
    EXPECT_EQ(stale->quantity(), 75.0);
    for (std::size_t i = 1; i < merged.size(); ++i) {
        EXPECT_EQ(merged[i]->quantity(), 0.0);
        EXPECT_FALSE(merged[i]->visible());
    }
}

TEST_F(ZOLSummaryItems, ConcreteLinesPerUnitSystemAndPour) {
    // Footings of 100 ft by 20" by 10" on North and, metric, on Garage; 100 ft of wall 6" thick
    // and 8 ft high on South (codes 11 the units, 12 to 14 the footing, 21 to 23 the wall).
    const CodeTexts footing = {{12, "20"}, {13, "100"}, {14, "10"}};
    *sheet(0).concreteData() = readRecord<ZOLConcrete>(footing);
    *sheet(2).concreteData() = readRecord<ZOLConcrete>(footing);
    sheet(2).concreteData()->setMeasurement(1);
    *sheet(1).concreteData() = readRecord<ZOLConcrete>({{21, "100"}, {22, "6"}, {23, "8"}});
    const auto lines =
        ZOLWorkbook::getConcreteSummaryItemsWithConcretes(each(&ZOLWorksheet::concreteData), true);
    ASSERT_EQ(lines.size(), 3U);
    const double footingYards = 240000.0 * 2.1433470508e-05;
    expectLine(lines[0], "Concrete", "Footing Concrete", "Y", footingYards, 0.0, true);
    expectLine(lines[1], "Concrete", "Wall Concrete", "Y", 691200.0 * 2.1433470508e-05, 0.0, true);
    expectLine(lines[2], "Concrete", "Footing Concrete", "M", footingYards * 0.76455485798, 0.0,
               true);

    workbook.generateConcreteItems(); // the metric footing merges into the imperial one
    ASSERT_EQ(linesOf(workbook, "Concrete").size(), 2U);
    EXPECT_EQ(linesOf(workbook, "Concrete")[0]->quantity(), 0.0);
}

TEST_F(ZOLSummaryItems, TiltAndManHourLinesAreUpdatedNotDuplicatedAndAverageTheRate) {
    // 100 by 10 ft of tilt-up (190 panels, 570 inserts); 2400 sq ft at $30 and 800 at $45.
    *sheet(0).tiltData() = readRecord<ZOLTilt>({{43, "10"}, {44, "100"}});
    *sheet(0).manHourData() = readRecord<ZOLManHours>({{70, "2400"}, {79, "30"}});
    *sheet(1).manHourData() = readRecord<ZOLManHours>({{70, "800"}, {79, "45"}});
    const double ha = sheet(0).manHourData()->getHoursToComplete();
    const double hb = sheet(1).manHourData()->getHoursToComplete();

    workbook.generateCustomItems();
    workbook.generateCustomItems();
    ASSERT_EQ(linesOf(workbook, "Tilt").size(), 1U);
    ASSERT_EQ(linesOf(workbook, "ManHours").size(), 1U);
    const Line tilt = linesOf(workbook, "Tilt")[0];
    expectLine(tilt, "Tilt", "Quarto Tilt Parts", "Parts", 760.0, 0.0, true);
    expectLine(linesOf(workbook, "ManHours")[0], "ManHours", "Total Man Hours", "Hours", ha + hb,
               (30.0 * ha + 45.0 * hb) / (ha + hb), true);

    // A price typed on the job summary survives; quantity and visibility follow
    // the job.
    tilt->setCost(1.15);
    sheet(0).tiltData()->setWallLength(0.0);
    workbook.generateCustomItems();
    expectLine(tilt, "Tilt", "Quarto Tilt Parts", "Parts", 0.0, 1.15, false);

    // The labour rate averages without dividing by nothing: the line for two worksheets' labour,
    // given each one's square feet and rate. (Codes 70 the square feet, 79 the rate.)
    auto summary = [](const CodeTexts& first, const CodeTexts& second) {
        return ZOLWorkbook::getManHourSummaryItemWithManHours(
            {std::make_shared<ZOLManHours>(readRecord<ZOLManHours>(first)),
             std::make_shared<ZOLManHours>(readRecord<ZOLManHours>(second))},
            true);
    };
    EXPECT_EQ(summary({{70, "2400"}, {79, "0"}}, {{70, "800"}, {79, "0"}})->cost(), 0.0);
    expectLine(summary({{70, "0"}, {79, "30"}}, {{70, "0"}, {79, "45"}}), "ManHours",
               "Total Man Hours", "Hours", 0.0, 0.0, false);
}
