#pragma once
#include "calc/ZOLWallData.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// The wall of one worksheet: what the user knows about it (length, height, block size,
// corners, special courses, openings) and, computed afresh on every query, the parts to order.
class ZOLWall {
public:
    // Values alike, field by field (undo tells what a change touched).
    bool operator==(const ZOLWall&) const = default;
    ZOLWall();
    void clear();

    int32_t blockSize() const { return blockSize_; }
    void setBlockSize(int32_t v) { blockSize_ = v; }
    double wallHeight() const { return wallHeight_; }
    void setWallHeight(double v) { wallHeight_ = v; }
    double wallLength() const { return wallLength_; }
    void setWallLength(double v) { wallLength_ = v; }
    int32_t insideCornerLocations() const { return insideCornerLocations_; }
    void setInsideCornerLocations(int32_t v) { insideCornerLocations_ = v; }
    int32_t outsideCornerLocations() const { return outsideCornerLocations_; }
    void setOutsideCornerLocations(int32_t v) { outsideCornerLocations_ = v; }
    int32_t angleLocations() const { return angleLocations_; }
    void setAngleLocations(int32_t v) { angleLocations_ = v; }
    int32_t tBlockLocations() const { return tBlockLocations_; }
    void setTBlockLocations(int32_t v) { tBlockLocations_ = v; }
    double linearFeetCorbel() const { return linearFeetCorbel_; }
    void setLinearFeetCorbel(double v) { linearFeetCorbel_ = v; }
    double linearFeetCurb() const { return linearFeetCurb_; }
    void setLinearFeetCurb(double v) { linearFeetCurb_ = v; }
    int32_t curbCornerLocations() const { return curbCornerLocations_; }
    void setCurbCornerLocations(int32_t v) { curbCornerLocations_ = v; }
    double linearFeetTapered() const { return linearFeetTapered_; }
    void setLinearFeetTapered(double v) { linearFeetTapered_ = v; }
    double linearFeetRadius() const { return linearFeetRadius_; }
    void setLinearFeetRadius(double v) { linearFeetRadius_ = v; }
    int32_t radius() const { return radius_; }
    void setRadius(int32_t v) { radius_ = v; }
    double sqftOpenings() const { return sqftOpenings_; }
    void setSqftOpenings(double v) { sqftOpenings_ = v; }
    double linearFeetBuck() const { return linearFeetBuck_; }
    void setLinearFeetBuck(double v) { linearFeetBuck_ = v; }
    int32_t straightBlockAdded() const { return straightBlockAdded_; }
    void setStraightBlockAdded(int32_t v) { straightBlockAdded_ = v; }
    int32_t cornerBlockAdded() const { return cornerBlockAdded_; }
    void setCornerBlockAdded(int32_t v) { cornerBlockAdded_ = v; }
    int32_t caloraStickLayers() const { return caloraStickLayers_; }
    void setCaloraStickLayers(int32_t v) { caloraStickLayers_ = v; }
    bool useCutBlock() const { return useCutBlock_; }
    void setUseCutBlock(bool v) { useCutBlock_ = v; }
    bool useHalfBlock() const { return useHalfBlock_; }
    void setUseHalfBlock(bool v) { useHalfBlock_ = v; }
    bool useExtenders() const { return useExtenders_; }
    void setUseExtenders(bool v) { useExtenders_ = v; }
    bool usePravex() const { return usePravex_; }
    void setUsePravex(bool v) { usePravex_ = v; }
    double pelmoBrickHeight() const { return pelmoBrickHeight_; }
    void setPelmoBrickHeight(double v) { pelmoBrickHeight_ = v; }
    double pelmoBrickLength() const { return pelmoBrickLength_; }
    void setPelmoBrickLength(double v) { pelmoBrickLength_ = v; }
    int32_t pelmoPerBlock() const { return pelmoPerBlock_; }
    void setPelmoPerBlock(int32_t v) { pelmoPerBlock_ = v; }
    double wastePercentage() const { return wastePercentage_; }
    void setWastePercentage(double v) { wastePercentage_ = v; }

