#pragma once
#include <string>
#include <vector>

// Shared arithmetic of the estimator: the wall-height lists offered by the entry screens, the
// feet-and-inches text, snapping onto those lists, and area, volume and unit conversions.
class ZOLCalculatorMaster {
public:
    ZOLCalculatorMaster() = delete;

    static const std::vector<double>& getAvailableWallHeightsAtSixteenInches();
    static const std::vector<double>& getAvailableWallHeightsAtFourInches();

    static std::string convertFeetToText(double feet);
    static double convertWallHeightToFourInchCompatible(double feet);

    static double calculateSqFtWithWidth(double width, double height, bool inInches);
    static double calculateVolumeRectWithLength(double length, double width, double height);
    static double calculateVolumeCylinderWithRadius(double radius, double height);
    static double convertCubicYardsToMeters(double yards);
    static double convertCubicMetersToYards(double meters);
    static double convertCubicInchesToYards(double inches);
    static double convertCubicYardsToInches(double yards);
    static double convertCubicInchesToFeet(double inches);
};
