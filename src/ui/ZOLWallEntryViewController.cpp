#include "ui/ZOLWallEntryViewController.h"
#include "ui_ZOLWallEntryViewController.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "model/ZOLWall.h"
#include "ui/ZOLInfoPopup.h"
#include "ui/ZOLStepper.h"

#include <array>
#include <tuple>

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// Block sizes of the block-size box, in item order; any other index means an 8-inch wall.
constexpr std::array<int32_t, 5> kBlockSizes{4, 6, 8, 10, 12};

// Part types whose controls depend on the block size.
constexpr int32_t kAngle = 4;
constexpr int32_t kStraightCurb = 5;
constexpr int32_t kCornerCurb = 6;
constexpr int32_t kTBlock = 7;
constexpr int32_t kCorbel = 8;
constexpr int32_t kTapered = 9;
constexpr int32_t kRadius = 10;
constexpr int32_t kBuck = 11;

template <typename Get, typename Set> auto decimalField(QLineEdit* edit, Get get, Set set) {
    return std::make_tuple(
        edit, [get](const ZOLWall& w) { return ZOLFormat::format("%.2f", (w.*get)()); },
        [set](ZOLWall& w, std::string_view text) { (w.*set)(ZOLText::leadingDouble(text)); });
}

template <typename Get, typename Set> auto countField(QLineEdit* edit, Get get, Set set) {
    return std::make_tuple(
        edit, [get](const ZOLWall& w) { return ZOLFormat::format("%d", (w.*get)()); },
        [set](ZOLWall& w, std::string_view text) { (w.*set)(ZOLText::leadingInt(text)); });
}

} // namespace

ZOLWallEntryViewController::ZOLWallEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLWallEntryViewController>()) {
    ui_->setupUi(this);

    // The height box lists the 16-inch courses as feet and inches.
    const auto& heights = ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches();
    for (size_t i = 0; i < heights.size(); ++i)
        ui_->wallHeight->addItem(
            qs(ZOLCalculatorMaster::getWallHeightTextAtSixteenInchesForIndex(i)));

    auto add = [this](auto binding, ZOLStepper* stepper = nullptr) {
        auto [edit, show, write] = binding;
        fields_.push_back(TextField{edit, show, write, stepper});
    };
    add(decimalField(ui_->wallLength, &ZOLWall::wallLength, &ZOLWall::setWallLength));
    add(countField(ui_->insideCornerLocations, &ZOLWall::insideCornerLocations,
                   &ZOLWall::setInsideCornerLocations));
    add(countField(ui_->outsideCornerLocations, &ZOLWall::outsideCornerLocations,
                   &ZOLWall::setOutsideCornerLocations));
    add(countField(ui_->angleLocations, &ZOLWall::angleLocations, &ZOLWall::setAngleLocations));
    add(countField(ui_->tBlockLocations, &ZOLWall::tBlockLocations, &ZOLWall::setTBlockLocations));
    add(decimalField(ui_->lfCorbelBlock, &ZOLWall::linearFeetCorbel,
                     &ZOLWall::setLinearFeetCorbel));
    add(decimalField(ui_->lfCurbBlock, &ZOLWall::linearFeetCurb, &ZOLWall::setLinearFeetCurb));
    add(countField(ui_->cornerCurbLocations, &ZOLWall::curbCornerLocations,
                   &ZOLWall::setCurbCornerLocations));
    add(decimalField(ui_->lfTaperedBlock, &ZOLWall::linearFeetTapered,
                     &ZOLWall::setLinearFeetTapered));
    add(decimalField(ui_->lfRadiusBlock, &ZOLWall::linearFeetRadius,
                     &ZOLWall::setLinearFeetRadius));
    add(decimalField(ui_->sqftOpenings, &ZOLWall::sqftOpenings, &ZOLWall::setSqftOpenings));
    add(decimalField(ui_->lfZolBuck, &ZOLWall::linearFeetBuck, &ZOLWall::setLinearFeetBuck));
    add(decimalField(ui_->lfBrick, &ZOLWall::pelmoBrickLength, &ZOLWall::setPelmoBrickLength));
    add(decimalField(ui_->brickHeight, &ZOLWall::pelmoBrickHeight, &ZOLWall::setPelmoBrickHeight));
    add(countField(ui_->addedStraightBlocks, &ZOLWall::straightBlockAdded,
                   &ZOLWall::setStraightBlockAdded),
        ui_->addStraightStepper);
    add(countField(ui_->addedCornerBlocks, &ZOLWall::cornerBlockAdded,
                   &ZOLWall::setCornerBlockAdded),
        ui_->addCornerStepper);

    for (size_t i = 0; i < fields_.size(); ++i) {
        QLineEdit* edit = fields_[i].edit;
        connect(edit, &QLineEdit::textEdited, this,
                [this, i] { controlTextDidChange(fields_[i]); });
        connect(edit, &QLineEdit::editingFinished, this,
                [this, i] { controlTextDidEndEditing(fields_[i]); });
    }

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
    for (const TextField& field : fields_)
        field.edit->setText(qs(field.show(w)));
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
    const double height = wall().wallHeight();
    const auto& heights = ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches();
    int found = -1;
    for (size_t i = 0; i < heights.size(); ++i) {
        if (heights[i] == height) {
            found = static_cast<int>(i);
            break;
        }
    }
    // A height from a file that is not a 16-inch course shows its own text, unselected.
    ui_->wallHeight->setPlaceholderText(
        found < 0 ? qs(ZOLCalculatorMaster::convertFeetToText(height)) : QString());
    ui_->wallHeight->setCurrentIndex(found);
}

