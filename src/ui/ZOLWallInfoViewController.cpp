#include "ui/ZOLWallInfoViewController.h"
#include "ui_ZOLWallInfoViewController.h"

#include "calc/ZOLCalculatorMaster.h"
#include "io/ZOLFormat.h"
#include "model/ZOLWall.h"
#include "ui/ZOLQtText.h"

namespace {

QString feet(double value) {
    return qs(ZOLCalculatorMaster::convertFeetToText(value));
}
template <typename... Args> QString fmt(const char* format, const Args&... args) {
    return qs(ZOLFormat::format(format, args...));
}

} // namespace

ZOLWallInfoViewController::ZOLWallInfoViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLWallInfoViewController>()) {
    ui_->setupUi(this);
}

ZOLWallInfoViewController::~ZOLWallInfoViewController() = default;

void ZOLWallInfoViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

void ZOLWallInfoViewController::setWorksheetName(std::string worksheetName) {
    worksheetName_ = std::move(worksheetName);
}

void ZOLWallInfoViewController::loadValues() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    const ZOLWall& w = *wallData_;
    ui_->pageTitle->setText(worksheetName_.empty()
                                ? QStringLiteral("WALL DATA FOR CURRENT WORKSHEET")
                                : fmt("%@ WALL DATA", worksheetName_));
    ui_->blockSize->setText(fmt("%d\"", w.blockSize()));
    // The total height, half, cut and extender courses included.
    ui_->wallHeight->setText(feet(w.getTotalWallHeight()));
    ui_->rows->setText(fmt("%d", w.getRows()));
    ui_->wallLength->setText(fmt("%.2f", w.wallLength()));
    ui_->insideCornerLocations->setText(fmt("%d", w.insideCornerLocations()));
    ui_->outsideCornerLocations->setText(fmt("%d", w.outsideCornerLocations()));
    ui_->angleLocations->setText(fmt("%d", w.angleLocations()));
    ui_->tBlockLocations->setText(fmt("%d", w.tBlockLocations()));
    ui_->curbCornerLocations->setText(fmt("%d", w.curbCornerLocations()));
    const double inside = w.getLinearFeetOfInsideCorners();
    const double outside = w.getLinearFeetOfOutsideCorners();
    const double ts = w.getLinearFeetOfTBlock();
    ui_->lfInsideCorners->setText(feet(inside));
    ui_->lfOutsideCorners->setText(feet(outside));
    ui_->lfAngles->setText(feet(w.getLinearFeetOfAngles()));
    ui_->lfTBlock->setText(feet(ts));
    ui_->lfStraightCurbBlock->setText(feet(w.linearFeetCurb()));
    ui_->lfCorbelBlock->setText(feet(w.linearFeetCorbel()));
    ui_->lfTaperedBlock->setText(feet(w.linearFeetTapered()));
    ui_->lfRadiusBlock->setText(feet(w.linearFeetRadius()));
    ui_->sqftBrick->setText(fmt("%.2f", ZOLCalculatorMaster::calculateSqFtWithWidth(
                                            w.pelmoBrickHeight(), w.pelmoBrickLength(), false)));
    ui_->pelmoPerBlock->setText(fmt("%d", w.pelmoPerBlock()));
    ui_->radius->setText(fmt("@ %d foot radius", w.radius()));
    ui_->lfCornersAndTs->setText(feet(inside + outside + ts));
    ui_->lfStraightBlock->setText(feet(w.getLinearFeetOfStraightBlock()));
    ui_->sqftOpenings->setText(fmt("%.2f", w.sqftOpenings()));
    ui_->lfZolBuck->setText(feet(w.linearFeetBuck()));
    ui_->openingsInBlockCount->setText(fmt("%d", w.getOpeningsInBlockCount()));
    ui_->grossSqFt->setText(fmt("%.2f", w.getGrossSqFtOfWall()));
    ui_->netSqFt->setText(fmt("%.2f", w.getNetSqFtOfWall()));
    ui_->trucks->setText(fmt("%.2f", w.getTrucks()));
    ui_->concrete->setText(fmt("%.2f Y   %.2f M", w.getConcreteYards(), w.getConcreteMeters()));
    ui_->bracing->setText(fmt("%d", w.getBracing()));
}
