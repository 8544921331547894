#include "ui/ZOLWallEntryViewController.h"
#include "ui_ZOLWallEntryViewController.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "model/ZOLWall.h"
#include "ui/ZOLEntryFields.h"
#include "ui/ZOLInfoPopup.h"
#include "ui/ZOLInfoShortcut.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLStepper.h"
#include "ui/ZOLWallHeightBox.h"

ZOLWallEntryViewController::ZOLWallEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLWallEntryViewController>()) {
    ui_->setupUi(this);

    // The height box lists the 16-inch courses as feet and inches.
    ZOLWallHeightBox::fill(ui_->wallHeight,
                           ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches());

    using W = ZOLWall;
    fields_.addDecimal(ui_->wallLength, &W::wallLength, &W::setWallLength);
    fields_.addCount(ui_->insideCornerLocations, &W::insideCornerLocations,
                     &W::setInsideCornerLocations);
    fields_.addCount(ui_->outsideCornerLocations, &W::outsideCornerLocations,
                     &W::setOutsideCornerLocations);
    fields_.addCount(ui_->angleLocations, &W::angleLocations, &W::setAngleLocations);
    fields_.addCount(ui_->tBlockLocations, &W::tBlockLocations, &W::setTBlockLocations);
    fields_.addDecimal(ui_->lfCorbelBlock, &W::linearFeetCorbel, &W::setLinearFeetCorbel);
    fields_.addDecimal(ui_->lfCurbBlock, &W::linearFeetCurb, &W::setLinearFeetCurb);
    fields_.addCount(ui_->cornerCurbLocations, &W::curbCornerLocations, &W::setCurbCornerLocations);
    fields_.addDecimal(ui_->lfTaperedBlock, &W::linearFeetTapered, &W::setLinearFeetTapered);
    fields_.addDecimal(ui_->lfRadiusBlock, &W::linearFeetRadius, &W::setLinearFeetRadius);
    fields_.addDecimal(ui_->sqftOpenings, &W::sqftOpenings, &W::setSqftOpenings);
    fields_.addDecimal(ui_->lfZolBuck, &W::linearFeetBuck, &W::setLinearFeetBuck);
    fields_.addDecimal(ui_->lfBrick, &W::pelmoBrickLength, &W::setPelmoBrickLength);
    fields_.addDecimal(ui_->brickHeight, &W::pelmoBrickHeight, &W::setPelmoBrickHeight);
    fields_.addCount(ui_->addedStraightBlocks, &W::straightBlockAdded, &W::setStraightBlockAdded);
    fields_.addCount(ui_->addedCornerBlocks, &W::cornerBlockAdded, &W::setCornerBlockAdded);
    fields_.connect(
        this, [this]() -> ZOLWall& { return wall(); },
        [this](const ZOLEntryFields<ZOLWall>::Field& field) { controlTextDidChange(field.edit); });

    for (QComboBox* box :
         {ui_->wallHeight, ui_->blockSize, ui_->radius, ui_->caloraStickLayers, ui_->pelmoPerBlock})
        connect(box, &QComboBox::activated, this,
                [this, box](int index) { comboBoxSelectionDidChange(box, index); });

    // clicked, not toggled: only the user's change writes the wall, never a load.
    for (QCheckBox* box : {ui_->addCutBlock, ui_->addHalfBlock, ui_->addExtenders, ui_->addPravex})
        connect(box, &QCheckBox::clicked, this, [this, box] { checkboxChanged(box); });

    connect(ui_->addStraightStepper, &ZOLStepper::stepped, this,
            [this] { addStraightBlockStep(); });
    connect(ui_->addCornerStepper, &ZOLStepper::stepped, this, [this] { addCornerBlockStep(); });

    infoButtons_ = {
        {ui_->wallHeightInfo, 0},   {ui_->wallLengthInfo, 1},   {ui_->cornerInfo, 2},
        {ui_->angleInfo, 4},        {ui_->tBlockInfo, 5},       {ui_->corbelInfo, 6},
        {ui_->curbInfo, 7},         {ui_->taperedInfo, 8},      {ui_->radiusInfo, 9},
        {ui_->zolBuckInfo, 10},     {ui_->addStraightInfo, 11}, {ui_->addCornerInfo, 12},
        {ui_->caloraStickInfo, 13}, {ui_->halfBlockInfo, 14},   {ui_->extendersInfo, 15}};
    for (const auto& [button, index] : infoButtons_) {
        QToolButton* b = button;
        connect(b, &QToolButton::clicked, this, [this, b] { displayInfo(b); });
    }
    // F1 in a field opens the illustration of the "?" button beside it.
    ZOLInfoShortcut::install(ui_->wallHeightInfo, {ui_->wallHeight});
    ZOLInfoShortcut::install(ui_->halfBlockInfo, {ui_->addHalfBlock, ui_->addCutBlock});
    ZOLInfoShortcut::install(ui_->extendersInfo, {ui_->addExtenders});
    ZOLInfoShortcut::install(ui_->wallLengthInfo, {ui_->wallLength});
    ZOLInfoShortcut::install(ui_->cornerInfo,
                             {ui_->insideCornerLocations, ui_->outsideCornerLocations});
    ZOLInfoShortcut::install(ui_->angleInfo, {ui_->angleLocations});
    ZOLInfoShortcut::install(ui_->tBlockInfo, {ui_->tBlockLocations});
    ZOLInfoShortcut::install(ui_->corbelInfo, {ui_->lfCorbelBlock});
    ZOLInfoShortcut::install(ui_->curbInfo, {ui_->lfCurbBlock, ui_->cornerCurbLocations});
    ZOLInfoShortcut::install(ui_->taperedInfo, {ui_->lfTaperedBlock});
    ZOLInfoShortcut::install(ui_->radiusInfo, {ui_->lfRadiusBlock, ui_->radius});
    ZOLInfoShortcut::install(ui_->zolBuckInfo, {ui_->lfZolBuck});
    ZOLInfoShortcut::install(ui_->addStraightInfo, {ui_->addedStraightBlocks});
    ZOLInfoShortcut::install(ui_->addCornerInfo, {ui_->addedCornerBlocks});
    ZOLInfoShortcut::install(ui_->caloraStickInfo, {ui_->caloraStickLayers});
}

