#pragma once
#include <cstdint>
#include <string>
#include <vector>

// Shared arithmetic of the estimator: the wall-height lists offered by the entry screens, the
// feet-and-inches text, snapping onto those lists, and area, volume and unit conversions.
class ZOLCalculatorMaster {
public:
    ZOLCalculatorMaster() = delete;

    static const std::vector<double>& getAvailableWallHeightsAtSixteenInches();
    static const std::vector<double>& getAvailableWallHeightsAtFourInches();
    // An index past the list is the caller's fault and throws std::out_of_range.
    static double getWallHeightValueAtSixteenInchesForIndex(uint64_t index);
    static double getWallHeightValueAtFourInchesForIndex(uint64_t index);
    static std::string getWallHeightTextAtSixteenInchesForIndex(uint64_t index);
    static std::string getWallHeightTextAtFourInchesForIndex(uint64_t index);

    static std::string convertFeetToText(double feet);
    static double convertWallHeightToFourInchCompatible(double feet);
    static double convertWallHeightToSixteenInchCompatible(double feet);

    static double calculateSqFtWithWidth(double width, double height, bool inInches);
    static double calculateLFWidthWidth(double width, double height, bool inInches);
    static double calculateVolumeRectWithLength(double length, double width, double height);
    static double calculateVolumeCylinderWithRadius(double radius, double height);
    static double convertCubicYardsToMeters(double yards);
    static double convertCubicMetersToYards(double meters);
    static double convertCubicInchesToYards(double inches);
    static double convertCubicYardsToInches(double yards);
    static double convertCubicInchesToFeet(double inches);
};
