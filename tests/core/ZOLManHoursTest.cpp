// Labour: every rating scale at its band edges, the total project rating, the man-hour rate
// table, hours and days, the whole-number forms, the three judgement lists and the file.
#include "model/ZOLManHours.h"
#include "calc/ZOLManHourCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace {
using Calc = ZOLManHourCalculator;

struct Band {
    double a, b;
    int32_t rating;
};

// Codes 70 to 80 as the file reader hands them over.
const CodeTexts kFilled = {{70, "2450.5"}, {71, "14"},       {72, "180.25"}, {73, "36"},
                           {74, "10.667"}, {75, "AboveAvg"}, {76, "High"},   {77, "Ideal"},
                           {78, "4"},      {79, "32.75"},    {80, "4"}};
} // namespace

TEST(ZOLManHourCalculator, FreshRecordRatingScalesAtTheirBandEdgesAndTheRateTable) {
    ZOLManHours h; // a crew of 6, 8 feet high, nothing else
    EXPECT_EQ(h.getCornersAndTsRating() + h.getLinearFeetCorbelCurbTaperedRating() +
                  h.getSquareFeetOfOpeningsRating(),
              3);
    EXPECT_EQ(h.getCrewSizeRating(), 3);
    EXPECT_EQ(h.getSquareFeetOfWallRating(), 5);
    EXPECT_EQ(h.getWallHeightRating(), 3);
    EXPECT_EQ(h.getTotalProjectRating(), 27);
    EXPECT_EQ(h.getManHourRate(), 0.08);
    EXPECT_EQ(h.getHoursToComplete() + h.getDaysToComplete(), 0.0);

    // Rating scales at their band edges.
    const Band sqFt[] = {{6000, 0, 1}, {5999.9, 0, 2}, {4000, 0, 2},  {3999.99, 0, 3},
                         {2000, 0, 3}, {1000, 0, 4},   {999.99, 0, 5}};
    for (const Band& x : sqFt)
        EXPECT_EQ(Calc::getSqFtWallRatingWithSqFtOfWall(x.a), x.rating) << x.a;
    // Corners and Ts per square foot: a narrow first band, a wide second one.
    const Band corners[] = {{50, 0, 1},    {3, 1000, 1},  {4, 1000, 3}, {45, 1000, 3},
                            {451, 1e4, 5}, {70, 1000, 7}, {71, 1000, 9}};
    for (const Band& x : corners)
        EXPECT_EQ(Calc::getCornerTsRatingWithNumberOfCornersAndTs(static_cast<int32_t>(x.a), x.b),
                  x.rating)
            << x.a << " / " << x.b;
    const Band openings[] = {{500, 0, 1},   {30, 1000, 1},  {31, 1000, 3},
                             {90, 1000, 5}, {200, 1000, 7}, {201, 1000, 9}};
    for (const Band& x : openings)
        EXPECT_EQ(Calc::getOpeningsRatingWithSqFtOfOpenings(x.a, x.b), x.rating) << x.a;
    const Band corbel[] = {{500, 0, 1},    {20, 1000, 1},  {21, 1000, 3},
                           {100, 1000, 5}, {150, 1000, 7}, {151, 1000, 9}};
    for (const Band& x : corbel)
        EXPECT_EQ(Calc::getCorbelCurbTaperRatingWithLinealFeet(x.a, x.b), x.rating) << x.a;
    // The fourth height band is 8, not 7.
    const Band height[] = {{4, 0, 1},    {4.01, 0, 3}, {10, 0, 3},   {12, 0, 5},
                           {12.5, 0, 8}, {20, 0, 8},   {20.01, 0, 9}};
    for (const Band& x : height)
        EXPECT_EQ(Calc::getWallHeightRatingWithWallHeight(x.a), x.rating) << x.a;
    const Band crew[] = {{6, 0, 3},    {3, 1000, 3}, {4, 1000, 4}, {45, 1e4, 4},
                         {6, 1000, 5}, {7, 1000, 7}, {8, 1000, 9}};
    for (const Band& x : crew)
        EXPECT_EQ(Calc::getCrewSizeRatingWithCrewSize(static_cast<int32_t>(x.a), x.b), x.rating)
            << x.a << " / " << x.b;

    // The rate table by total rating: steps of two ratings, each at its first entry; 0.005 a step
    // up to 35, then uneven.
    const std::pair<int32_t, double> table[] = {
        {15, 0.05}, {16, 0.055}, {17, 0.055}, {18, 0.06},  {20, 0.065}, {22, 0.07}, {24, 0.075},
        {26, 0.08}, {28, 0.085}, {30, 0.09},  {32, 0.095}, {34, 0.1},   {35, 0.1},  {36, 0.11},
        {38, 0.12}, {40, 0.125}, {42, 0.13},  {44, 0.14},  {46, 0.15},  {47, 0.15}};
    for (const auto& [rating, rate] : table)
        EXPECT_EQ(Calc::getManHourRateWithRating(rating), rate) << "rating " << rating;
}

