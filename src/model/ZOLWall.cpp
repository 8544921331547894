#include "model/ZOLWall.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLWallCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

using WC = ZOLWallCalculator;
using WD = ZOLWallData;
using N = ZOLNumeric;

ZOLWall::ZOLWall() {
    clear();
}

void ZOLWall::clear() {
    blockSize_ = WD::kDefaultBlockSize;
    wallHeight_ = 8.0;
    wallLength_ = 0.0;
    insideCornerLocations_ = 0;
    outsideCornerLocations_ = 0;
    angleLocations_ = 0;
    tBlockLocations_ = 0;
    linearFeetCorbel_ = 0.0;
    linearFeetCurb_ = 0.0;
    curbCornerLocations_ = 0;
    linearFeetTapered_ = 0.0;
    linearFeetRadius_ = 0.0;
    radius_ = 10;
    sqftOpenings_ = 0.0;
    linearFeetBuck_ = 0.0;
    straightBlockAdded_ = 0;
    cornerBlockAdded_ = 0;
    caloraStickLayers_ = 0;
    useCutBlock_ = false;
    useHalfBlock_ = false;
    useExtenders_ = false;
    usePravex_ = false;
    pelmoBrickHeight_ = 0.0;
    pelmoBrickLength_ = 0.0;
    pelmoPerBlock_ = 0;
    wastePercentage_ = 0.02;
}

// ---- Geometry

double ZOLWall::getTotalWallHeight() const {
    return WC::calculateWallHeightWithBaseHeight(wallHeight_, useHalfBlock_, useCutBlock_,
                                                 useExtenders_);
}

int32_t ZOLWall::getRows() const {
    // Full courses of the base height only: the half, cut and extender courses have their own
    // counts.
    return WC::calculateRowsWithWallHeight(wallHeight_);
}

double ZOLWall::getLinearFeetOfInsideCorners() const {
    return WC::calculateLFInsideCornersWithNumberOfInsideCorners(insideCornerLocations_);
}

double ZOLWall::getLinearFeetOfOutsideCorners() const {
    return WC::calculateLFOutsideCornersWithBlockSize(blockSize_, outsideCornerLocations_);
}

double ZOLWall::getLinearFeetOfAngles() const {
    return WC::calculateLFAnglesWithBlockSize(blockSize_, angleLocations_);
}

double ZOLWall::getLinearFeetOfTBlock() const {
    return WC::calculateLFTsWithBlockSize(blockSize_, tBlockLocations_);
}

double ZOLWall::linearFeetOfCornersAndTs() const {
    return getLinearFeetOfInsideCorners() + getLinearFeetOfOutsideCorners() +
           getLinearFeetOfTBlock();
}

double ZOLWall::getLinearFeetOfStraightBlock() const {
    // Angle blocks sit in the straight run; corners, Ts and the curved part do not.
    return wallLength_ - linearFeetOfCornersAndTs() - linearFeetRadius_;
}

int32_t ZOLWall::getOpeningsInBlockCount() const {
    return WC::calculateOpeningDeductionWithSqFtOfOpenings(sqftOpenings_);
}

double ZOLWall::getGrossSqFtOfWall() const {
    return WC::calculateGrossSqFtWithTotalWallHeight(getTotalWallHeight(), wallLength_);
}

double ZOLWall::getNetSqFtOfWall() const {
    return getGrossSqFtOfWall() - sqftOpenings_;
}

// ---- Blocks
//
// The clip and stick counts need every block count at once; they are computed in one pass
// (rows and corner lengths once) by the same helpers the single queries use.

int32_t ZOLWall::oneCourseStraightBlocks(double cornersAndTs) const {
    return WC::calculateStraightBlockWithWallLength(wallLength_, cornersAndTs, linearFeetRadius_, 1,
                                                    0, 0);
}

int32_t ZOLWall::oneCourseCornerBlocks() const {
    // The curb corners replace corner blocks in the top course as well.
    return WC::calculateCornerBlocksWithInsideCorners(
        insideCornerLocations_, outsideCornerLocations_, 1, curbCornerLocations_, 0);
}

