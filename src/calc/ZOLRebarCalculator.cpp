#include "calc/ZOLRebarCalculator.h"

#include "io/ZOLNumeric.h"

#include <cstdint>

namespace {
// Whole feet of a length in inches, truncated toward zero (30 inches are 2 feet).
int32_t wholeFeet(int32_t inches) {
    return ZOLNumeric::wrapDiv(inches, 12);
}
} // namespace

std::vector<std::string> ZOLRebarCalculator::getImperialRebarSizes() {
    return {"#4", "#5", "#6", "#7", "#8"};
}

std::vector<std::string> ZOLRebarCalculator::getMetricRebarSizes() {
    return {"10M", "15M", "20M", "25M"};
}

std::optional<std::string> ZOLRebarCalculator::getRebarSizeNameWithMeasurement(int32_t measurement,
                                                                               int32_t size) {
    const std::vector<std::string> sizes =
        measurement == 0 ? getImperialRebarSizes() : getMetricRebarSizes();
    if (size < 1 || static_cast<std::size_t>(size) > sizes.size())
        return std::nullopt;
    return sizes[static_cast<std::size_t>(size) - 1];
}

std::string ZOLRebarCalculator::getPrintedRebarSizeNameWithMeasurement(int32_t measurement,
                                                                       int32_t size) {
    // The printed position is the screen's one further along.
    if (size == INT32_MAX)
        return std::string();
    return getRebarSizeNameWithMeasurement(measurement, size + 1).value_or(std::string());
}

double ZOLRebarCalculator::calculateHorizontalRebarWithWallLength(double wallLength,
                                                                  int32_t lapSplice, int32_t rows) {
    const int32_t lapFeet = wholeFeet(lapSplice);
    // The number of laps is fractional on purpose: a 30-foot wall carries 1.5 laps per row.
    return (wallLength / 20.0) * lapFeet * rows + static_cast<double>(rows) * wallLength;
}

double ZOLRebarCalculator::calculateVerticalRebarWithWallLength(double wallLength, int32_t spacing,
                                                                double wallHeight) {
    if (spacing < 1)
        return 0.0;
    // A spacing of 1 to 11 inches is zero feet; dividing by 0.0 gives an infinity (or NaN
    // for an empty wall), which the screens show as they find it.
    const double spacingFeet = wholeFeet(spacing);
    return wallLength / spacingFeet * wallHeight;
}

double ZOLRebarCalculator::calculateDowelsWithWallLength(double wallLength, int32_t spacing,
                                                         int32_t dowelLength) {
    if (spacing < 1)
        return 0.0;
    const double spacingFeet = wholeFeet(spacing);
    const double dowelFeet = wholeFeet(dowelLength);
    return dowelFeet * (wallLength / spacingFeet);
}
