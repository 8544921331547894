#pragma once
#include <cstdint>
#include <string>

// Volumes and weights of concrete pours. Every dimension arrives in inches, so the pours are
// computed in cubic inches and given in cubic yards, or in cubic metres for measurement 1.
class ZOLConcreteCalculator {
public:
    ZOLConcreteCalculator() = delete;

    // The unit letter printed after a volume: "M" for 1, "Y" for every other value.
    static std::string getStringForMeasurement(int32_t measurement);

    // A rectangular pour less the openings (square feet) through its width. The removal is
    // not clamped: openings larger than the wall give a negative volume.
    static double calculateConcreteWithLength(double length, double width, double depth,
                                              int32_t measuredIn, double removeSqFt);
    // One round pile.
    static double calculatePileConcreteWithDepth(double depth, double radius, int32_t measuredIn);
    // Pounds of concrete in a volume given in the unit of `measuredIn`.
    static double calculateConcreteWeightForVolume(double volume, int32_t measuredIn);
};
