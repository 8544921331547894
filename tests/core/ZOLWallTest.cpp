// The wall take-off: worked examples of whole walls, the formulas' roundings and tables, and
// the file element.
#include "model/ZOLWall.h"
#include "calc/ZOLWallCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <utility>

using WC = ZOLWallCalculator;

namespace {

ZOLWall wallOf(double length, int32_t size = 8) {
    ZOLWall wall;
    wall.setWallLength(length);
    wall.setBlockSize(size);
    return wall;
}

// The trucks for count bundles in one of the fifteen positions of the load.
double trucks(int32_t size, int position, int32_t count) {
    int32_t b[15] = {};
    b[position] = count;
    return WC::calculateTrucksWithBlockSize(size, b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7],
                                            b[8], b[9], b[10], b[11], b[12], b[13], b[14]);
}

// Codes 45 to 69 as the file reader hands them over, in file order.
const CodeTexts kFilled = {
    {45, "Twelve"}, {46, "10.667"}, {47, "123.25"}, {48, "2"},    {49, "3"},
    {50, "4"},      {51, "5"},      {52, "6.5"},    {53, "7.5"},  {54, "8"},
    {55, "9.5"},    {56, "10.5"},   {57, "11"},     {58, "12.5"}, {59, "13.5"},
    {60, "-14"},    {61, "15"},     {62, "16"},     {63, "true"}, {64, "true"},
    {65, "true"},   {66, "true"},   {67, "17.5"},   {68, "18.5"}, {69, "2"}};

} // namespace

TEST(ZOLWall, ClearedWallOrdersNothing) {
    ZOLWall wall;
    EXPECT_EQ(wall.getRows(), 6);
    EXPECT_EQ(wall.getStraightBlocks() + wall.getCornerBlocks() + wall.getHVClips() +
                  wall.getBracing(),
              0);
    EXPECT_EQ(wall.getConcreteYards() + wall.getLinearFeetRebar() + wall.getTrucks() +
                  wall.getTotalPartsWeight(),
              0.0);
}

TEST(ZOLWall, HundredFeetOfEightInchWallWithHalfAndCutCoursesOrOpenings) {
    ZOLWall wall = wallOf(100);
    EXPECT_EQ(wall.getStraightBlocks(), 153); // 150 plus 2 % waste
    EXPECT_EQ(wall.getHVClips(), 500);        // two started boxes of 150 blocks
    // Its bracing and rebar: see zolest calc wall.
    EXPECT_DOUBLE_EQ(wall.getConcreteYards(), 8 * 100 * (8 / 12.0) / 27);
    // Its straight row on the Block Info tab (13 bundles, 156 rounded, 1170.00 lbs): see the tab
    // and the order list export.
    EXPECT_DOUBLE_EQ(wall.getTotalPartsWeight(), 153 * 7.5 + 500 * 0.072);
    // 13 bundles of straight at 54.4 units and 2 boxes of clips at 11.
    EXPECT_DOUBLE_EQ(wall.getTrucks(), (708.0 + 22.0) / 2520.0);

    wall.setUseHalfBlock(true);
    EXPECT_DOUBLE_EQ(wall.getTotalWallHeight(), 8.667);
    EXPECT_EQ(wall.getRows(), 6);
    EXPECT_EQ(wall.getStraightHalfBlocks(), 25);
    EXPECT_DOUBLE_EQ(wall.getGrossSqFtOfWall(), 866.7);
    EXPECT_EQ(wall.getStraightBlocks(), 153); // a half course is ordered separately

    wall.setUseHalfBlock(false);
    wall.setUseCutBlock(true);
    EXPECT_EQ(wall.getStraightCutBlocks(), 12); // 25 in one course, two per block
    EXPECT_EQ(wall.getStraightBlocks(), 166);   // 1.02 × (150 + 12)
    wall.setUseExtenders(true);
    EXPECT_EQ(wall.getExtenders(), 53); // 100 × 0.5 × 1.05
    EXPECT_DOUBLE_EQ(wall.getTotalWallHeight(), 8.0 + 0.667 + 0.334);
    EXPECT_EQ(wall.getRows(), 6);

    // Openings replace eighty-five percent of their blocks (their net area and concrete: see
    // zolest calc wall).
    wall = wallOf(100);
    wall.setSqftOpenings(53.3);               // ten blocks of area, 8 of them saved
    EXPECT_EQ(wall.getStraightBlocks(), 145); // ceil(1.02 × 142)
}

