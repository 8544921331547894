#include "calc/ZOLWallCalculator.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLNumeric.h"

#include <algorithm>
#include <cmath>

using N = ZOLNumeric;
using WD = ZOLWallData;

namespace {

constexpr double kTruckCapacity = 2520.0; // trailer space units of one truck

// Blocks that take HV clips: full blocks of every shape, half blocks counting as a half each.
int32_t clippedBlocks(int32_t straight, int32_t straightHalf, int32_t corner, int32_t cornerHalf,
                      int32_t angle, int32_t t, int32_t straightCurb, int32_t cornerCurb,
                      int32_t corbel, int32_t tapered, int32_t radius) {
    int32_t n = straight;
    for (int32_t count : {corner, angle, t, straightCurb, cornerCurb, corbel, tapered, radius})
        n = N::wrapAdd(n, count);
    // Halving is defined for every int32; only the sums can wrap.
    n = N::wrapAdd(n, straightHalf / 2);
    return N::wrapAdd(n, cornerHalf / 2);
}

} // namespace

double ZOLWallCalculator::calculateBlockWeightWithBlockSize(int32_t blockSize, int32_t blockType,
                                                            int32_t quantity) {
    return WD::getWeightWithBlockType(blockType, blockSize) * quantity;
}

int32_t ZOLWallCalculator::calculateBundlesWithBlockSize(int32_t blockSize, int32_t blockType,
                                                         int32_t quantity) {
    const int32_t bundleSize = WD::getBundleSizeWithBlockType(blockType, blockSize);
    if (bundleSize < 1)
        return 0;
    // A started bundle is a whole bundle: the quotient, plus one for any remainder. With a
    // divisor of at least 1 the division is defined for every quantity, and a remainder only
    // exists for divisors of 2 or more, whose quotient leaves room for the added one.
    const int32_t bundles = quantity / bundleSize;
    return quantity % bundleSize != 0 ? bundles + 1 : bundles;
}

int32_t ZOLWallCalculator::calculateExtendersWithWallLength(double wallLength) {
    // One extender per two feet of wall, plus 5 %.
    return N::ceilToInt(wallLength * 0.5 * 1.05);
}

int32_t ZOLWallCalculator::calculateCornerBlocksWithInsideCorners(int32_t insideCorners,
                                                                  int32_t outsideCorners,
                                                                  int32_t rows, int32_t curbBlock,
                                                                  int32_t addedBlock) {
    const int32_t corners = N::wrapMul(N::wrapAdd(insideCorners, outsideCorners), rows);
    const int32_t blocks = N::wrapAdd(N::wrapSub(corners, curbBlock), addedBlock);
    return blocks < 0 ? 0 : blocks;
}

int32_t ZOLWallCalculator::calculateAngleOrTBlockWithNumberOfLocations(int32_t numberOfLocations,
                                                                       int32_t rows,
                                                                       int32_t addedBlock) {
    return N::wrapAdd(N::wrapMul(numberOfLocations, rows), addedBlock);
}

int32_t
ZOLWallCalculator::calculateAddedAngleOrTBlockWithNumberOfLocations(int32_t numberOfLocations) {
    if (numberOfLocations < 1)
        return 0;
    return N::ceilToInt(numberOfLocations * 0.5);
}

int32_t ZOLWallCalculator::calculateCorbelOrTaperedBlockWithLinearFeet(double linearFeet) {
    // One 4-foot block per four feet of course.
    return N::ceilToInt(linearFeet * 0.25);
}

int32_t ZOLWallCalculator::calculateOpeningDeductionWithSqFtOfOpenings(double sqFtOfOpenings) {
    // Openings save straight blocks, but only 85 % of them: blocks around an opening are cut,
    // not left whole.
    // The straight block covers the same area in every size.
    const double straightBlockSqFt =
        WD::getSquareFeetWithBlockType(WD::Straight, WD::kDefaultBlockSize);
    return N::floorToInt(sqFtOfOpenings / straightBlockSqFt * 0.85);
}

int32_t ZOLWallCalculator::calculateStraightBlockWithWallLength(
    double wallLength, double linearFeetOfCornersAndTs, double linearFeetOfRadius, int32_t rows,
    int32_t blocksToDeduct, int32_t addedBlock) {
    const double blocks =
        (wallLength - linearFeetOfCornersAndTs - linearFeetOfRadius) * 0.25 * rows -
        blocksToDeduct + addedBlock;
    const int32_t count = N::ceilToInt(blocks);
    return count < 0 ? 0 : count;
}

