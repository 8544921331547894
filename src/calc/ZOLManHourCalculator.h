#pragma once
#include <cstdint>
#include <string>

// The labour scales: each fact about the job rates from easy (1) to hard (9), the ratings add
// up to a project rating, and the project rating picks the man hours per square foot of wall.
class ZOLManHourCalculator {
public:
    ZOLManHourCalculator() = delete;

    static int32_t getSqFtWallRatingWithSqFtOfWall(double sqFtOfWall);
    static int32_t getCornerTsRatingWithNumberOfCornersAndTs(int32_t numberOfCornersAndTs,
                                                             double sqFtOfWall);
    static int32_t getOpeningsRatingWithSqFtOfOpenings(double sqFtOfOpenings, double sqFtOfWall);
    static int32_t getCorbelCurbTaperRatingWithLinealFeet(double linealFeet, double sqFtOfWall);
    static int32_t getWallHeightRatingWithWallHeight(double wallHeight);
    static int32_t getCrewSizeRatingWithCrewSize(int32_t crewSize, double sqFtOfWall);
    static int32_t getOtherTurnsRatingWithNumberOfOtherTurns(int32_t numberOfOtherTurns);

    // Man hours per square foot of wall for a total project rating.
    static double getManHourRateWithRating(int32_t rating);
    static double getHoursToCompleteWithRating(int32_t rating, double sqFtOfWall);
    // Days of 8.5 hours for the crew; no crew gives 0.0.
    static double getDaysToCompleteWithRating(int32_t rating, double sqFtOfWall, int32_t crewSize);

    // Whole-number forms: hours rounded up, and days rounded up with at least one day.
    static int32_t calculateManHoursWithGrossSqFt(double grossSqFt, double manHourMultiplier);
    static int32_t calculateDaysWithHours(int32_t hours, int32_t crewSize);

    // The three judgement lists: the rating stored in the record, the position in the list the
    // entry screen shows, and the word for the rating. An index past the list (or -1, no
    // selection, seen as unsigned) gives the list's middle rating.
    static int32_t getComplexityRatingIndex(int32_t rating);
    static int32_t getExperienceRatingIndex(int32_t rating);
    static int32_t getConditionRatingIndex(int32_t rating);
    static int32_t getComplexityRatingForIndex(uint64_t index);
    static int32_t getExperienceRatingForIndex(uint64_t index);
    static int32_t getConditionRatingForIndex(uint64_t index);
    static std::string getComplexityRatingText(int32_t rating);
    static std::string getExperienceRatingText(int32_t rating);
    static std::string getConditionRatingText(int32_t rating);
};