ZOLWallEntryViewController::~ZOLWallEntryViewController() {
    // The controls outlive this object's members while QWidget tears them down; a field that
    // loses focus then must not call back into a half-destroyed screen.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLWallEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

ZOLWall& ZOLWallEntryViewController::wall() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    return *wallData_;
}

void ZOLWallEntryViewController::loadValues() {
    ZOLWall& w = wall();
    ui_->addCutBlock->setChecked(w.useCutBlock());
    ui_->addHalfBlock->setChecked(w.useHalfBlock());
    ui_->addExtenders->setChecked(w.useExtenders());
    fields_.load(w);
    ui_->addStraightStepper->setValue(w.straightBlockAdded());
    ui_->addCornerStepper->setValue(w.cornerBlockAdded());
    loadWallHeight();
    selectItem(ui_->radius, w.radius());
    selectItem(ui_->caloraStickLayers, w.caloraStickLayers());
    selectItem(ui_->pelmoPerBlock, w.pelmoPerBlock());
    // The block size items read 4" to 12".
    ui_->blockSize->setCurrentIndex(
        ui_->blockSize->findText(qs(ZOLFormat::format("%d\"", w.blockSize())), Qt::MatchExactly));
    ui_->addPravex->setChecked(w.usePravex());
    toggleControlsAvailable();
    refreshResults();
}

void ZOLWallEntryViewController::loadWallHeight() {
    ZOLWallHeightBox::select(ui_->wallHeight,
                             ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches(),
                             wall().wallHeight());
}

void ZOLWallEntryViewController::selectItem(QComboBox* box, int32_t value) {
    box->setCurrentIndex(box->findText(qs(ZOLFormat::format("%d", value)), Qt::MatchExactly));
}

