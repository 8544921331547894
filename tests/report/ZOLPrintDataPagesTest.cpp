// The estimate pages of one worksheet. Their markup quirks (the pile-count row running into the
// next, openings two to a row with the sill line inverted, the information table left open,
// clip bundles, full-bundle tilt counts, the guarded labour cost per square foot) are pinned by
// the golden reports; what those reports do not reach is checked here.
#include "model/ZOLRebar.h"
#include "report/ZOLPrintData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using ::testing::HasSubstr;

TEST(ZOLPrintDataPages, RebarSizesPastTheEndOfTheirListPrintNoName) {
    auto rebar = std::make_shared<ZOLRebar>();
    rebar->setWallLength(100);
    rebar->setHorizontalRowCount1(2);
    rebar->setHorizontalSize1(3);
    rebar->setVerticalSize(4);
    rebar->setDowelSize(-1);
    // Sizes name the list entry one further along: 3 is "#7", 4 the last imperial "#8".
    std::string html = ZOLPrintData::getRebarHTML(rebar, "");
    EXPECT_THAT(html, HasSubstr("<p>2 Rows of #7, with "));
    EXPECT_THAT(html, HasSubstr("<p>#8 Vertical with "));
    EXPECT_THAT(html, HasSubstr("<p> Dowel with "));
    rebar->setVerticalSize(5);
    EXPECT_THAT(ZOLPrintData::getRebarHTML(rebar, ""), HasSubstr("<p> Vertical with "));
    rebar->setMeasurement(1); // the metric list is one shorter
    rebar->setVerticalSize(4);
    html = ZOLPrintData::getRebarHTML(rebar, "");
    EXPECT_THAT(html, HasSubstr("<p>2 Rows of 25M, with "));
    EXPECT_THAT(html, HasSubstr("<p> Vertical with "));
}