int32_t ZOLWall::straightBlocks(int32_t rows, double cornersAndTs, int32_t angle, int32_t curb,
                                int32_t tapered, int32_t corbel, int32_t cut) const {
    // An angle block stands in for three quarters of a straight block; curb, tapered and
    // corbel blocks replace straight blocks one for one, and so do the openings.
    int32_t oneForOne = N::wrapAdd(getOpeningsInBlockCount(), curb);
    oneForOne = N::wrapAdd(oneForOne, tapered);
    oneForOne = N::wrapAdd(oneForOne, corbel);
    const int32_t toDeduct = N::toInt(angle * 0.75 + oneForOne);
    // Cut blocks are cut from extra straight blocks.
    const int32_t added = N::wrapAdd(straightBlockAdded_, cut);
    const int32_t blocks = WC::calculateStraightBlockWithWallLength(
        wallLength_, cornersAndTs, linearFeetRadius_, rows, toDeduct, added);
    // Only straight blocks carry the waste allowance.
    return N::ceilToInt((wastePercentage_ + 1.0) * blocks);
}

int32_t ZOLWall::cornerBlocks(int32_t rows, int32_t cut) const {
    return WC::calculateCornerBlocksWithInsideCorners(
        insideCornerLocations_, outsideCornerLocations_, rows, curbCornerLocations_,
        N::wrapAdd(cornerBlockAdded_, cut));
}

int32_t ZOLWall::angleOrTBlocks(int32_t type, int32_t locations, int32_t rows) const {
    if (!WD::getValidSizeWithBlockType(type, blockSize_))
        return 0;
    // A half course needs one more block per two locations.
    const int32_t added =
        useHalfBlock_ ? WC::calculateAddedAngleOrTBlockWithNumberOfLocations(locations) : 0;
    return WC::calculateAngleOrTBlockWithNumberOfLocations(locations, rows, added);
}

int32_t ZOLWall::radiusBlocks(int32_t rows) const {
    if (!WD::getValidSizeWithBlockType(WD::Radius, blockSize_))
        return 0;
    return WC::calculateRadiusBlockWithLinearFeetOfRadius(linearFeetRadius_, rows);
}

// Two cut pieces come from one block; an odd count loses its remainder. (Halving is defined
// for every int32, so no wrap helper is needed.)
static int32_t cutPieces(int32_t oneCourse) {
    return oneCourse / 2;
}

ZOLWall::BlockCounts ZOLWall::blockCounts() const {
    BlockCounts c;
    const int32_t rows = getRows();
    const double cornersAndTs = linearFeetOfCornersAndTs();
    const int32_t straightCourse = oneCourseStraightBlocks(cornersAndTs);
    const int32_t cornerCourse = oneCourseCornerBlocks();
    c.straightHalf = useHalfBlock_ ? straightCourse : 0;
    c.cornerHalf = useHalfBlock_ ? cornerCourse : 0;
    c.angle = angleOrTBlocks(WD::Angle, angleLocations_, rows);
    c.t = angleOrTBlocks(WD::TBlock, tBlockLocations_, rows);
    c.straightCurb = getStraightCurbBlocks();
    c.cornerCurb = getCornerCurbBlocks();
    c.corbel = getCorbelBlocks();
    c.tapered = getTaperedBlocks();
    c.radius = radiusBlocks(rows);
    c.straight = straightBlocks(rows, cornersAndTs, c.angle, c.straightCurb, c.tapered, c.corbel,
                                useCutBlock_ ? cutPieces(straightCourse) : 0);
    c.corner = cornerBlocks(rows, useCutBlock_ ? cutPieces(cornerCourse) : 0);
    return c;
}

int32_t ZOLWall::getStraightBlocks() const {
    const int32_t rows = getRows();
    const double cornersAndTs = linearFeetOfCornersAndTs();
    const int32_t cut = useCutBlock_ ? cutPieces(oneCourseStraightBlocks(cornersAndTs)) : 0;
    return straightBlocks(rows, cornersAndTs, angleOrTBlocks(WD::Angle, angleLocations_, rows),
                          getStraightCurbBlocks(), getTaperedBlocks(), getCorbelBlocks(), cut);
}

int32_t ZOLWall::getStraightHalfBlocks() const {
    return useHalfBlock_ ? oneCourseStraightBlocks(linearFeetOfCornersAndTs()) : 0;
}

int32_t ZOLWall::getStraightCutBlocks() const {
    return useCutBlock_ ? cutPieces(oneCourseStraightBlocks(linearFeetOfCornersAndTs())) : 0;
}

int32_t ZOLWall::getCornerBlocks() const {
    return cornerBlocks(getRows(), getCornerCutBlocks());
}

int32_t ZOLWall::getCornerHalfBlocks() const {
    return useHalfBlock_ ? oneCourseCornerBlocks() : 0;
}

int32_t ZOLWall::getCornerCutBlocks() const {
    return useCutBlock_ ? cutPieces(oneCourseCornerBlocks()) : 0;
}

