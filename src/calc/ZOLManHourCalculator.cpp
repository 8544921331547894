#include "calc/ZOLManHourCalculator.h"

#include "io/ZOLNumeric.h"

#include <array>

namespace {
constexpr double kHoursPerDay = 8.5;

// A band scale: the first limit the ratio does not exceed gives its rating, above every
// limit the last rating applies. A ratio that is not a number passes no test and rates last.
template <std::size_t N>
int32_t bandRating(double ratio, const std::array<double, N>& limits,
                   const std::array<int32_t, N + 1>& ratings) {
    for (std::size_t i = 0; i < N; ++i)
        if (ratio <= limits[i])
            return ratings[i];
    return ratings[N];
}
} // namespace

int32_t ZOLManHourCalculator::getSqFtWallRatingWithSqFtOfWall(double sqFtOfWall) {
    // Larger jobs rate easier.
    if (sqFtOfWall >= 6000)
        return 1;
    if (sqFtOfWall >= 4000)
        return 2;
    if (sqFtOfWall >= 2000)
        return 3;
    if (sqFtOfWall >= 1000)
        return 4;
    return 5;
}

int32_t
ZOLManHourCalculator::getCornerTsRatingWithNumberOfCornersAndTs(int32_t numberOfCornersAndTs,
                                                                double sqFtOfWall) {
    if (numberOfCornersAndTs == 0 || sqFtOfWall == 0)
        return 1;
    // The first band is narrow and the second wide on purpose.
    return bandRating<4>(numberOfCornersAndTs / sqFtOfWall, {0.003, 0.045, 0.06, 0.07},
                         {1, 3, 5, 7, 9});
}

int32_t ZOLManHourCalculator::getOpeningsRatingWithSqFtOfOpenings(double sqFtOfOpenings,
                                                                  double sqFtOfWall) {
    if (sqFtOfOpenings == 0 || sqFtOfWall == 0)
        return 1;
    return bandRating<4>(sqFtOfOpenings / sqFtOfWall, {0.03, 0.06, 0.09, 0.2}, {1, 3, 5, 7, 9});
}

int32_t ZOLManHourCalculator::getCorbelCurbTaperRatingWithLinealFeet(double linealFeet,
                                                                     double sqFtOfWall) {
    if (sqFtOfWall == 0)
        return 1;
    return bandRating<4>(linealFeet / sqFtOfWall, {0.02, 0.05, 0.1, 0.15}, {1, 3, 5, 7, 9});
}

int32_t ZOLManHourCalculator::getWallHeightRatingWithWallHeight(double wallHeight) {
    // Walls between 12 and 20 feet rate 8, one short of the tallest.
    return bandRating<4>(wallHeight, {4, 10, 12, 20}, {1, 3, 5, 8, 9});
}

int32_t ZOLManHourCalculator::getCrewSizeRatingWithCrewSize(int32_t crewSize, double sqFtOfWall) {
    if (sqFtOfWall == 0)
        return 3;
    return bandRating<4>(crewSize / sqFtOfWall, {0.003, 0.0045, 0.006, 0.0075}, {3, 4, 5, 7, 9});
}

int32_t
ZOLManHourCalculator::getOtherTurnsRatingWithNumberOfOtherTurns(int32_t numberOfOtherTurns) {
    return numberOfOtherTurns;
}

double ZOLManHourCalculator::getManHourRateWithRating(int32_t rating) {
    // Two ratings to a step from 16 to 45; even steps of 0.005 up to 0.1, uneven after.
    static constexpr std::array<double, 15> kRates = {0.055, 0.06,  0.065, 0.07,  0.075,
                                                      0.08,  0.085, 0.09,  0.095, 0.1,
                                                      0.11,  0.12,  0.125, 0.13,  0.14};
    if (rating <= 15)
        return 0.05;
    if (rating >= 46)
        return 0.15;
    return kRates[static_cast<std::size_t>((rating - 16) / 2)];
}

double ZOLManHourCalculator::getHoursToCompleteWithRating(int32_t rating, double sqFtOfWall) {
    return getManHourRateWithRating(rating) * sqFtOfWall;
}

double ZOLManHourCalculator::getDaysToCompleteWithRating(int32_t rating, double sqFtOfWall,
                                                         int32_t crewSize) {
    if (crewSize == 0)
        return 0.0;
    return getHoursToCompleteWithRating(rating, sqFtOfWall) / (crewSize * kHoursPerDay);
}

int32_t ZOLManHourCalculator::calculateManHoursWithGrossSqFt(double grossSqFt,
                                                             double manHourMultiplier) {
    return ZOLNumeric::ceilToInt(grossSqFt * manHourMultiplier);
}

int32_t ZOLManHourCalculator::calculateDaysWithHours(int32_t hours, int32_t crewSize) {
    if (hours < 1)
        return 1; // a job takes at least one day
    return ZOLNumeric::ceilToInt(hours / (crewSize * kHoursPerDay));
}

int32_t ZOLManHourCalculator::getComplexityRatingIndex(int32_t rating) {
    // Ratings 1 to 9; those not in the list select "Average".
    static constexpr std::array<int32_t, 9> kIndexes = {0, 1, 2, 2, 2, 3, 2, 2, 4};
    if (rating < 1 || rating > 9)
        return 2;
    return kIndexes[static_cast<std::size_t>(rating - 1)];
}

int32_t ZOLManHourCalculator::getExperienceRatingIndex(int32_t rating) {
    if (rating == 2)
        return 2;
    if (rating == 9)
        return 0;
    return 1;
}

int32_t ZOLManHourCalculator::getConditionRatingIndex(int32_t rating) {
    if (rating == 3)
        return 2;
    if (rating == 9)
        return 0;
    return 1;
}

int32_t ZOLManHourCalculator::getComplexityRatingForIndex(uint64_t index) {
    static constexpr std::array<int32_t, 5> kRatings = {1, 2, 3, 6, 9};
    return index < kRatings.size() ? kRatings[index] : 3;
}

int32_t ZOLManHourCalculator::getExperienceRatingForIndex(uint64_t index) {
    static constexpr std::array<int32_t, 3> kRatings = {9, 5, 2};
    return index < kRatings.size() ? kRatings[index] : 5;
}

int32_t ZOLManHourCalculator::getConditionRatingForIndex(uint64_t index) {
    static constexpr std::array<int32_t, 3> kRatings = {9, 5, 3};
    return index < kRatings.size() ? kRatings[index] : 5;
}

std::string ZOLManHourCalculator::getComplexityRatingText(int32_t rating) {
    switch (rating) {
    case 1:
        return "None";
    case 2:
        return "Minor";
    case 6:
        return "Above Average";
    case 9:
        return "Intense";
    default:
        return "Average";
    }
}

std::string ZOLManHourCalculator::getExperienceRatingText(int32_t rating) {
    switch (rating) {
    case 2:
        return "High";
    case 9:
        return "Low";
    default:
        return "Average";
    }
}

std::string ZOLManHourCalculator::getConditionRatingText(int32_t rating) {
    switch (rating) {
    case 3:
        return "Ideal";
    case 9:
        return "Poor";
    default:
        return "Average";
    }
}
