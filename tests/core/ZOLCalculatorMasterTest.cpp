// Wall-height lists, feet-and-inches text, snapping, and the area/volume conversions.
#include "calc/ZOLCalculatorMaster.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

using CM = ZOLCalculatorMaster;

TEST(ZOLCalculatorMaster, HeightListsKeepTheProductsEntries) {
    const auto& sixteen = CM::getAvailableWallHeightsAtSixteenInches();
    const auto& four = CM::getAvailableWallHeightsAtFourInches();
    ASSERT_EQ(sixteen.size(), 31u);
    ASSERT_EQ(four.size(), 112u);
    EXPECT_EQ(sixteen[5], 8.0);
    EXPECT_EQ(sixteen.back(), 41.334);
    EXPECT_EQ(four[13], 9.334);
    EXPECT_EQ(four.back(), 42.0);
    for (double gap : {3.334, 3.667, 4.667, 5.0, 6.0, 6.334, 7.667, 9.0})
        for (double h : four)
            EXPECT_GT(std::fabs(h - gap), 0.01) << gap << " must not be offered";
    // Every 16-inch entry prints as a whole number of inches in steps of 16.
    for (std::size_t i = 0; i < sixteen.size(); ++i) {
        const int inches = static_cast<int>((i + 1) * 16);
        const std::string expected =
            std::to_string(inches / 12) + "' " + std::to_string(inches % 12) + "\"";
        EXPECT_EQ(CM::getWallHeightTextAtSixteenInchesForIndex(i), expected);
    }
    // From 9' 4" up, the 4-inch list is every 4-inch step, each printing exactly.
    for (std::size_t i = 13; i < four.size(); ++i) {
        const int inches = 112 + static_cast<int>(i - 13) * 4;
        EXPECT_EQ(CM::getWallHeightTextAtFourInchesForIndex(i),
                  std::to_string(inches / 12) + "' " + std::to_string(inches % 12) + "\"");
    }
    EXPECT_THROW(CM::getWallHeightValueAtSixteenInchesForIndex(31), std::out_of_range);
}

TEST(ZOLCalculatorMaster, FeetToTextTruncates) {
    EXPECT_EQ(CM::convertFeetToText(8.0), "8' 0\"");
    EXPECT_EQ(CM::convertFeetToText(1.334), "1' 4\"");
    EXPECT_EQ(CM::convertFeetToText(2.67), "2' 8\"");
    EXPECT_EQ(CM::convertFeetToText(9.667), "9' 8\"");
    EXPECT_EQ(CM::convertFeetToText(11.67), "11' 8\"");
    EXPECT_EQ(CM::convertFeetToText(2.666), "2' 7\"");
    EXPECT_EQ(CM::convertFeetToText(0.0), "0' 0\"");
    EXPECT_EQ(CM::convertFeetToText(42.0), "42' 0\"");
    EXPECT_EQ(CM::convertFeetToText(3.45), "3' 5\"");
    EXPECT_EQ(CM::convertFeetToText(-1.5), "-1' -6\"");
    EXPECT_EQ(CM::convertFeetToText(std::nan("")), "0' 0\"");
    EXPECT_EQ(CM::convertFeetToText(1e300), "2147483647' 7\"");
}

TEST(ZOLCalculatorMaster, SnappingFindsTheNearestEntryOrFallsToTheLast) {
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(9.1), 9.334);
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(8.167), 8.0);
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(50.0), 42.0);
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(0.5), 42.0);
    EXPECT_EQ(CM::convertWallHeightToSixteenInchCompatible(50.0), 41.334);
    EXPECT_EQ(CM::convertWallHeightToSixteenInchCompatible(0.5), 41.334);
    EXPECT_EQ(CM::convertWallHeightToSixteenInchCompatible(8.1), 8.0);
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(std::nan("")), 42.0);
    EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(3.5), 3.0);
}

TEST(ZOLCalculatorMaster, AreasVolumesAndUnits) {
    EXPECT_DOUBLE_EQ(CM::calculateSqFtWithWidth(36, 48, true), 12.0);
    EXPECT_DOUBLE_EQ(CM::calculateSqFtWithWidth(3, 4, false), 12.0);
    EXPECT_DOUBLE_EQ(CM::calculateLFWidthWidth(36, 48, true), 14.0);
    EXPECT_DOUBLE_EQ(CM::calculateLFWidthWidth(3, 4, false), 14.0);
    EXPECT_DOUBLE_EQ(CM::calculateVolumeRectWithLength(2, 3, 4), 24.0);
    EXPECT_DOUBLE_EQ(CM::calculateVolumeCylinderWithRadius(6, 120), 36 * 3.141592653589793 * 120);
    EXPECT_DOUBLE_EQ(CM::convertCubicYardsToMeters(1.0), 0.76455485798);
    EXPECT_NEAR(CM::convertCubicMetersToYards(CM::convertCubicYardsToMeters(5.0)), 5.0, 1e-12);
    EXPECT_NEAR(CM::convertCubicInchesToYards(46656.0), 1.0, 1e-6);
    EXPECT_NEAR(CM::convertCubicYardsToInches(CM::convertCubicInchesToYards(777.0)), 777.0, 1e-9);
    EXPECT_NEAR(CM::convertCubicInchesToFeet(1728.0), 1.0, 1e-6);
}