TEST(ZOLWall, CornersAnglesAndTsPerSize) {
    ZOLWall wall = wallOf(100, 10);
    wall.setOutsideCornerLocations(4);
    EXPECT_DOUBLE_EQ(wall.getLinearFeetOfOutsideCorners(), 24.0);
    EXPECT_DOUBLE_EQ(wall.getLinearFeetOfStraightBlock(), 76.0);
    EXPECT_EQ(wall.getCornerBlocks(), 24);
    EXPECT_EQ(wall.getStraightBlocks(), 117); // ceil(1.02 × 114)
    wall.setCurbCornerLocations(3);
    wall.setUseCutBlock(true);
    EXPECT_EQ(wall.getCornerCutBlocks(), 0); // (4 - 3) / 2
    EXPECT_EQ(wall.getCornerBlocks(), 21);
    EXPECT_EQ(wall.getCornerCurbBlocks(), 3);
    wall.setCurbCornerLocations(40);
    EXPECT_EQ(wall.getCornerBlocks(), 0); // clamped, never negative

    wall.setTBlockLocations(5); // T-blocks are made in 6 and 8 inches only
    EXPECT_EQ(wall.getTBlocks() + wall.getLinearFeetOfTBlock(), 0.0);

    ZOLWall angles = wallOf(100, 8);
    angles.setAngleLocations(3);
    angles.setUseHalfBlock(true);
    EXPECT_EQ(angles.getAngleBlocks(), 20); // 3 × 6 rows + 2 for the half course
    // Angles stay in the straight run but replace three quarters of a block each: 150 - 15.
    EXPECT_EQ(angles.getStraightBlocks(), 138);
    EXPECT_EQ(WC::calculateAddedAngleOrTBlockWithNumberOfLocations(3), 2);

    const double outside[] = {60, 64, 68, 72, 76};
    const double angle[] = {44, 35, 37, 0, 0};
    for (int i = 0; i < 5; ++i) {
        const int32_t size = 4 + 2 * i;
        EXPECT_DOUBLE_EQ(WC::calculateLFOutsideCornersWithBlockSize(size, 3), 3 * outside[i] / 12);
        EXPECT_DOUBLE_EQ(WC::calculateLFAnglesWithBlockSize(size, 3), 3 * angle[i] / 12);
        EXPECT_DOUBLE_EQ(WC::calculateLFTsWithBlockSize(size, 3),
                         size == 6 || size == 8 ? 11.0 : 0.0);
    }
    EXPECT_DOUBLE_EQ(WC::calculateLFInsideCornersWithNumberOfInsideCorners(2), 6.9);
}

TEST(ZOLWall, SpecialCoursesOnlyInTheirSizes) {
    ZOLWall wall = wallOf(0, 6);
    wall.setLinearFeetRadius(13.3);
    EXPECT_EQ(wall.getRadiusBlocks(), 60);
    EXPECT_EQ(wall.getPartCountWithPartType(10), 0); // shown, never ordered by type
    EXPECT_EQ(wall.getHVClips(), 250);               // but they do take clips
    wall.setBlockSize(8);
    EXPECT_EQ(wall.getRadiusBlocks(), 0);

    wall.setLinearFeetCorbel(10);
    wall.setLinearFeetTapered(7);
    wall.setLinearFeetCurb(9);
    // Size, then corbel, tapered and curb blocks; pravexes are counted along the corbel in
    // every size, ticked or not.
    const int32_t bySize[][4] = {{8, 3, 2, 3}, {10, 0, 0, 3}, {12, 0, 0, 0}};
    for (const auto& [size, corbel, tapered, curb] : bySize) {
        wall.setBlockSize(size);
        EXPECT_EQ(wall.getCorbelBlocks(), corbel) << size;
        EXPECT_EQ(wall.getTaperedBlocks(), tapered) << size;
        EXPECT_EQ(wall.getStraightCurbBlocks(), curb) << size;
        EXPECT_EQ(wall.getPravexes(), 3) << size;
    }

    wall.setPelmoBrickHeight(2.6);
    wall.setPelmoBrickLength(10);
    for (int32_t perBlock : {0, 1, 3})
        EXPECT_EQ(WC::calculatePelmosWithBrickHeight(2.6, 10, perBlock), 15) << perBlock;
    wall.setPelmoPerBlock(2);
    EXPECT_EQ(wall.getPelmos(), 10);
    for (const auto& [feet, buck] : {std::pair{39.5, 10}, {39.6, 11}}) {
        wall.setLinearFeetBuck(feet);
        EXPECT_EQ(wall.getZolBuck(), buck) << feet;
    }
}

