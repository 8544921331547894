// Tilt-up panels: the panel count with its allowance, the single-precision bundle counts with
// their extra bundle, and the record's element. The 100 by 10 ft wall (190 panels, 570 inserts,
// their bundles and weights) is checked on the tilt-up screen and on zolest calc tilt.
#include "model/ZOLTilt.h"
#include "calc/ZOLTiltCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <utility>

namespace {
using Calc = ZOLTiltCalculator;
} // namespace

TEST(ZOLTiltCalculator, PanelsDivideByCoverageFirstAndBundlesInSinglePrecision) {
    EXPECT_EQ(Calc::calculatePanelsWithSqFtOfWall(0), 0);
    EXPECT_EQ(Calc::calculatePanelsWithSqFtOfWall(5.33), 2);
    // 38,909 sq ft need exactly 7373 panels; multiplying first would tip over to 7374.
    EXPECT_EQ(Calc::calculatePanelsWithSqFtOfWall(38909), 7373);

    // A bundle is added whenever the count is not a multiple of the bundle size. The division is
    // single precision: above 2^24 a float drops the last unit, so 16,777,225 panels divide as
    // 16,777,224, an exact 1,398,102 bundles (double precision would round up once more).
    const std::pair<int32_t, int32_t> panels[] = {{0, 0},  {1, 2},    {12, 2},
                                                  {13, 3}, {144, 12}, {145, 14}};
    for (const auto& [count, bundles] : panels)
        EXPECT_EQ(Calc::calculatePanelBundlesWithPanels(count), bundles) << count;
    EXPECT_EQ(Calc::calculatePanelBundlesWithPanels(16777225), 1398103);
    const std::pair<int32_t, int32_t> inserts[] = {
        {0, 0}, {300, 2}, {570, 3}, {90000, 300}, {16777501, 55926}};
    for (const auto& [count, bundles] : inserts)
        EXPECT_EQ(Calc::calculateInsertBundlesWithInserts(count), bundles) << count;
}

TEST(ZOLTilt, WritesAndReadsItsElement) {
    ZOLTilt t = expectRecordFile<ZOLTilt>("tilt", {{43, "10.667"}, {44, "100"}}, 43, 44);
    t.setValue("height", 43);
    t.setValue(std::nullopt, 44);
    EXPECT_EQ(t.wallHeight() + t.wallLength(), 0.0);
}