    // Geometry.
    double getTotalWallHeight() const;
    int32_t getRows() const;
    double getLinearFeetOfStraightBlock() const;
    double getLinearFeetOfInsideCorners() const;
    double getLinearFeetOfOutsideCorners() const;
    double getLinearFeetOfAngles() const;
    double getLinearFeetOfTBlock() const;
    int32_t getOpeningsInBlockCount() const;
    double getGrossSqFtOfWall() const;
    double getNetSqFtOfWall() const;

    // Pieces of each part.
    int32_t getStraightBlocks() const;
    int32_t getStraightHalfBlocks() const;
    int32_t getStraightCutBlocks() const;
    int32_t getCornerBlocks() const;
    int32_t getCornerHalfBlocks() const;
    int32_t getCornerCutBlocks() const;
    int32_t getAngleBlocks() const;
    int32_t getTBlocks() const;
    int32_t getStraightCurbBlocks() const;
    int32_t getCornerCurbBlocks() const;
    int32_t getCorbelBlocks() const;
    int32_t getTaperedBlocks() const;
    int32_t getRadiusBlocks() const;
    int32_t getZolBuck() const;
    int32_t getExtenders() const;
    int32_t getHVClips() const;
    int32_t getCaloraSticks() const;
    int32_t getCaloraStickBundles() const;
    double getCaloraStickWeight() const;
    int32_t getPravexes() const;
    int32_t getPelmos() const;

    // Shipping, concrete and steel.
    double getTrucks() const;
    double getConcreteYards() const;
    double getConcreteMeters() const;
    int32_t getBracing() const;
    double getLinearFeetRebar() const;
    double getTotalPartsWeight() const;

    // Per part type (0 to 16); radius blocks and unknown types count 0.
    int32_t getPartCountWithPartType(int32_t partType) const;
    int32_t getPartCountRoundedToFullBundlesWithPartType(int32_t partType) const;
    int32_t getTotalBundlesWithPartType(int32_t partType) const;
    double getApproximateWeightWithPartType(int32_t partType, bool rounded) const;

    // The "WallData" element of the workbook file (the waste allowance is not saved).
    std::string getXMLString() const;
    void appendXML(std::string& out) const;
    // An element's text read back from the file; acts on codes 45 to 69 only.
    void setValue(const std::optional<std::string>& value, int32_t forProperty);

private:
    double linearFeetOfCornersAndTs() const;
    struct BlockCounts {
        int32_t straight, straightHalf, corner, cornerHalf, angle, t, straightCurb, cornerCurb,
            corbel, tapered, radius;
    };
    BlockCounts blockCounts() const;
    static int32_t hvClipsOf(const BlockCounts& c);
    static int32_t caloraSticksOf(const BlockCounts& c, int32_t layers);
    // Every part type's count from one pass, for the queries that need all of them.
    std::array<int32_t, ZOLWallData::kPartTypeCount> partCounts() const;
    int32_t oneCourseStraightBlocks(double cornersAndTs) const;
    int32_t oneCourseCornerBlocks() const;
    int32_t straightBlocks(int32_t rows, double cornersAndTs, int32_t angle, int32_t curb,
                           int32_t tapered, int32_t corbel, int32_t cut) const;
    int32_t cornerBlocks(int32_t rows, int32_t cut) const;
    int32_t angleOrTBlocks(int32_t type, int32_t locations, int32_t rows) const;
    int32_t radiusBlocks(int32_t rows) const;

    int32_t blockSize_;
    double wallHeight_;
    double wallLength_;
    int32_t insideCornerLocations_;
    int32_t outsideCornerLocations_;
    int32_t angleLocations_;
    int32_t tBlockLocations_;
    double linearFeetCorbel_;
    double linearFeetCurb_;
    int32_t curbCornerLocations_;
    double linearFeetTapered_;
    double linearFeetRadius_;
    int32_t radius_;
    double sqftOpenings_;
    double linearFeetBuck_;
    int32_t straightBlockAdded_;
    int32_t cornerBlockAdded_;
    int32_t caloraStickLayers_;
    bool useCutBlock_;
    bool useHalfBlock_;
    bool useExtenders_;
    bool usePravex_;
    double pelmoBrickHeight_;
    double pelmoBrickLength_;
    int32_t pelmoPerBlock_;
    double wastePercentage_;
};
