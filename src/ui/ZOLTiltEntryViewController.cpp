#include "ui/ZOLTiltEntryViewController.h"
#include "ui_ZOLTiltEntryViewController.h"

#include "calc/ZOLTiltCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLTilt.h"
#include "ui/ZOLQtText.h"

ZOLTiltEntryViewController::ZOLTiltEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLTiltEntryViewController>()) {
    ui_->setupUi(this);
    fields_.addDecimal(ui_->wallHeight, &ZOLTilt::wallHeight, &ZOLTilt::setWallHeight);
    fields_.addDecimal(ui_->wallLength, &ZOLTilt::wallLength, &ZOLTilt::setWallLength);
    fields_.connect(
        this, [this]() -> ZOLTilt& { return tilt(); },
        [this](const auto&) {
            loadCalculatedValues();
            emit edited();
        });
}

ZOLTiltEntryViewController::~ZOLTiltEntryViewController() {
    // A field that loses focus while the controls are torn down must not call back.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLTiltEntryViewController::setTiltData(std::shared_ptr<ZOLTilt> tiltData) {
    tiltData_ = std::move(tiltData);
}

ZOLTilt& ZOLTiltEntryViewController::tilt() {
    if (!tiltData_)
        tiltData_ = std::make_shared<ZOLTilt>();
    return *tiltData_;
}

void ZOLTiltEntryViewController::loadValues() {
    fields_.load(tilt());
    loadCalculatedValues();
}

void ZOLTiltEntryViewController::loadCalculatedValues() {
    const ZOLTilt& t = tilt();
    auto count = [](int32_t value) { return qs(ZOLFormat::format("%d", value)); };
    auto decimal = [](double value) { return qs(ZOLFormat::format("%.2f", value)); };
    const int32_t panelBundleSize = ZOLTiltCalculator::getPanelBundleSize();
    const int32_t insertBundleSize = ZOLTiltCalculator::getInsertBundleSize();
    ui_->totalSquareFeet->setText(decimal(t.wallHeight() * t.wallLength()));
    ui_->panelActualParts->setText(count(t.getPanels()));
    ui_->panelPartsPerBundle->setText(count(panelBundleSize));
    ui_->panelBundles->setText(count(t.getPanelBundles()));
    ui_->panelPartsRounded->setText(
        count(ZOLNumeric::wrapMul(t.getPanelBundles(), panelBundleSize)));
    ui_->panelWeight->setText(decimal(t.getPanelWeight()));
    ui_->insertActualParts->setText(count(t.getInserts()));
    ui_->insertPartsPerBundle->setText(count(insertBundleSize));
    ui_->insertBundles->setText(count(t.getInsertBundles()));
    ui_->insertPartsRounded->setText(
        count(ZOLNumeric::wrapMul(t.getInsertBundles(), insertBundleSize)));
    ui_->insertWeight->setText(decimal(t.getInsertWeight()));
    ui_->totalWeight->setText(decimal(t.getPanelWeight() + t.getInsertWeight()));
}
