#include "calc/ZOLCalculatorMaster.h"

#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"

#include <cmath>

namespace {

constexpr double kCubicYardsToMeters = 0.76455485798;
constexpr double kCubicInchesToYards = 2.1433470508e-05;
constexpr double kCubicInchesToFeet = 0.000578703704;

// Nearest entry of the list, searched only when some entry shares the height's whole foot;
// otherwise the list's last entry. Ties keep the earlier entry.
double snapToList(const std::vector<double>& list, double feet) {
    const double foot = std::floor(feet);
    bool sameFoot = false;
    for (double entry : list)
        if (std::floor(entry) == foot)
            sameFoot = true;
    if (!sameFoot)
        return list.back();
    double best = list.back();
    double bestDistance = 9999.0;
    for (double entry : list) {
        const double distance = std::fabs(entry - feet);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = entry;
        }
    }
    return best;
}

} // namespace

const std::vector<double>& ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches() {
    // The heights keep their written decimals: the feet-and-inches text truncates them.
    static const std::vector<double> heights = {
        1.334,  2.67,   4.0,    5.334,  6.67,   8.0,    9.334,  10.667, 12.0,   13.334, 14.667,
        16.0,   17.334, 18.667, 20.0,   21.334, 22.667, 24.0,   25.334, 26.667, 28.0,   29.334,
        30.667, 32.0,   33.334, 34.667, 36.0,   37.334, 38.667, 40.0,   41.334};
    return heights;
}

const std::vector<double>& ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches() {
    // The product's list: below 9' 4" it skips 3' 4", 3' 8", 4' 8", 5' 0", 6' 0", 6' 4",
    // 7' 8" and 9' 0".
    static const std::vector<double> heights = {
        1.334, 2.67,   3.0,   4.0,  4.334,  5.334,  5.667, 6.67,   7.0,   7.334, 8.0,    8.334,
        8.67,  9.334,  9.667, 10.0, 10.334, 10.667, 11.0,  11.334, 11.67, 12.0,  12.334, 12.67,
        13.0,  13.334, 13.67, 14.0, 14.334, 14.667, 15.0,  15.334, 15.67, 16.0,  16.334, 16.67,
        17.0,  17.334, 17.67, 18.0, 18.334, 18.667, 19.0,  19.334, 19.67, 20.0,  20.334, 20.67,
        21.0,  21.334, 21.67, 22.0, 22.334, 22.667, 23.0,  23.334, 23.67, 24.0,  24.334, 24.67,
        25.0,  25.334, 25.67, 26.0, 26.334, 26.667, 27.0,  27.334, 27.67, 28.0,  28.334, 28.67,
        29.0,  29.334, 29.67, 30.0, 30.334, 30.667, 31.0,  31.334, 31.67, 32.0,  32.334, 32.67,
        33.0,  33.334, 33.67, 34.0, 34.334, 34.667, 35.0,  35.334, 35.67, 36.0,  36.334, 36.67,
        37.0,  37.334, 37.67, 38.0, 38.334, 38.667, 39.0,  39.334, 39.67, 40.0,  40.334, 40.67,
        41.0,  41.334, 41.67, 42.0};
    return heights;
}

std::string ZOLCalculatorMaster::convertFeetToText(double feet) {
    const int32_t wholeFeet = ZOLNumeric::toInt(feet);
    const int32_t totalInches = ZOLNumeric::toInt(feet * 12);
    const int32_t inches = ZOLNumeric::wrapMod(totalInches, 12);
    return ZOLFormat::format("%d' %d\"", wholeFeet, inches);
}

double ZOLCalculatorMaster::convertWallHeightToFourInchCompatible(double feet) {
    return snapToList(getAvailableWallHeightsAtFourInches(), feet);
}

double ZOLCalculatorMaster::calculateSqFtWithWidth(double width, double height, bool inInches) {
    if (inInches)
        return (height / 12) * (width / 12);
    return height * width;
}

double ZOLCalculatorMaster::calculateVolumeRectWithLength(double length, double width,
                                                          double height) {
    return length * width * height;
}

double ZOLCalculatorMaster::calculateVolumeCylinderWithRadius(double radius, double height) {
    return radius * radius * 3.141592653589793 * height;
}

double ZOLCalculatorMaster::convertCubicYardsToMeters(double yards) {
    return yards * kCubicYardsToMeters;
}

double ZOLCalculatorMaster::convertCubicMetersToYards(double meters) {
    return meters / kCubicYardsToMeters;
}

double ZOLCalculatorMaster::convertCubicInchesToYards(double inches) {
    return inches * kCubicInchesToYards;
}

double ZOLCalculatorMaster::convertCubicYardsToInches(double yards) {
    return yards / kCubicInchesToYards;
}

double ZOLCalculatorMaster::convertCubicInchesToFeet(double inches) {
    return inches * kCubicInchesToFeet;
}