void ZOLWallEntryViewController::selectItem(QComboBox* box, int32_t value) {
    box->setCurrentIndex(box->findText(qs(ZOLFormat::format("%d", value)), Qt::MatchExactly));
}

void ZOLWallEntryViewController::toggleControlsAvailable() {
    const int32_t size = wall().blockSize();
    auto valid = [size](int32_t type) {
        return ZOLWallData::getValidSizeWithBlockType(type, size);
    };
    ui_->radius->setEnabled(valid(kRadius));
    ui_->lfRadiusBlock->setEnabled(valid(kRadius));
    ui_->lfCorbelBlock->setEnabled(valid(kCorbel));
    ui_->lfTaperedBlock->setEnabled(valid(kTapered));
    ui_->tBlockLocations->setEnabled(valid(kTBlock));
    ui_->angleLocations->setEnabled(valid(kAngle));
    ui_->lfCurbBlock->setEnabled(valid(kStraightCurb));
    ui_->cornerCurbLocations->setEnabled(valid(kCornerCurb));
    ui_->lfZolBuck->setEnabled(valid(kBuck));
}

void ZOLWallEntryViewController::controlTextDidChange(const TextField& field) {
    const QString typed = field.edit->text();
    const std::string utf8 = typed.toStdString();
    const std::optional<std::string> cleaned = ZOLText::entryFieldText(utf8);
    if (!cleaned)
        return; // an emptied field changes nothing until something is typed
    if (*cleaned != utf8) {
        // Keep the cursor after the same characters it followed before the cleaning.
        // When nothing was kept the field shows "0" and the cursor goes after it.
        const qsizetype cursor = field.edit->cursorPosition();
        qsizetype keptBefore = 0;
        qsizetype kept = 0;
        for (qsizetype i = 0; i < typed.size(); ++i) {
            const QChar c = typed[i];
            if ((c >= u'0' && c <= u'9') || c == u'.') {
                ++kept;
                if (i < cursor)
                    ++keptBefore;
            }
        }
        const QString shown = qs(*cleaned);
        field.edit->setText(shown);
        field.edit->setCursorPosition(static_cast<int>(kept == 0 ? shown.size() : keptBefore));
    }
    field.write(wall(), *cleaned);
    // The stepper continues from the typed number.
    if (field.stepper)
        field.stepper->setValue(ZOLText::leadingInt(*cleaned));
    refreshResults();
    emit edited();
}

void ZOLWallEntryViewController::controlTextDidEndEditing(const TextField& field) {
    field.edit->setText(qs(field.show(wall())));
}

void ZOLWallEntryViewController::comboBoxSelectionDidChange(QComboBox* box, int index) {
    if (index < 0)
        return;
    ZOLWall& w = wall();
    if (box == ui_->wallHeight) {
        const auto& heights = ZOLCalculatorMaster::getAvailableWallHeightsAtSixteenInches();
        if (static_cast<size_t>(index) >= heights.size())
            return;
        w.setWallHeight(heights[static_cast<size_t>(index)]);
        ui_->wallHeight->setPlaceholderText(QString());
    } else if (box == ui_->radius) {
        w.setRadius(ZOLNumeric::wrapAdd(index, 5));
    } else if (box == ui_->caloraStickLayers) {
        w.setCaloraStickLayers(index);
    } else if (box == ui_->pelmoPerBlock) {
        w.setPelmoPerBlock(ZOLNumeric::wrapAdd(index, 2));
    } else if (box == ui_->blockSize) {
        w.setBlockSize(static_cast<size_t>(index) < kBlockSizes.size()
                           ? kBlockSizes[static_cast<size_t>(index)]
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