int32_t ZOLWallCalculator::calculateRadiusBlockWithLinearFeetOfRadius(double linearFeetOfRadius,
                                                                      int32_t rows) {
    return N::ceilToInt(linearFeetOfRadius / 1.33 * rows);
}

int32_t ZOLWallCalculator::calculateStraightCurbBlockWithLinearFeet(double linearFeet) {
    return calculateCorbelOrTaperedBlockWithLinearFeet(linearFeet);
}

int32_t ZOLWallCalculator::calculateHVClipsWithStraightBlock(
    int32_t straightBlock, int32_t straightHalfBlock, int32_t cornerBlock, int32_t cornerHalfBlock,
    int32_t angleBlock, int32_t tBlock, int32_t straightCurbBlock, int32_t cornerCurbBlock,
    int32_t corbelBlock, int32_t taperedBlock, int32_t radiusBlock) {
    const int32_t blocks = clippedBlocks(straightBlock, straightHalfBlock, cornerBlock,
                                         cornerHalfBlock, angleBlock, tBlock, straightCurbBlock,
                                         cornerCurbBlock, corbelBlock, taperedBlock, radiusBlock);
    // One box of clips per started 150 blocks.
    const double boxSize = WD::getBundleSizeWithBlockType(WD::HVClips, WD::kBlockSizes.front());
    return N::toInt(std::ceil(blocks / 150.0) * boxSize);
}

int32_t ZOLWallCalculator::calculateR9WithStraightBlock(
    int32_t straightBlock, int32_t straightHalfBlock, int32_t cornerBlock, int32_t cornerHalfBlock,
    int32_t angleBlock, int32_t tBlock, int32_t straightCurbBlock, int32_t cornerCurbBlock,
    int32_t corbelBlock, int32_t taperedBlock, int32_t radiusBlock, int32_t layers) {
    const int32_t blocks = clippedBlocks(straightBlock, straightHalfBlock, cornerBlock,
                                         cornerHalfBlock, angleBlock, tBlock, straightCurbBlock,
                                         cornerCurbBlock, corbelBlock, taperedBlock, radiusBlock);
    // Three sticks per block and layer.
    return N::wrapMul(N::wrapMul(blocks, layers), 3);
}

int32_t ZOLWallCalculator::calculateBuckWithLinearFeet(double linearFeet) {
    return N::ceilToInt(linearFeet / 3.95);
}

int32_t ZOLWallCalculator::calculatePravex(double linearFeet) {
    return calculateCorbelOrTaperedBlockWithLinearFeet(linearFeet);
}

int32_t ZOLWallCalculator::calculatePelmosWithBrickHeight(double brickHeight, double brickLength,
                                                          int32_t pelmosPerBlock) {
    const double divisor = pelmosPerBlock == 2 ? 2.6 : 1.8;
    return N::ceilToInt(brickHeight * brickLength / divisor);
}

double ZOLWallCalculator::calculateLFInsideCornersWithNumberOfInsideCorners(
    int32_t numberOfInsideCorners) {
    return numberOfInsideCorners * 41.4 / 12;
}

double ZOLWallCalculator::calculateLFOutsideCornersWithBlockSize(int32_t blockSize,
                                                                 int32_t numberOfOutsideCorners) {
    // Inches of wall one outside corner block turns, growing with the core.
    double inches = 0.0;
    switch (blockSize) {
    case 4:
        inches = 60;
        break;
    case 6:
        inches = 64;
        break;
    case 8:
        inches = 68;
        break;
    case 10:
        inches = 72;
        break;
    case 12:
        inches = 76;
        break;
    default:
        return 0.0;
    }
    return numberOfOutsideCorners * inches / 12;
}

double ZOLWallCalculator::calculateLFAnglesWithBlockSize(int32_t blockSize,
                                                         int32_t numberOfAngles) {
    // The 6-inch angle block is the short one of the three.
    double inches = 0.0;
    switch (blockSize) {
    case 4:
        inches = 44;
        break;
    case 6:
        inches = 35;
        break;
    case 8:
        inches = 37;
        break;
    default:
        return 0.0;
    }
    return numberOfAngles * inches / 12;
}

