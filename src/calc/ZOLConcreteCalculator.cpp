#include "calc/ZOLConcreteCalculator.h"

#include "calc/ZOLCalculatorMaster.h"

namespace {
constexpr double kPoundsPerCubicFoot = 143.38;

// Cubic inches into the volume unit. Only measurement 1 is metres here, while the weight
// treats every non-zero measurement as metres; the two agree on the values that are stored.
double cubicInchesToUnit(double cubicInches, int32_t measuredIn) {
    double volume = ZOLCalculatorMaster::convertCubicInchesToYards(cubicInches);
    if (measuredIn == 1)
        volume = ZOLCalculatorMaster::convertCubicYardsToMeters(volume);
    return volume;
}
} // namespace

std::string ZOLConcreteCalculator::getStringForMeasurement(int32_t measurement) {
    return measurement == 1 ? "M" : "Y";
}

double ZOLConcreteCalculator::calculateConcreteWithLength(double length, double width, double depth,
                                                          int32_t measuredIn, double removeSqFt) {
    double cubicInches = ZOLCalculatorMaster::calculateVolumeRectWithLength(length, width, depth);
    // Openings are square feet; through the pour's width they become cubic inches to remove.
    cubicInches = cubicInches + removeSqFt * -144.0 * width;
    return cubicInchesToUnit(cubicInches, measuredIn);
}

double ZOLConcreteCalculator::calculatePileConcreteWithDepth(double depth, double radius,
                                                             int32_t measuredIn) {
    const double cubicInches =
        ZOLCalculatorMaster::calculateVolumeCylinderWithRadius(radius, depth);
    return cubicInchesToUnit(cubicInches, measuredIn);
}

double ZOLConcreteCalculator::calculateConcreteWeightForVolume(double volume, int32_t measuredIn) {
    double yards = volume;
    if (measuredIn != 0)
        yards = ZOLCalculatorMaster::convertCubicMetersToYards(yards);
    const double cubicInches = ZOLCalculatorMaster::convertCubicYardsToInches(yards);
    const double cubicFeet = ZOLCalculatorMaster::convertCubicInchesToFeet(cubicInches);
    return cubicFeet * kPoundsPerCubicFoot;
}
