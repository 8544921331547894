#pragma once

// Perimeter and buck of one window or door opening. Sizes in inches, results in feet.
class ZOLOpeningsCalculator {
public:
    ZOLOpeningsCalculator() = delete;

    // Perimeter plus 8 inches for the overlap of the buck; 0 when a side is 0.
    static double calculateLFOpeningsWithOpeningHeight(double openingHeight, double openingWidth);
    // Buck: both jambs, the head, the sill when there is one, plus the same 8 inches.
    static double calculateLFZolBuckWithOpeningHeight(double openingHeight, double openingWidth,
                                                      bool sill);
};