double ZOLWallCalculator::calculateLFTsWithBlockSize(int32_t blockSize, int32_t numberOfTs) {
    if (blockSize != 6 && blockSize != 8)
        return 0.0;
    return numberOfTs * 44.0 / 12;
}

double ZOLWallCalculator::calculateGrossSqFtWithTotalWallHeight(double totalWallHeight,
                                                                double linearFeetOfWall) {
    return totalWallHeight * linearFeetOfWall;
}

int32_t ZOLWallCalculator::calculateRowsWithWallHeight(double wallHeight) {
    // Whole 16-inch courses.
    return N::toInt(wallHeight * 12 * 0.0625);
}

double ZOLWallCalculator::calculateRebarWithWallHeight(double wallHeight, double linearFeetOfWall) {
    if (!(linearFeetOfWall > 0))
        return 0.0;
    return linearFeetOfWall / 1.33 * wallHeight * 1.1 +
           calculateRowsWithWallHeight(wallHeight) * linearFeetOfWall + linearFeetOfWall;
}

double ZOLWallCalculator::calculateCubicYardsOfConcreteWithWallHeight(double wallHeight,
                                                                      double linearFeetOfWall,
                                                                      int32_t blockSize,
                                                                      double sqFtOfOpenings,
                                                                      int32_t caloraStickLayers) {
    // Each layer of calora sticks takes 2 inches of the core, never leaving less than 4.
    int32_t coreWidth = blockSize;
    const bool lineSize = std::find(WD::kBlockSizes.begin(), WD::kBlockSizes.end(), blockSize) !=
                          WD::kBlockSizes.end();
    if (caloraStickLayers >= 1 && lineSize)
        coreWidth = std::max(4, blockSize - 2 * std::min(caloraStickLayers, 4));
    const double f = coreWidth / 12.0;
    return wallHeight * linearFeetOfWall * f / 27 - f * sqFtOfOpenings / 27;
}

int32_t ZOLWallCalculator::calculateBracingWithWallLength(double wallLength) {
    if (!(wallLength > 0))
        return 0;
    return N::ceilToInt(wallLength / 6.0);
}

double ZOLWallCalculator::calculateTrucksWithBlockSize(
    int32_t blockSize, int32_t straightBundles, int32_t straightHalfBundles, int32_t cornerBundles,
    int32_t cornerHalfBundles, int32_t angleBundles, int32_t tBundles, int32_t straightCurbBundles,
    int32_t cornerCurbBundles, int32_t corbelBundles, int32_t taperedBundles, int32_t radiusBundles,
    int32_t buckBundles, int32_t extenderBundles, int32_t hVClipBoxes, int32_t caloraStickBundles) {
    struct Load {
        int32_t type;
        int32_t bundles;
    };
    // The trailer is loaded in this order; Pravex and pelmo ride along in the cab.
    const Load loads[] = {
        {WD::Straight, straightBundles},
        {WD::StraightHalf, straightHalfBundles},
        {WD::Corner, cornerBundles},
        {WD::CornerHalf, cornerHalfBundles},
        {WD::Angle, angleBundles},
        {WD::TBlock, tBundles},
        {WD::StraightCurb, straightCurbBundles},
        {WD::CornerCurb, cornerCurbBundles},
        {WD::Corbel, corbelBundles},
        {WD::Tapered, taperedBundles},
        {WD::Radius, radiusBundles},
        {WD::Buck, buckBundles},
        {WD::Extender, extenderBundles},
        {WD::HVClips, hVClipBoxes},
        {WD::CaloraSticks, caloraStickBundles},
    };
    double space = 0.0;
    for (const Load& load : loads)
        space +=
            std::ceil(WD::getTrailerAllowanceWithBlockType(load.type, blockSize) * load.bundles);
    if (space > 0)
        space /= kTruckCapacity;
    return space;
}

double ZOLWallCalculator::calculateWallHeightWithBaseHeight(double baseHeight, bool halfBlock,
                                                            bool cutBlock, bool extenders) {
    // A half course and a cut course add 8 inches each, the extenders 4.
    double height = baseHeight;
    if (halfBlock)
        height += 0.667;
    if (cutBlock)
        height += 0.667;
    if (extenders)
        height += 0.334;
    return height;
}