int32_t ZOLWall::getAngleBlocks() const {
    return angleOrTBlocks(WD::Angle, angleLocations_, getRows());
}

int32_t ZOLWall::getTBlocks() const {
    return angleOrTBlocks(WD::TBlock, tBlockLocations_, getRows());
}

int32_t ZOLWall::getStraightCurbBlocks() const {
    if (!WD::getValidSizeWithBlockType(WD::StraightCurb, blockSize_))
        return 0;
    return WC::calculateStraightCurbBlockWithLinearFeet(linearFeetCurb_);
}

int32_t ZOLWall::getCornerCurbBlocks() const {
    return WD::getValidSizeWithBlockType(WD::CornerCurb, blockSize_) ? curbCornerLocations_ : 0;
}

int32_t ZOLWall::getCorbelBlocks() const {
    if (!WD::getValidSizeWithBlockType(WD::Corbel, blockSize_))
        return 0;
    return WC::calculateCorbelOrTaperedBlockWithLinearFeet(linearFeetCorbel_);
}

int32_t ZOLWall::getTaperedBlocks() const {
    if (!WD::getValidSizeWithBlockType(WD::Tapered, blockSize_))
        return 0;
    return WC::calculateCorbelOrTaperedBlockWithLinearFeet(linearFeetTapered_);
}

int32_t ZOLWall::getRadiusBlocks() const {
    return radiusBlocks(getRows());
}

// ---- Accessories

int32_t ZOLWall::getZolBuck() const {
    return WC::calculateBuckWithLinearFeet(linearFeetBuck_);
}

int32_t ZOLWall::getExtenders() const {
    return useExtenders_ ? WC::calculateExtendersWithWallLength(wallLength_) : 0;
}

int32_t ZOLWall::hvClipsOf(const BlockCounts& c) {
    return WC::calculateHVClipsWithStraightBlock(c.straight, c.straightHalf, c.corner, c.cornerHalf,
                                                 c.angle, c.t, c.straightCurb, c.cornerCurb,
                                                 c.corbel, c.tapered, c.radius);
}
int32_t ZOLWall::caloraSticksOf(const BlockCounts& c, int32_t layers) {
    return WC::calculateR9WithStraightBlock(c.straight, c.straightHalf, c.corner, c.cornerHalf,
                                            c.angle, c.t, c.straightCurb, c.cornerCurb, c.corbel,
                                            c.tapered, c.radius, layers);
}

int32_t ZOLWall::getHVClips() const {
    return hvClipsOf(blockCounts());
}

int32_t ZOLWall::getCaloraSticks() const {
    if (caloraStickLayers_ == 0)
        return 0; // no layers, no sticks, whatever the block count
    return caloraSticksOf(blockCounts(), caloraStickLayers_);
}

int32_t ZOLWall::getCaloraStickBundles() const {
    return WC::calculateBundlesWithBlockSize(blockSize_, 14, getCaloraSticks());
}

double ZOLWall::getCaloraStickWeight() const {
    return WC::calculateBlockWeightWithBlockSize(blockSize_, 14, getCaloraSticks());
}

int32_t ZOLWall::getPravexes() const {
    // Counted along the corbel course whether or not Pravex is ticked.
    return WC::calculatePravex(linearFeetCorbel_);
}

int32_t ZOLWall::getPelmos() const {
    return WC::calculatePelmosWithBrickHeight(pelmoBrickHeight_, pelmoBrickLength_, pelmoPerBlock_);
}

// ---- Shipping, concrete and steel

double ZOLWall::getTrucks() const {
    const std::array<int32_t, WD::kPartTypeCount> counts = partCounts();
    auto b = [this, &counts](int32_t type) {
        return WC::calculateBundlesWithBlockSize(blockSize_, type, counts[type]);
    };
    return WC::calculateTrucksWithBlockSize(
        blockSize_, b(WD::Straight), b(WD::StraightHalf), b(WD::Corner), b(WD::CornerHalf),
        b(WD::Angle), b(WD::TBlock), b(WD::StraightCurb), b(WD::CornerCurb), b(WD::Corbel),
        b(WD::Tapered), b(WD::Radius), b(WD::Buck), b(WD::Extender), b(WD::HVClips),
        b(WD::CaloraSticks));
}

double ZOLWall::getConcreteYards() const {
    return WC::calculateCubicYardsOfConcreteWithWallHeight(
        getTotalWallHeight(), wallLength_, blockSize_, sqftOpenings_, caloraStickLayers_);
}

