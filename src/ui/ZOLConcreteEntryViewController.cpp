#include "ui/ZOLConcreteEntryViewController.h"
#include "ui_ZOLConcreteEntryViewController.h"

#include "io/ZOLFormat.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLQtText.h"

#include <array>
#include <tuple>

ZOLConcreteEntryViewController::ZOLConcreteEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLConcreteEntryViewController>()) {
    ui_->setupUi(this);

    using C = ZOLConcrete;
    fields_.addCount(ui_->footingWidth, &C::footingWidth, &C::setFootingWidth);
    fields_.addCount(ui_->footingDepth, &C::footingDepth, &C::setFootingDepth);
    fields_.addDecimal(ui_->footingLength, &C::footingLength, &C::setFootingLength);
    fields_.addCount(ui_->wallThickness, &C::wallThickness, &C::setWallThickness);
    fields_.addDecimal(ui_->wallHeight, &C::wallHeight, &C::setWallHeight);
    fields_.addDecimal(ui_->wallLength, &C::wallLength, &C::setWallLength);
    fields_.addDecimal(ui_->slabWidth, &C::slabWidth, &C::setSlabWidth);
    fields_.addCount(ui_->slabDepth, &C::slabDepth, &C::setSlabDepth);
    fields_.addDecimal(ui_->slabLength, &C::slabLength, &C::setSlabLength);
    fields_.addCount(ui_->pileDiameter, &C::pileDiameter, &C::setPileDiameter);
    fields_.addDecimal(ui_->pileDepth, &C::pileDepth, &C::setPileDepth);
    fields_.addCount(ui_->pileCount, &C::pileCount, &C::setPileCount);
    fields_.connect(
        this, [this]() -> ZOLConcrete& { return concrete(); },
        [this](const auto&) {
            loadCalculatedValues();
            emit edited();
        });

    connect(ui_->cubicYards, &QRadioButton::clicked, this, [this] { changeMeasurement(0); });
    connect(ui_->cubicMetres, &QRadioButton::clicked, this, [this] { changeMeasurement(1); });
    connect(ui_->removeOpenings, &QCheckBox::clicked, this, [this](bool ticked) {
        concrete().setRemoveSqFtOpenings(ticked);
        loadCalculatedValues();
        emit edited();
    });
    connect(ui_->pullWallData, &QPushButton::clicked, this, [this] { pullWallData(); });
}

ZOLConcreteEntryViewController::~ZOLConcreteEntryViewController() {
    // A field that loses focus while the controls are torn down must not call back.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLConcreteEntryViewController::setConcreteData(std::shared_ptr<ZOLConcrete> concreteData) {
    concreteData_ = std::move(concreteData);
}

void ZOLConcreteEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

ZOLConcrete& ZOLConcreteEntryViewController::concrete() {
    if (!concreteData_)
        concreteData_ = std::make_shared<ZOLConcrete>();
    return *concreteData_;
}

void ZOLConcreteEntryViewController::loadValues() {
    const ZOLConcrete& c = concrete();
    (c.measurement() == 1 ? ui_->cubicMetres : ui_->cubicYards)->setChecked(true);
    fields_.load(c);
    ui_->removeOpenings->setChecked(c.removeSqFtOpenings());
    loadCalculatedValues();
}

void ZOLConcreteEntryViewController::loadCalculatedValues() {
    const ZOLConcrete& c = concrete();
    const std::string unit = c.measurement() == 1 ? "M³" : "Y³";
    for (QLabel* label : {ui_->footingMeasurement, ui_->wallMeasurement, ui_->slabMeasurement,
                          ui_->pileMeasurement})
        label->setText(qs(unit));
    double volume = 0.0;
    double weight = 0.0;
    const std::array<std::tuple<QLineEdit*, QLineEdit*, double, double>, 4> pours{{
        {ui_->footingVolume, ui_->footingWeight, c.getFootingVolume(), c.getFootingWeight()},
        {ui_->wallVolume, ui_->wallWeight, c.getWallVolume(), c.getWallWeight()},
        {ui_->slabVolume, ui_->slabWeight, c.getSlabVolume(), c.getSlabWeight()},
        {ui_->pileVolume, ui_->pileWeight, c.getPileVolume(), c.getPileWeight()},
    }};
    for (const auto& [volumeField, weightField, pourVolume, pourWeight] : pours) {
        volumeField->setText(qs(ZOLFormat::format("%.2f", pourVolume)));
        weightField->setText(qs(ZOLFormat::format("%.2f lbs", pourWeight)));
        volume += pourVolume;
        weight += pourWeight;
    }
    ui_->totalVolume->setText(qs(ZOLFormat::format("%.2f %@", volume, unit)));
    ui_->totalWeight->setText(qs(ZOLFormat::format("%.2f lbs", weight)));
}

void ZOLConcreteEntryViewController::changeMeasurement(int32_t measurement) {
    concrete().setMeasurement(measurement);
    loadCalculatedValues();
    emit edited();
}

void ZOLConcreteEntryViewController::pullWallData() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    ZOLConcrete& c = concrete();
    c.setWallHeight(wallData_->getTotalWallHeight());
    c.setWallLength(wallData_->wallLength());
    c.setWallThickness(wallData_->blockSize());
    loadValues();
    emit edited();
    ZOLAlerts::run("Wall data retrieved.", "", {"OK"});
}
