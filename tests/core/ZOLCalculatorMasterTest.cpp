// Wall-height lists, feet-and-inches text and snapping.
#include "calc/ZOLCalculatorMaster.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <utility>

using CM = ZOLCalculatorMaster;

// tests/data/wall-heights.txt holds both lists entry by entry with their texts, decimals exactly
// as the product gives them (2.67 beside 10.667); the 4-inch list has gaps below 9' 4".
TEST(ZOLCalculatorMaster, HeightListsKeepTheProductsEntries) {
    std::ostringstream lists;
    auto list = [&lists](const char* name, const std::vector<double>& heights,
                         double (*valueAt)(uint64_t), std::string (*textAt)(uint64_t)) {
        for (uint64_t i = 0; i < heights.size(); ++i) {
            char feet[32];
            *std::to_chars(feet, feet + sizeof feet - 1, heights[i]).ptr = '\0';
            EXPECT_EQ(valueAt(i), heights[i]);
            lists << name << "\" " << i << ' ' << feet << ' ' << textAt(i) << '\n';
        }
    };
    list("16", CM::getAvailableWallHeightsAtSixteenInches(),
         CM::getWallHeightValueAtSixteenInchesForIndex,
         CM::getWallHeightTextAtSixteenInchesForIndex);
    list("4", CM::getAvailableWallHeightsAtFourInches(), CM::getWallHeightValueAtFourInchesForIndex,
         CM::getWallHeightTextAtFourInchesForIndex);
    expectGoldenFile("wall-heights.txt", lists.str());
    EXPECT_THROW(CM::getWallHeightValueAtSixteenInchesForIndex(31), std::out_of_range);
}

TEST(ZOLCalculatorMaster, FeetToTextTruncates) {
    const std::pair<double, const char*> texts[] = {
        {8.0, "8' 0\""},   {1.334, "1' 4\""},  {2.67, "2' 8\""},
        {9.667, "9' 8\""}, {11.67, "11' 8\""}, {2.666, "2' 7\""},
        {0.0, "0' 0\""},   {42.0, "42' 0\""},  {3.45, "3' 5\""}};
    for (const auto& [feet, text] : texts)
        EXPECT_EQ(CM::convertFeetToText(feet), text) << feet;
}

// Heights past the list, below its first entry or not a number fall to the last entry.
TEST(ZOLCalculatorMaster, SnappingFindsTheNearestEntryOrFallsToTheLast) {
    const std::pair<double, double> four[] = {{9.1, 9.334}, {8.167, 8.0},         {50.0, 42.0},
                                              {0.5, 42.0},  {std::nan(""), 42.0}, {3.5, 3.0}};
    for (const auto& [height, snapped] : four)
        EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(height), snapped) << height;
    for (const auto& [height, snapped] : {std::pair{50.0, 41.334}, {0.5, 41.334}, {8.1, 8.0}})
        EXPECT_EQ(CM::convertWallHeightToSixteenInchCompatible(height), snapped) << height;
}