TEST(ZOLWall, CaloraLayersNarrowTheCore) {
    // Core width poured for sizes 4-12 (rows) and 0 to 5 layers (columns).
    const int32_t expected[5][6] = {{4, 4, 4, 4, 4, 4},
                                    {6, 4, 4, 4, 4, 4},
                                    {8, 6, 4, 4, 4, 4},
                                    {10, 8, 6, 4, 4, 4},
                                    {12, 10, 8, 6, 4, 4}};
    for (int i = 0; i < 5; ++i)
        for (int32_t layers = 0; layers <= 5; ++layers) {
            // 27 ft by 12 ft of wall pours exactly the core width in inches as cubic yards.
            const double yards =
                WC::calculateCubicYardsOfConcreteWithWallHeight(27, 12, 4 + 2 * i, 0, layers);
            EXPECT_NEAR(yards, expected[i][layers], 1e-9) << 4 + 2 * i << "/" << layers;
        }

    ZOLWall wall = wallOf(100);
    wall.setCaloraStickLayers(2);
    EXPECT_EQ(wall.getCaloraSticks(), 153 * 2 * 3);
    EXPECT_EQ(wall.getCaloraStickBundles(), 26); // 918 / 36 = 25.5
    EXPECT_DOUBLE_EQ(wall.getCaloraStickWeight(), 918 * 0.65);
}

TEST(ZOLWall, ClipsBundlesTrucksRowsAndRebar) {
    EXPECT_EQ(WC::calculateHVClipsWithStraightBlock(150, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), 250);
    EXPECT_EQ(WC::calculateHVClipsWithStraightBlock(151, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), 500);
    // Half blocks count half, each halving dropping its remainder.
    EXPECT_EQ(WC::calculateHVClipsWithStraightBlock(149, 3, 0, 3, 0, 0, 0, 0, 0, 0, 0), 500);
    EXPECT_EQ(WC::calculateHVClipsWithStraightBlock(148, 3, 0, 1, 0, 0, 0, 0, 0, 0, 0), 250);
    EXPECT_EQ(WC::calculateR9WithStraightBlock(10, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2), 66);

    EXPECT_EQ(WC::calculateBundlesWithBlockSize(8, 0, 144), 12);
    EXPECT_EQ(WC::calculateBundlesWithBlockSize(8, 0, 145), 13);
    EXPECT_EQ(WC::calculateBundlesWithBlockSize(8, 10, 60), 0); // no radius blocks in 8"

    // One bundle in each position at 8 and 6 inches: the space units each one takes.
    const double units8[15] = {55, 55, 41, 41, 53, 41, 55, 55, 54, 55, 0, 14, 17, 11, 17};
    const double units6[15] = {46, 46, 53, 53, 40, 41, 0, 0, 46, 46, 39, 12, 17, 11, 17};
    for (int k = 0; k < 15; ++k) {
        EXPECT_DOUBLE_EQ(trucks(8, k, 1), units8[k] / 2520.0) << "position " << k;
        EXPECT_DOUBLE_EQ(trucks(6, k, 1), units6[k] / 2520.0) << "position " << k;
    }
    // Each bundle count is rounded up as a whole, not per bundle.
    EXPECT_DOUBLE_EQ(trucks(8, 0, 2), 109 / 2520.0);

    // Rows and rebar truncate.
    EXPECT_EQ(WC::calculateRowsWithWallHeight(9.334), 7);
    EXPECT_EQ(WC::calculateRowsWithWallHeight(9.3), 6);
    EXPECT_EQ(WC::calculateRebarWithWallHeight(8, 0), 0.0);
    EXPECT_EQ(WC::calculateBracingWithWallLength(6.01), 2);
    EXPECT_EQ(WC::calculateStraightBlockWithWallLength(10, 0, 0, 6, 100, 0), 0);
}

TEST(ZOLWall, WritesEveryFieldButTheWasteAndReadsThemBack) {
    ZOLWall wall = expectRecordFile<ZOLWall>("wall", kFilled, 45, 69);
    // The waste is not kept in the file: see the workbook reader's tests. How loosely the texts
    // read (leading numbers, size words, switches) is pinned on the shared helpers.
    EXPECT_EQ(wall.wastePercentage(), 0.02);
    wall.setBlockSize(7);
    EXPECT_NE(wall.getXMLString().find("<BlockSize>(null)</BlockSize>"), std::string::npos);
}
