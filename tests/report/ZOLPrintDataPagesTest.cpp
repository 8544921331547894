// The estimate pages of one worksheet: the markup quirks, the rebar size names and the values
// each page derives itself.
#include "calc/ZOLCalculatorMaster.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "report/ZOLPrintData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

const std::string kInfo = "<div>\n<p>INFO</p>\n</div>";

std::shared_ptr<ZOLOpenings> openingsOf(int count) {
    auto openings = std::make_shared<ZOLOpenings>();
    std::vector<std::shared_ptr<ZOLOpening>> list;
    for (int i = 1; i <= count; ++i) {
        auto opening = std::make_shared<ZOLOpening>();
        opening->setNumberOfOpenings(i);
        opening->setOpeningWidth(36);
        opening->setOpeningHeight(48);
        list.push_back(opening);
    }
    openings->setOpeningList(list);
    return openings;
}

std::size_t occurrences(const std::string& text, const std::string& part) {
    std::size_t n = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

} // namespace

TEST(ZOLPrintDataPages, ConcretePileCountRowRunsIntoTheNextRow) {
    auto concrete = std::make_shared<ZOLConcrete>();
    concrete->setPileCount(4);
    concrete->setPileDiameter(12);
    concrete->setWallThickness(8);
    const std::string html = ZOLPrintData::getConcreteHTML(concrete, kInfo);
    EXPECT_THAT(html, StartsWith("<div class=\"page\">\n<div class=\"content concrete\">\n"
                                 "<h1>Concrete</h1>\n" +
                                 kInfo + "\n<table>\n<tr>\n<th>Footing</th>\n</tr>\n"));
    EXPECT_THAT(html, HasSubstr("<td>Number of Piles:</td>\n<td>4</td>\n</tr><tr>\n"
                                "<td>Concrete Volume:</td>"));
    EXPECT_THAT(html, HasSubstr("<td>Pile Diameter:</td>\n<td>12\"</td>"));
    EXPECT_THAT(html, HasSubstr("<td>Wall Thickness:</td>\n<td>8\"</td>"));
    EXPECT_THAT(html, EndsWith("</table>\n</div>\n</div>\n"));

    // Metric volumes carry the metric unit letter.
    concrete->setMeasurement(1);
    EXPECT_THAT(ZOLPrintData::getConcreteHTML(concrete, kInfo),
                HasSubstr("<td>Total Volume:</td>\n<td>0.00 M</td>"));
}

TEST(ZOLPrintDataPages, ManHourLabourCostPerSquareFootIsGuarded) {
    auto manHours = std::make_shared<ZOLManHours>();
    manHours->setLaborCost(35.5);
    manHours->setSquareFeetOfWall(0);
    std::string html = ZOLPrintData::getManHourHTML(manHours, kInfo);
    EXPECT_THAT(html, HasSubstr("<td>Cost of Labor @ $35.50:</td>\n"));
    EXPECT_THAT(html, HasSubstr("<td>Cost of Labor Per Square Foot:</td>\n<td>$0.00</td>"));

    manHours->setSquareFeetOfWall(2000);
    html = ZOLPrintData::getManHourHTML(manHours, kInfo);
    const double total = manHours->getHoursToComplete() * 35.5;
    char expected[128];
    std::snprintf(expected, sizeof expected,
                  "<td>Cost of Labor Per Square Foot:</td>\n<td>$%.2f</td>", total / 2000);
    EXPECT_THAT(html, HasSubstr(expected));
    EXPECT_THAT(html, HasSubstr("<td>Turns other than 90° or 45°:</td>"));
}

TEST(ZOLPrintDataPages, OpeningsSitTwoToARowAndTheSillLineIsInverted) {
    auto openings = openingsOf(3);
    openings->openingList()[0]->setUseSill(true);
    openings->openingList()[1]->setUseSill(false);
    const std::string html = ZOLPrintData::getOpeningsHTML(openings, kInfo, 1, 1);
    EXPECT_THAT(html, HasSubstr("<h1>Openings</h1>\n" + kInfo + "\n<table>\n<tr>\n<td>"));
    EXPECT_EQ(occurrences(html, "<tr>\n"), 2u);
    EXPECT_EQ(occurrences(html, "</tr>\n"), 1u); // the second row holds one cell, left open
    EXPECT_THAT(html, HasSubstr("Number of Openings: 1<br />\nWidth: 36.00\"<br />\n"
                                "Height: 48.00\"<br />\nRemove Sill: No<br />"));
    EXPECT_THAT(html, HasSubstr("Number of Openings: 2<br />\nWidth: 36.00\"<br />\n"
                                "Height: 48.00\"<br />\nRemove Sill: Yes<br />"));
    EXPECT_THAT(html, EndsWith("Total LF: 44' 0\"</td>\n</table>\n<p class=\"footer\">All openings "
                               "have 8\" added to allow for overlap of buck.</p>\n</div>\n</div>"));

    EXPECT_THAT(ZOLPrintData::getOpeningsHTML(openings, kInfo, 2, 3),
                HasSubstr("<h1>Openings - Page 2 of 3</h1>"));
    EXPECT_THAT(ZOLPrintData::getOpeningsHTML(std::make_shared<ZOLOpenings>(), kInfo, 1, 1),
                HasSubstr("<table>\n</table>\n"));
}

