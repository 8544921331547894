#include "ui/ZOLTabToggle.h"
#include "ui_ZOLTabToggle.h"

ZOLTabToggle::ZOLTabToggle(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLTabToggle>()) {
    ui_->setupUi(this);
    setWindowModality(Qt::WindowModal);
    connect(ui_->ok, &QPushButton::clicked, this, &QDialog::accept);
}

ZOLTabToggle::~ZOLTabToggle() = default;

void ZOLTabToggle::setSwitches(const Switches& switches) {
    ui_->summarizeWall->setChecked(switches.wall);
    ui_->summarizeRebar->setChecked(switches.rebar);
    ui_->summarizeConcrete->setChecked(switches.concrete);
    ui_->summarizeTilt->setChecked(switches.tilt);
    ui_->summarizeManHours->setChecked(switches.manHours);
}

ZOLTabToggle::Switches ZOLTabToggle::switches() const {
    return {ui_->summarizeWall->isChecked(), ui_->summarizeRebar->isChecked(),
            ui_->summarizeConcrete->isChecked(), ui_->summarizeTilt->isChecked(),
            ui_->summarizeManHours->isChecked()};
}
