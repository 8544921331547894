#pragma once
#include <cstdint>

// Tilt-up panels for one side of a wall: panels and inserts (three to a panel, at 16 inches
// on centre), the bundles they ship in and their weights, with the product's fixed data.
class ZOLTiltCalculator {
public:
    ZOLTiltCalculator() = delete;

    // One panel covers 5.33 square feet; 1% is added and the count rounded up.
    static int32_t calculatePanelsWithSqFtOfWall(double sqFtOfWall);
    static int32_t calculatePanelBundlesWithPanels(int32_t panels);
    static double calculatePanelWeightWithPanels(int32_t panels);
    static int32_t calculateInsertsWithPanels(int32_t panels);
    static int32_t calculateInsertBundlesWithInserts(int32_t inserts);
    static double calculateInsertWeightWithInserts(int32_t inserts);

    static int32_t getPanelBundleSize() { return 12; }
    static double getPanelWeight() { return 3.5; }
    static int32_t getInsertBundleSize() { return 300; }
    static double getInsertWeight() { return 0.05; }
};
