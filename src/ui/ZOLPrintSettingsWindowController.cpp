#include "ui/ZOLPrintSettingsWindowController.h"

#include "platform/ZOLPreferences.h"
#include "report/ZOLPrintSettings.h"
#include "ui_ZOLPrintSettingsWindowController.h"

#include <QButtonGroup>
#include <QPushButton>

ZOLPrintSettingsWindowController::ZOLPrintSettingsWindowController(
    QWidget* parent, std::shared_ptr<ZOLPreferences> preferences)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLPrintSettingsWindowController>()),
      preferences_(preferences ? std::move(preferences) : ZOLPreferences::shared()),
      settings_(std::make_unique<ZOLPrintSettings>(*preferences_)) {
    ui_->setupUi(this);
    ui_->printAllWorksheetsSelection->setId(ui_->allWorksheets,
                                            ZOLPrintSettings::kAllWorksheetsTag);
    ui_->printAllWorksheetsSelection->setId(ui_->currentWorksheet,
                                            ZOLPrintSettings::kCurrentWorksheetTag);
    windowDidLoad();

    connect(ui_->printAllWorksheetsSelection, &QButtonGroup::buttonClicked, this,
            &ZOLPrintSettingsWindowController::radioButtonChanged);
    for (QCheckBox* box : findChildren<QCheckBox*>())
        connect(box, &QCheckBox::toggled, this, [this, box] { checkboxChanged(box); });
    connect(ui_->acceptButton, &QPushButton::clicked, this,
            &ZOLPrintSettingsWindowController::acceptChangesClicked);
    connect(ui_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

ZOLPrintSettingsWindowController::~ZOLPrintSettingsWindowController() = default;

void ZOLPrintSettingsWindowController::windowDidLoad() {
    (settings_->printAllWorksheets() ? ui_->allWorksheets : ui_->currentWorksheet)
        ->setChecked(true);
    const std::pair<QCheckBox*, bool> boxes[] = {
        {ui_->printConcreteCheckbox, settings_->printConcrete()},
        {ui_->printManHourCheckbox, settings_->printManHour()},
        {ui_->printOpeningsCheckbox, settings_->printOpenings()},
        {ui_->printRebarCheckbox, settings_->printRebar()},
        {ui_->printSummaryCheckbox, settings_->printSummary()},
        {ui_->printTiltCheckbox, settings_->printTilt()},
        {ui_->printWallCheckbox, settings_->printWall()},
        {ui_->printJobSummaryCheckbox, settings_->printJobSummary()},
        {ui_->printProjectNotesCheckbox, settings_->printProjectNotes()},
    };
    for (const auto& [box, on] : boxes) {
        const QSignalBlocker blocker(box);
        box->setChecked(on);
    }
    updatePageCount();
}

void ZOLPrintSettingsWindowController::setNumberOfWorksheets(int32_t count) {
    settings_->setNumberOfWorksheets(count);
    updatePageCount();
}

void ZOLPrintSettingsWindowController::setAcceptTitle(const QString& title) {
    ui_->acceptButton->setText(title);
}

void ZOLPrintSettingsWindowController::radioButtonChanged(QAbstractButton* button) {
    settings_->radioButtonChanged(ui_->printAllWorksheetsSelection->id(button));
    updatePageCount();
}

void ZOLPrintSettingsWindowController::checkboxChanged(QCheckBox* box) {
    settings_->checkboxChanged(box->objectName().toStdString(), box->isChecked());
    updatePageCount();
}

void ZOLPrintSettingsWindowController::updatePageCount() {
    ui_->pageCount->setText(QString::fromStdString(settings_->getPageCountText()));
}

void ZOLPrintSettingsWindowController::acceptChangesClicked() {
    settings_->acceptChanges(*preferences_);
    accept();
}

bool ZOLPrintSettingsWindowController::acceptChanges() const {
    return settings_->acceptChanges();
}

int32_t ZOLPrintSettingsWindowController::getPageCount() const {
    return settings_->getPageCount();
}

std::map<std::string, bool> ZOLPrintSettingsWindowController::getZolPrintSettings() const {
    return settings_->getZolPrintSettings();
}