TEST(ZOLManHours, TotalAddsEveryRatingOnceAndGivesHoursAndDaysInBothForms) {
    // Through the file's codes: 1000 sq ft of wall (rates 4, and a crew of 6 rates 5), 45 corners
    // and Ts (3), 90 sq ft of openings (5), 150 ft of corbel, curb and taper (7), 20 ft high (8),
    // intense rebar (9), a highly experienced crew (2), ideal site (3) and 11 other turns.
    const CodeTexts rated = {{70, "1000"},    {71, "45"},   {72, "90"},    {73, "150"}, {74, "20"},
                             {75, "Intense"}, {76, "High"}, {77, "Ideal"}, {78, "11"}};
    const ZOLManHours h = readRecord<ZOLManHours>(rated);
    EXPECT_EQ(h.getTotalProjectRating(), 4 + 5 + 3 + 5 + 7 + 8 + 9 + 2 + 3 + 11);

    // 1000 sq ft at a total of 29, in hours and days for six: see zolest calc manhours.
    EXPECT_EQ(Calc::getDaysToCompleteWithRating(30, 1000, 0), 0.0); // no crew

    // The whole-number forms: man hours rounded up, whole days of 8.5 hours each for the crew,
    // at least one.
    EXPECT_EQ(Calc::calculateManHoursWithGrossSqFt(100.5, 1), 101);
    const int32_t days[][3] = {{0, 6, 1}, {51, 6, 1}, {52, 6, 2}};
    for (const auto& [hours, crew, whole] : days)
        EXPECT_EQ(Calc::calculateDaysWithHours(hours, crew), whole) << hours << " / " << crew;
}

TEST(ZOLManHourCalculator, JudgementListsConvertBetweenIndexRatingAndWord) {
    const int32_t complexityIndex[] = {2, 0, 1, 2, 2, 2, 3, 2, 2, 4, 2}; // ratings 0 to 10
    const int32_t conditionIndex[] = {1, 1, 1, 2, 1, 1, 1, 1, 1, 0, 1};
    const int32_t experienceIndex[] = {1, 1, 2, 1, 1, 1, 1, 1, 1, 0, 1};
    for (int32_t rating = 0; rating <= 10; ++rating) {
        EXPECT_EQ(Calc::getComplexityRatingIndex(rating), complexityIndex[rating]) << rating;
        EXPECT_EQ(Calc::getConditionRatingIndex(rating), conditionIndex[rating]) << rating;
        EXPECT_EQ(Calc::getExperienceRatingIndex(rating), experienceIndex[rating]) << rating;
    }

    // Past the list, and with nothing selected, the middle judgement.
    const uint64_t index[] = {0, 1, 2, 3, 4, 5, static_cast<uint64_t>(-1)};
    const int32_t complexity[] = {1, 2, 3, 6, 9, 3, 3}, experience[] = {9, 5, 2, 5, 5, 5, 5},
                  condition[] = {9, 5, 3, 5, 5, 5, 5};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(Calc::getComplexityRatingForIndex(index[i]), complexity[i]) << index[i];
        EXPECT_EQ(Calc::getExperienceRatingForIndex(index[i]), experience[i]) << index[i];
        EXPECT_EQ(Calc::getConditionRatingForIndex(index[i]), condition[i]) << index[i];
    }

    const char* complexityWords[] = {"Average", "None",          "Minor",   "Average", "Average",
                                     "Average", "Above Average", "Average", "Average", "Intense"};
    for (int32_t rating = 0; rating <= 9; ++rating)
        EXPECT_EQ(Calc::getComplexityRatingText(rating), complexityWords[rating]);
    for (const auto& [rating, word] : {std::pair{2, "High"}, {9, "Low"}, {3, "Average"}})
        EXPECT_EQ(Calc::getExperienceRatingText(rating), word);
    for (const auto& [rating, word] : {std::pair{3, "Ideal"}, {9, "Poor"}, {2, "Average"}})
        EXPECT_EQ(Calc::getConditionRatingText(rating), word);
}

TEST(ZOLManHours, WritesAndReadsJudgementsAsTheFilesWords) {
    expectRecordFile<ZOLManHours>("manhours", kFilled, 70, 80);
    ZOLManHours h;
    h.setRebarComplexity(4);
    h.setCrewExperience(3);
    h.setSiteConditions(2);
    EXPECT_NE(h.getXMLString().find("<RebarComplexity>(null)</RebarComplexity>\n\t\t\t\t"
                                    "<CrewExperience>(null)</CrewExperience>\n\t\t\t\t"
                                    "<SiteConditions>(null)</SiteConditions>"),
              std::string::npos);

    // Codes 75, 76 and 77 in turn ("AboveAvg", "High" and "Ideal": the filled record above).
    int32_t (ZOLManHours::*const judgement[])() const = {
        &ZOLManHours::rebarComplexity, &ZOLManHours::crewExperience, &ZOLManHours::siteConditions};
    const std::tuple<int32_t, const char*, int32_t> words[] = {
        {75, "None", 1},    {75, "Minor", 2},   {75, "Average", 3}, {76, "Average", 5},
        {77, "Average", 5}, {75, "Intense", 9}, {76, "Low", 9},     {77, "Poor", 9}};
    for (const auto& [code, word, rating] : words) {
        h.setValue(word, code);
        EXPECT_EQ((h.*judgement[code - 75])(), rating) << code << " " << word;
    }
    // Words the element does not use leave the judgement as it was: the screen's
    // "Above Average", the written "(null)", another element's word, an absent text.
    for (const char* other : {"Above Average", "(null)", "intense", "9", ""})
        for (int32_t code : {75, 76, 77})
            h.setValue(other, code);
    h.setValue("Ideal", 76);
    h.setValue("High", 77);
    h.setValue(std::nullopt, 75);
    for (int32_t code : {75, 76, 77})
        EXPECT_EQ((h.*judgement[code - 75])(), 9) << code;
}
