#include "calc/ZOLTiltCalculator.h"

#include "io/ZOLNumeric.h"

namespace {
constexpr double kSqFtPerPanel = 5.33;
constexpr double kPanelAllowance = 1.01;
constexpr int32_t kInsertsPerPanel = 3;

// Bundles for a count. The division is single precision, as the bundle counts have always
// been computed, and a bundle is added whenever that count is not itself a whole multiple of
// the bundle size (so 12 panels ship as 2 bundles, 144 as 12).
int32_t bundlesFor(int32_t count, int32_t bundleSize) {
    const float exact = static_cast<float>(count) / static_cast<float>(bundleSize);
    int32_t bundles = ZOLNumeric::ceilToInt(static_cast<double>(exact));
    const int32_t wholeMultiple =
        ZOLNumeric::wrapMul(bundleSize, ZOLNumeric::wrapDiv(bundles, bundleSize));
    if (ZOLNumeric::wrapSub(bundles, wholeMultiple) != 0)
        bundles = ZOLNumeric::wrapAdd(bundles, 1);
    return bundles;
}
} // namespace

int32_t ZOLTiltCalculator::calculatePanelsWithSqFtOfWall(double sqFtOfWall) {
    return ZOLNumeric::ceilToInt(sqFtOfWall / kSqFtPerPanel * kPanelAllowance);
}

int32_t ZOLTiltCalculator::calculatePanelBundlesWithPanels(int32_t panels) {
    return bundlesFor(panels, getPanelBundleSize());
}

double ZOLTiltCalculator::calculatePanelWeightWithPanels(int32_t panels) {
    return panels * getPanelWeight();
}

int32_t ZOLTiltCalculator::calculateInsertsWithPanels(int32_t panels) {
    return ZOLNumeric::wrapMul(panels, kInsertsPerPanel);
}

int32_t ZOLTiltCalculator::calculateInsertBundlesWithInserts(int32_t inserts) {
    return bundlesFor(inserts, getInsertBundleSize());
}

double ZOLTiltCalculator::calculateInsertWeightWithInserts(int32_t inserts) {
    return inserts * getInsertWeight();
}