double ZOLWall::getConcreteMeters() const {
    return ZOLCalculatorMaster::convertCubicYardsToMeters(getConcreteYards());
}

int32_t ZOLWall::getBracing() const {
    return WC::calculateBracingWithWallLength(wallLength_);
}

double ZOLWall::getLinearFeetRebar() const {
    return WC::calculateRebarWithWallHeight(getTotalWallHeight(), wallLength_);
}

double ZOLWall::getTotalPartsWeight() const {
    const std::array<int32_t, WD::kPartTypeCount> counts = partCounts();
    double weight = 0.0;
    for (int32_t type = 0; type < WD::kPartTypeCount; ++type)
        weight += WC::calculateBlockWeightWithBlockSize(blockSize_, type, counts[type]);
    return weight;
}

// ---- Per part type

std::array<int32_t, WD::kPartTypeCount> ZOLWall::partCounts() const {
    // The same table as getPartCountWithPartType, with the block counts shared.
    const BlockCounts c = blockCounts();
    return {c.straight,
            c.straightHalf,
            c.corner,
            c.cornerHalf,
            c.angle,
            c.straightCurb,
            c.cornerCurb,
            c.t,
            c.corbel,
            c.tapered,
            0, // radius blocks are never ordered by part type
            getZolBuck(),
            getExtenders(),
            hvClipsOf(c),
            caloraSticksOf(c, caloraStickLayers_),
            getPravexes(),
            getPelmos()};
}

int32_t ZOLWall::getPartCountWithPartType(int32_t partType) const {
    switch (partType) {
    case WD::Straight:
        return getStraightBlocks();
    case WD::StraightHalf:
        return getStraightHalfBlocks();
    case WD::Corner:
        return getCornerBlocks();
    case WD::CornerHalf:
        return getCornerHalfBlocks();
    case WD::Angle:
        return getAngleBlocks();
    case WD::StraightCurb:
        return getStraightCurbBlocks();
    case WD::CornerCurb:
        return getCornerCurbBlocks();
    case WD::TBlock:
        return getTBlocks();
    case WD::Corbel:
        return getCorbelBlocks();
    case WD::Tapered:
        return getTaperedBlocks();
    case WD::Buck:
        return getZolBuck();
    case WD::Extender:
        return getExtenders();
    case WD::HVClips:
        return getHVClips();
    case WD::CaloraSticks:
        return getCaloraSticks();
    case WD::Pravex:
        return getPravexes();
    case WD::Pelmo:
        return getPelmos();
    default:
        // Radius blocks are shown by getRadiusBlocks but are never ordered by part type: they
        // take no bundles, weight, trailer space or summary line.
        return 0;
    }
}

int32_t ZOLWall::getTotalBundlesWithPartType(int32_t partType) const {
    return WC::calculateBundlesWithBlockSize(blockSize_, partType,
                                             getPartCountWithPartType(partType));
}

int32_t ZOLWall::getPartCountRoundedToFullBundlesWithPartType(int32_t partType) const {
    return N::wrapMul(getTotalBundlesWithPartType(partType),
                      WD::getBundleSizeWithBlockType(partType, blockSize_));
}

double ZOLWall::getApproximateWeightWithPartType(int32_t partType, bool rounded) const {
    const int32_t quantity = rounded ? getPartCountRoundedToFullBundlesWithPartType(partType)
                                     : getPartCountWithPartType(partType);
    return WC::calculateBlockWeightWithBlockSize(blockSize_, partType, quantity);
}

// ---- File

