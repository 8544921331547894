#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Linear feet of reinforcing steel for one wall, and the two lists of bar-size names.
// Laps, spacings and dowel lengths are whole inches and become whole feet by truncating
// integer division before any other step: 11 inches count as no foot at all.
class ZOLRebarCalculator {
public:
    ZOLRebarCalculator() = delete;

    // A stored size is a position counted from 1; size 1 is entry 0 of these lists. The
    // Metric list is one shorter, so an Imperial "#8" (size 5) names nothing in Metric.
    static std::vector<std::string> getImperialRebarSizes();
    static std::vector<std::string> getMetricRebarSizes();
    // The name the rebar screen lists a stored size under, from the Imperial list for
    // measurement 0 and the Metric one for any other value; absent where the list has none.
    static std::optional<std::string> getRebarSizeNameWithMeasurement(int32_t measurement,
                                                                      int32_t size);
    // The name the printed rebar page and the job summary's rebar lines give a stored size:
    // the entry at the size's own position, one further along than the screen's naming, so
    // stored size 1 prints "#5" ("15M"). A size with no entry there (Imperial 5 and up, Metric
    // 4 and up, a negative size from a damaged file) gets no name rather than another bar's.
    static std::string getPrintedRebarSizeNameWithMeasurement(int32_t measurement, int32_t size);

    // Every row runs the whole wall, and each 20 feet of wall adds one lap per row.
    static double calculateHorizontalRebarWithWallLength(double wallLength, int32_t lapSplice,
                                                         int32_t rows);
    // Bars across the wall at the spacing, each as tall as the wall. A spacing under 12
    // inches makes the spacing zero feet: the result is then not finite, and is kept so.
    static double calculateVerticalRebarWithWallLength(double wallLength, int32_t spacing,
                                                       double wallHeight);
    static double calculateDowelsWithWallLength(double wallLength, int32_t spacing,
                                                int32_t dowelLength);
};