void ZOLWallEntryViewController::toggleControlsAvailable() {
    const int32_t size = wall().blockSize();
    auto valid = [size](int32_t type) {
        return ZOLWallData::getValidSizeWithBlockType(type, size);
    };
    ui_->radius->setEnabled(valid(ZOLWallData::Radius));
    ui_->lfRadiusBlock->setEnabled(valid(ZOLWallData::Radius));
    ui_->lfCorbelBlock->setEnabled(valid(ZOLWallData::Corbel));
    ui_->lfTaperedBlock->setEnabled(valid(ZOLWallData::Tapered));
    ui_->tBlockLocations->setEnabled(valid(ZOLWallData::TBlock));
    ui_->angleLocations->setEnabled(valid(ZOLWallData::Angle));
    ui_->lfCurbBlock->setEnabled(valid(ZOLWallData::StraightCurb));
    ui_->cornerCurbLocations->setEnabled(valid(ZOLWallData::CornerCurb));
    ui_->lfZolBuck->setEnabled(valid(ZOLWallData::Buck));
}

void ZOLWallEntryViewController::controlTextDidChange(QLineEdit* edit) {
    // The stepper continues from the typed number.
    if (edit == ui_->addedStraightBlocks)
        ui_->addStraightStepper->setValue(wall().straightBlockAdded());
    else if (edit == ui_->addedCornerBlocks)
        ui_->addCornerStepper->setValue(wall().cornerBlockAdded());
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::comboBoxSelectionDidChange(QComboBox* box, int index) {
    if (index < 0)
        return;
    ZOLWall& w = wall();
    if (box == ui_->wallHeight) {
        const auto height = ZOLWallHeightBox::chosen(
            box, ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches(), index);
        if (!height)
            return;
        w.setWallHeight(*height);
    } else if (box == ui_->radius) {
        w.setRadius(ZOLNumeric::wrapAdd(index, 5));
    } else if (box == ui_->caloraStickLayers) {
        w.setCaloraStickLayers(index);
    } else if (box == ui_->pelmoPerBlock) {
        w.setPelmoPerBlock(ZOLNumeric::wrapAdd(index, 2));
    } else if (box == ui_->blockSize) {
        // The box lists the line's sizes in order; any other index means an 8-inch wall.
        const auto& sizes = ZOLWallData::kBlockSizes;
        w.setBlockSize(static_cast<size_t>(index) < sizes.size() ? sizes[static_cast<size_t>(index)]
                                                                 : ZOLWallData::kDefaultBlockSize);
        toggleControlsAvailable();
    }
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::checkboxChanged(QCheckBox* box) {
    ZOLWall& w = wall();
    const bool on = box->isChecked();
    if (box == ui_->addCutBlock)
        w.setUseCutBlock(on);
    else if (box == ui_->addHalfBlock)
        w.setUseHalfBlock(on);
    else if (box == ui_->addExtenders)
        w.setUseExtenders(on);
    else if (box == ui_->addPravex)
        w.setUsePravex(on);
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::addStraightBlockStep() {
    wall().setStraightBlockAdded(ui_->addStraightStepper->value());
    ui_->addedStraightBlocks->setText(qs(ZOLFormat::format("%d", wall().straightBlockAdded())));
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::addCornerBlockStep() {
    wall().setCornerBlockAdded(ui_->addCornerStepper->value());
    ui_->addedCornerBlocks->setText(qs(ZOLFormat::format("%d", wall().cornerBlockAdded())));
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::displayInfo(QObject* sender) {
    int32_t index = -1;
    for (const auto& [button, buttonIndex] : infoButtons_)
        if (button == sender)
            index = buttonIndex;
    ZOLInfoPopup::display(this, index);
}

void ZOLWallEntryViewController::refreshResults() {
    const ZOLWall& w = wall();
    ui_->totalHeight->setText(qs(ZOLCalculatorMaster::convertFeetToText(w.getTotalWallHeight())));
    ui_->takeoffRows->setText(qs(ZOLFormat::format("%d", w.getRows())));
    ui_->takeoffStraightBlocks->setText(qs(ZOLFormat::format("%d", w.getStraightBlocks())));
    ui_->takeoffCornerBlocks->setText(qs(ZOLFormat::format("%d", w.getCornerBlocks())));
    ui_->takeoffConcrete->setText(qs(ZOLFormat::format("%.2f", w.getConcreteYards())));
    ui_->takeoffTrucks->setText(qs(ZOLFormat::format("%.2f", w.getTrucks())));
}