void ZOLWall::appendXML(std::string& out) const {
    using F = ZOLFormat;
    out += "\t\t\t<WallData>\n";
    F::append(out, "\t\t\t\t<BlockSize>%@</BlockSize>\n",
                     WD::getBasicSizeStringWithBlockSize(blockSize_));
    F::append(out, "\t\t\t\t<WallHeight>%f</WallHeight>\n", wallHeight_);
    F::append(out, "\t\t\t\t<WallLength>%f</WallLength>\n", wallLength_);
    F::append(out, "\t\t\t\t<InsideCornerLocations>%d</InsideCornerLocations>\n",
                     insideCornerLocations_);
    F::append(out, "\t\t\t\t<OutsideCornerLocations>%d</OutsideCornerLocations>\n",
                     outsideCornerLocations_);
    F::append(out, "\t\t\t\t<AngleLocations>%d</AngleLocations>\n", angleLocations_);
    F::append(out, "\t\t\t\t<TBlockLocations>%d</TBlockLocations>\n", tBlockLocations_);
    F::append(out, "\t\t\t\t<LinearFeetCorbel>%f</LinearFeetCorbel>\n", linearFeetCorbel_);
    F::append(out, "\t\t\t\t<LinearFeetCurb>%f</LinearFeetCurb>\n", linearFeetCurb_);
    F::append(out, "\t\t\t\t<CurbCornerLocations>%d</CurbCornerLocations>\n", curbCornerLocations_);
    F::append(out, "\t\t\t\t<LinearFeetTapered>%f</LinearFeetTapered>\n", linearFeetTapered_);
    F::append(out, "\t\t\t\t<LinearFeetRadius>%f</LinearFeetRadius>\n", linearFeetRadius_);
    F::append(out, "\t\t\t\t<Radius>%d</Radius>\n", radius_);
    F::append(out, "\t\t\t\t<SquareFeetOpenings>%f</SquareFeetOpenings>\n", sqftOpenings_);
    F::append(out, "\t\t\t\t<LinearFeetBuck>%f</LinearFeetBuck>\n", linearFeetBuck_);
    F::append(out, "\t\t\t\t<StraightBlockAdded>%d</StraightBlockAdded>\n", straightBlockAdded_);
    F::append(out, "\t\t\t\t<CornerBlockAdded>%d</CornerBlockAdded>\n", cornerBlockAdded_);
    F::append(out, "\t\t\t\t<CaloraStickLayers>%d</CaloraStickLayers>\n", caloraStickLayers_);
    F::append(out, "\t\t\t\t<UseCutBlock>%@</UseCutBlock>\n", ZOLText::boolText(useCutBlock_));
    F::append(out, "\t\t\t\t<UseHalfBlock>%@</UseHalfBlock>\n", ZOLText::boolText(useHalfBlock_));
    F::append(out, "\t\t\t\t<UseExtenders>%@</UseExtenders>\n", ZOLText::boolText(useExtenders_));
    F::append(out, "\t\t\t\t<UsePravex>%@</UsePravex>\n", ZOLText::boolText(usePravex_));
    F::append(out, "\t\t\t\t<PelmoBrickHeight>%f</PelmoBrickHeight>\n", pelmoBrickHeight_);
    F::append(out, "\t\t\t\t<PelmoBrickLength>%f</PelmoBrickLength>\n", pelmoBrickLength_);
    F::append(out, "\t\t\t\t<PelmoPerBlock>%d</PelmoPerBlock>\n", pelmoPerBlock_);
    out += "\t\t\t</WallData>\n";
}

std::string ZOLWall::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLWall::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    using T = ZOLText;
    switch (forProperty) {
    case ZOLFileProperty::BlockSize:
        blockSize_ = WD::getBlockSizeWithBasicSizeString(value);
        break;
    case ZOLFileProperty::WallWallHeight:
        wallHeight_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::WallWallLength:
        wallLength_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::InsideCornerLocations:
        insideCornerLocations_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::OutsideCornerLocations:
        outsideCornerLocations_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::AngleLocations:
        angleLocations_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::TBlockLocations:
        tBlockLocations_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::LinearFeetCorbel:
        linearFeetCorbel_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::LinearFeetCurb:
        linearFeetCurb_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::CurbCornerLocations:
        curbCornerLocations_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::LinearFeetTapered:
        linearFeetTapered_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::LinearFeetRadius:
        linearFeetRadius_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::Radius:
        radius_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::SquareFeetOpenings:
        sqftOpenings_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::LinearFeetBuck:
        linearFeetBuck_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::StraightBlockAdded:
        straightBlockAdded_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::CornerBlockAdded:
        cornerBlockAdded_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::CaloraStickLayers:
        caloraStickLayers_ = T::leadingInt(value);
        break;
    case ZOLFileProperty::UseCutBlock:
        useCutBlock_ = T::boolValue(value);
        break;
    case ZOLFileProperty::UseHalfBlock:
        useHalfBlock_ = T::boolValue(value);
        break;
    case ZOLFileProperty::UseExtenders:
        useExtenders_ = T::boolValue(value);
        break;
    case ZOLFileProperty::UsePravex:
        usePravex_ = T::boolValue(value);
        break;
    case ZOLFileProperty::PelmoBrickHeight:
        pelmoBrickHeight_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::PelmoBrickLength:
        pelmoBrickLength_ = T::leadingDouble(value);
        break;
    case ZOLFileProperty::PelmoPerBlock:
        pelmoPerBlock_ = T::leadingInt(value);
        break;
    default: // another record's element
        break;
    }
}