TEST(ZOLPrintDataPages, RebarNamesSizesOneFurtherAlongTheList) {
    auto rebar = std::make_shared<ZOLRebar>();
    // New records use size 1 everywhere: every bar prints as #5, and equal sizes give one
    // total line with both lengths added.
    rebar->setWallLength(100);
    rebar->setWallHeight(8);
    rebar->setHorizontalRowCount1(2);
    rebar->setHorizontalRowCount2(2);
    std::string html = ZOLPrintData::getRebarHTML(rebar, kInfo);
    EXPECT_THAT(html, HasSubstr("<p>2 Rows of #5, with "));
    EXPECT_THAT(html, HasSubstr("<p>#5 Vertical with "));
    EXPECT_THAT(html, HasSubstr("<p>#5 Dowel with "));
    EXPECT_THAT(html, HasSubstr("<h3>Total Horizontal Rebar</h3>\n<p>#5\t\t"));
    EXPECT_EQ(occurrences(html, "\t\t"), 2u);
    EXPECT_THAT(html, EndsWith("</div></div></div>"));

    // Different sizes: the smaller size index first, each with its own length.
    rebar->setHorizontalSize1(2);
    rebar->setHorizontalSize2(0);
    html = ZOLPrintData::getRebarHTML(rebar, kInfo);
    EXPECT_THAT(html, HasSubstr("<h3>Total Horizontal Rebar</h3>\n<p>#4\t\t"));
    EXPECT_THAT(html, HasSubstr("</p>\n<p>#6\t\t"));

    // Metric names; sizes with no entry at their position print no name.
    rebar->setMeasurement(1);
    rebar->setVerticalSize(4);
    rebar->setDowelSize(-1);
    html = ZOLPrintData::getRebarHTML(rebar, kInfo);
    EXPECT_THAT(html, HasSubstr("<p>2 Rows of 20M, with "));
    EXPECT_THAT(html, HasSubstr("<p> Vertical with "));
    EXPECT_THAT(html, HasSubstr("<p> Dowel with "));
    rebar->setMeasurement(0);
    rebar->setVerticalSize(5);
    rebar->setDowelSize(4);
    html = ZOLPrintData::getRebarHTML(rebar, kInfo);
    EXPECT_THAT(html, HasSubstr("<p> Vertical with "));
    EXPECT_THAT(html, HasSubstr("<p>#8 Dowel with "));
}

TEST(ZOLPrintDataPages, TiltRoundsToFullBundlesAndAddsBothWeights) {
    auto tilt = std::make_shared<ZOLTilt>();
    tilt->setWallHeight(8);
    tilt->setWallLength(100);
    const std::string html = ZOLPrintData::getTiltHTML(tilt, kInfo);
    EXPECT_THAT(html, HasSubstr("Total Square Feet of Wall: 800.00</p>"));
    char rounded[160];
    std::snprintf(rounded, sizeof rounded,
                  "<td>Rounded up to Full Bundle:</td>\n<td>%d</td>\n<td>Rounded up to Full "
                  "Bundle:</td>\n<td>%d</td>",
                  tilt->getPanelBundles() * 12, tilt->getInsertBundles() * 300);
    EXPECT_THAT(html, HasSubstr(rounded));
    char total[80];
    std::snprintf(total, sizeof total, "<p>Total Approximate Weight: %.2f lbs</p>",
                  tilt->getPanelWeight() + tilt->getInsertWeight());
    EXPECT_THAT(html, HasSubstr(total));
    EXPECT_THAT(html, HasSubstr("inserts at 16\" o/c. 1% added to all calculations.</p>"));
}

TEST(ZOLPrintDataPages, WallPageKeepsItsMarkupAndCountsClipBundles) {
    auto wall = std::make_shared<ZOLWall>();
    wall->setWallLength(100);
    wall->setWallHeight(8);
    wall->setInsideCornerLocations(2);
    wall->setOutsideCornerLocations(4);
    wall->setAngleLocations(3);
    wall->setRadius(12);
    const std::string html = ZOLPrintData::getWallHTML(wall, kInfo);
    EXPECT_THAT(html, HasSubstr("</tr>\n<td class=\"tight\">@ 12 Foot Radius</td>\n</tr>\n"));
    // The information table is still open when the parts table starts.
    EXPECT_THAT(html, HasSubstr("</tr>\n<table>\n<tr>\n<th>Parts:</th>"));
    EXPECT_THAT(html, HasSubstr("<td>Total Number of 4\" Extenders</td>"));
    EXPECT_THAT(html, HasSubstr("<td>Total Number of Zol Block HV Clips:</td>\n<td>" +
                                std::to_string(wall->getTotalBundlesWithPartType(13)) + "</td>"));
    EXPECT_NE(wall->getTotalBundlesWithPartType(13), wall->getPartCountWithPartType(13));
    // Corners and T's take up straight block's place; angles are left out of that total.
    const double cornersAndTs = wall->getLinearFeetOfInsideCorners() +
                                wall->getLinearFeetOfOutsideCorners() +
                                wall->getLinearFeetOfTBlock();
    EXPECT_GT(wall->getLinearFeetOfAngles(), 0);
    EXPECT_THAT(html, HasSubstr("<td>Total LF Taken up by Corners and T's:</td>\n<td>" +
                                ZOLCalculatorMaster::convertFeetToText(cornersAndTs) + "</td>"));
    double weights = 0;
    for (int type = 0; type <= 16; ++type)
        weights += wall->getApproximateWeightWithPartType(type, false);
    char total[120];
    std::snprintf(total, sizeof total,
                  "<tr>\n<td>    Total Approximate Weight:</td><td></td><td>%.2f lbs</td>\n"
                  "</tr>\n</table>\n",
                  weights);
    EXPECT_THAT(html, HasSubstr(total));
    EXPECT_THAT(html, EndsWith("</td>\n</tr>\n</table>\n</div>\n</div>"));
}
