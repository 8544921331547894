// Wall-height lists, feet-and-inches text and snapping.
#include "calc/ZOLCalculatorMaster.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <sstream>
#include <utility>

using CM = ZOLCalculatorMaster;

// tests/data/wall-heights.txt holds both lists entry by entry with their texts, decimals exactly
// as the product gives them (2.67 beside 10.667); the 4-inch list has gaps below 9' 4".
TEST(ZOLCalculatorMaster, HeightListsFeetToTextAndSnapping) {
    std::ostringstream lists;
    auto list = [&lists](const char* name, const std::vector<double>& heights) {
        for (uint64_t i = 0; i < heights.size(); ++i) {
            char feet[32];
            *std::to_chars(feet, feet + sizeof feet - 1, heights[i]).ptr = '\0';
            lists << name << "\" " << i << ' ' << feet << ' ' << CM::convertFeetToText(heights[i])
                  << '\n';
        }
    };
    list("16", CM::getAvailableWallHeightsAtSixteenInches());
    list("4", CM::getAvailableWallHeightsAtFourInches());
    expectGoldenFile("wall-heights.txt", lists.str());

    // Feet to text truncates.
    const std::pair<double, const char*> texts[] = {
        {8.0, "8' 0\""},   {1.334, "1' 4\""},  {2.67, "2' 8\""},
        {9.667, "9' 8\""}, {11.67, "11' 8\""}, {2.666, "2' 7\""},
        {0.0, "0' 0\""},   {42.0, "42' 0\""},  {3.45, "3' 5\""}};
    for (const auto& [feet, text] : texts)
        EXPECT_EQ(CM::convertFeetToText(feet), text) << feet;

    // Snapping finds the nearest entry; heights past the list, below its first entry or not a
    // number fall to the last entry.
    const std::pair<double, double> four[] = {{9.1, 9.334}, {8.167, 8.0},         {50.0, 42.0},
                                              {0.5, 42.0},  {std::nan(""), 42.0}, {3.5, 3.0}};
    for (const auto& [height, snapped] : four)
        EXPECT_EQ(CM::convertWallHeightToFourInchCompatible(height), snapped) << height;
}
