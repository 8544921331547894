#include "calc/ZOLOpeningsCalculator.h"

namespace {
// 8 inches per opening for the overlap of the buck at the corners.
constexpr double kBuckOverlapFeet = 0.67;
} // namespace

double ZOLOpeningsCalculator::calculateLFOpeningsWithOpeningHeight(double openingHeight,
                                                                   double openingWidth) {
    if (openingHeight == 0.0 || openingWidth == 0.0)
        return 0.0;
    return 2 * (openingHeight / 12) + 2 * (openingWidth / 12) + kBuckOverlapFeet;
}

double ZOLOpeningsCalculator::calculateLFZolBuckWithOpeningHeight(double openingHeight,
                                                                  double openingWidth, bool sill) {
    if (openingHeight == 0.0 || openingWidth == 0.0)
        return 0.0;
    // Without a sill only the head spans the width.
    const double widths = sill ? 2.0 : 1.0;
    return 2 * (openingHeight / 12) + widths * (openingWidth / 12) + kBuckOverlapFeet;
}
