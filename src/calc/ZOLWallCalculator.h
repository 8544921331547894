#pragma once
#include <cstdint>

// The take-off formulas of one wall: rows, corner and intersection lengths, block counts per
// shape, accessories, bundles, weights, truck loads, concrete, bracing and rebar. Stateless;
// lengths in feet, openings in square feet, counts of pieces.
class ZOLWallCalculator {
public:
    ZOLWallCalculator() = delete;

    // The catalogue weight of one piece times the quantity, pounds.
    static double calculateBlockWeightWithBlockSize(int32_t blockSize, int32_t blockType,
                                                    int32_t quantity);
    // Whole bundles (boxes for HV clips) needed for the quantity; 0 for a part without bundles.
    static int32_t calculateBundlesWithBlockSize(int32_t blockSize, int32_t blockType,
                                                 int32_t quantity);
    static int32_t calculateExtendersWithWallLength(double wallLength);
    static int32_t calculateCornerBlocksWithInsideCorners(int32_t insideCorners,
                                                          int32_t outsideCorners, int32_t rows,
                                                          int32_t curbBlock, int32_t addedBlock);
    static int32_t calculateAngleOrTBlockWithNumberOfLocations(int32_t numberOfLocations,
                                                               int32_t rows, int32_t addedBlock);
    // Extra angle or T blocks for a half course: one per two locations, rounded up.
    static int32_t calculateAddedAngleOrTBlockWithNumberOfLocations(int32_t numberOfLocations);
    static int32_t calculateCorbelOrTaperedBlockWithLinearFeet(double linearFeet);
    static int32_t calculateOpeningDeductionWithSqFtOfOpenings(double sqFtOfOpenings);
    static int32_t calculateStraightBlockWithWallLength(double wallLength,
                                                        double linearFeetOfCornersAndTs,
                                                        double linearFeetOfRadius, int32_t rows,
                                                        int32_t blocksToDeduct, int32_t addedBlock);
    static int32_t calculateRadiusBlockWithLinearFeetOfRadius(double linearFeetOfRadius,
                                                              int32_t rows);
    static int32_t calculateStraightCurbBlockWithLinearFeet(double linearFeet);
    static int32_t calculateHVClipsWithStraightBlock(int32_t straightBlock,
                                                     int32_t straightHalfBlock, int32_t cornerBlock,
                                                     int32_t cornerHalfBlock, int32_t angleBlock,
                                                     int32_t tBlock, int32_t straightCurbBlock,
                                                     int32_t cornerCurbBlock, int32_t corbelBlock,
                                                     int32_t taperedBlock, int32_t radiusBlock);
    static int32_t calculateR9WithStraightBlock(int32_t straightBlock, int32_t straightHalfBlock,
                                                int32_t cornerBlock, int32_t cornerHalfBlock,
                                                int32_t angleBlock, int32_t tBlock,
                                                int32_t straightCurbBlock, int32_t cornerCurbBlock,
                                                int32_t corbelBlock, int32_t taperedBlock,
                                                int32_t radiusBlock, int32_t layers);
    static int32_t calculateBuckWithLinearFeet(double linearFeet);
    static int32_t calculatePravex(double linearFeet);
    static int32_t calculatePelmosWithBrickHeight(double brickHeight, double brickLength,
                                                  int32_t pelmosPerBlock);
    static double calculateLFInsideCornersWithNumberOfInsideCorners(int32_t numberOfInsideCorners);
    static double calculateLFOutsideCornersWithBlockSize(int32_t blockSize,
                                                         int32_t numberOfOutsideCorners);
    static double calculateLFAnglesWithBlockSize(int32_t blockSize, int32_t numberOfAngles);
    static double calculateLFTsWithBlockSize(int32_t blockSize, int32_t numberOfTs);
    static double calculateGrossSqFtWithTotalWallHeight(double totalWallHeight,
                                                        double linearFeetOfWall);
    static int32_t calculateRowsWithWallHeight(double wallHeight);
    static double calculateRebarWithWallHeight(double wallHeight, double linearFeetOfWall);
    static double calculateCubicYardsOfConcreteWithWallHeight(double wallHeight,
                                                              double linearFeetOfWall,
                                                              int32_t blockSize,
                                                              double sqFtOfOpenings,
                                                              int32_t caloraStickLayers);
    static int32_t calculateBracingWithWallLength(double wallLength);
    // Fractional truck loads of the bundles, in the loading order of the trailer.
    static double calculateTrucksWithBlockSize(int32_t blockSize, int32_t straightBundles,
                                               int32_t straightHalfBundles, int32_t cornerBundles,
                                               int32_t cornerHalfBundles, int32_t angleBundles,
                                               int32_t tBundles, int32_t straightCurbBundles,
                                               int32_t cornerCurbBundles, int32_t corbelBundles,
                                               int32_t taperedBundles, int32_t radiusBundles,
                                               int32_t buckBundles, int32_t extenderBundles,
                                               int32_t hVClipBoxes, int32_t caloraStickBundles);
    static double calculateWallHeightWithBaseHeight(double baseHeight, bool halfBlock,
                                                    bool cutBlock, bool extenders);
};
