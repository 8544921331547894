#include "ui/ZOLDocument.h"

#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "platform/ZOLAlerts.h"
#include "report/ZOLPrintData.h"
#include "ui/ZOLBlockInfoViewController.h"
#include "ui/ZOLChangeOrderWindow.h"
#include "ui/ZOLConcreteEntryViewController.h"
#include "ui/ZOLDocumentController.h"
#include "ui/ZOLFieldAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLHelpMenu.h"
#include "ui/ZOLJobSummaryViewController.h"
#include "ui/ZOLManHoursEntryViewController.h"
#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui/ZOLPricingWindowController.h"
#include "ui/ZOLPrintSettingsWindowController.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLRebarEntryViewController.h"
#include "ui/ZOLRecentFiles.h"
#include "ui/ZOLRecoveryStore.h"
#include "ui/ZOLReportProgress.h"
#include "ui/ZOLReportRenderer.h"
#include "ui/ZOLResultFields.h"
#include "ui/ZOLSavedPricesBar.h"
#include "ui/ZOLSettingsPreferences.h"
#include "ui/ZOLSpreadsheetExport.h"
#include "ui/ZOLTiltEntryViewController.h"
#include "ui/ZOLWallEntryViewController.h"
#include "ui/ZOLWallInfoViewController.h"
#include "ui/ZOLWorkbookSummaryViewController.h"
#include "ui_ZOLDocument.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QUndoStack>
#include <QUrl>

namespace {
const char* kDuplicateWorksheet =
    "A worksheet with that name already exists. Please try again with a different worksheet "
    "name.";
} // namespace

ZOLDocument::ZOLDocument(ZOLDocumentController* controller, QWidget* parent)
    : QMainWindow(parent), ui_(std::make_unique<Ui::ZOLDocument>()), controller_(controller),
      job_(new ZOLJobDocument(this)) {
    ui_->setupUi(this);
    fitToScreen();
    setAttribute(Qt::WA_DeleteOnClose, controller_ != nullptr);
    if (controller_) {
        job_->setUntitledNumber(controller_->nextUntitledNumber());
        job_->setRecoverySlotMaker([this] { return controller_->recoveryStore().createSlot(); });
    }

    // The header sits on a black band; the screens below keep the ordinary colours. The
    // ordinary palette is set role by role so that the band's colours do not pass through.
    QPalette band = ui_->mainView->palette();
    band.setColor(QPalette::Window, Qt::black);
    band.setColor(QPalette::WindowText, Qt::white);
    ui_->mainView->setPalette(band);
    ui_->mainView->setAutoFillBackground(true);
    QPalette ordinary = QApplication::palette();
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (auto role : {QPalette::Window, QPalette::WindowText})
            ordinary.setColor(group, role, QApplication::palette().color(group, role));
    for (QWidget* widget :
         {static_cast<QWidget*>(ui_->tabView), static_cast<QWidget*>(ui_->addWorksheet),
          static_cast<QWidget*>(ui_->renameWorksheet), static_cast<QWidget*>(ui_->deleteWorksheet),
          static_cast<QWidget*>(ui_->notes)})
        widget->setPalette(ordinary);

    connect(job_, &ZOLJobDocument::workbookReplaced, this, [this] {
        showWorkbook();
        updateSavedPricesBar();
    });
    connect(job_, &ZOLJobDocument::pricesReplaced, this, [this] {
        updateSavedPricesBar();
        reloadScreens();
    });
    connect(job_, &ZOLJobDocument::changeApplied, this, &ZOLDocument::showChange);
    job_->setPlaceOfEdit([this] { return placeOfEdit(); });
    connect(job_, &ZOLJobDocument::editedChanged, this, &ZOLDocument::editedDidChange);
    connect(job_, &ZOLJobDocument::fileChanged, this, &ZOLDocument::fileDidChange);
    connect(job_, &ZOLJobDocument::statusMessage, statusBar(),
            [this](const QString& message) { statusBar()->showMessage(message); });

    savedPricesBar_ = new ZOLSavedPricesBar(ui_->mainView);
    savedPricesBar_->hide();
    ui_->mainLayout->insertWidget(ui_->mainLayout->indexOf(ui_->tabView), savedPricesBar_);
    connect(savedPricesBar_, &ZOLSavedPricesBar::useSavedPrices, job_,
            &ZOLJobDocument::useSavedPrices);

    installScreens();
    buildMenus();
    connectHeader();
    connect(ui_->tabView, &QTabWidget::currentChanged, this, &ZOLDocument::tabViewDidSelect);
    connect(ui_->worksheetSelection, &QComboBox::activated, this,
            &ZOLDocument::comboBoxSelectionDidChange);
    connect(ui_->addWorksheet, &QPushButton::clicked, this, &ZOLDocument::addWorksheet);
    connect(ui_->renameWorksheet, &QPushButton::clicked, this, &ZOLDocument::renameWorksheet);
    connect(ui_->deleteWorksheet, &QPushButton::clicked, this, &ZOLDocument::deleteWorksheet);
    connect(ui_->notes, &QPushButton::clicked, this, &ZOLDocument::editNotes);

    showWorkbook();
    job_->startUnedited();
    updateTitle();
    qApp->installEventFilter(this);
}

ZOLDocument::~ZOLDocument() = default;

void ZOLDocument::fitToScreen() {
    // The window frame is not known before the window manager has drawn it; leave room for a
    // title bar so that a 1366x768 laptop screen with a panel still shows the whole window.
    constexpr int kTitleBar = 40;
    // The window stays wide enough for the header: sixteen letters in each field and every
    // button's whole caption. The tabs scroll below that instead.
    const int letters = fontMetrics().averageCharWidth() * 16;
    for (QLineEdit* field :
         {ui_->projectName, ui_->clientName, ui_->projectVersion, ui_->distributorName})
        field->setMinimumWidth(letters);
    const QMargins margins = ui_->mainLayout->contentsMargins();
    QSize minimum(ui_->headerLayout->minimumSize().width() + margins.left() + margins.right(), 450);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QSize available = screen->availableGeometry().size() - QSize(0, kTitleBar);
        minimum = minimum.boundedTo(available);
        resize(size().boundedTo(available));
    }
    setMinimumSize(minimum);
}

// ---------------------------------------------------------------------------------------------
// Screens

template <class Controller>
Controller* ZOLDocument::addScreen(
    const QString& title, const char* scrollViewName, const char* tabName,
    std::function<void(Controller*, const std::shared_ptr<ZOLWorksheet>&, const std::string&)>
        hand) {
    auto* scrollView = new QScrollArea(ui_->tabView);
    scrollView->setObjectName(QString::fromLatin1(scrollViewName));
    scrollView->setWidgetResizable(true);
    scrollView->setFrameShape(QFrame::NoFrame);
    scrollView->setFocusPolicy(Qt::NoFocus); // Tab goes from the tab bar into the screen's fields
    auto* controller = new Controller(scrollView);
    scrollView->setWidget(controller);
    ZOLResultFields::fitToText(controller);
    scrollView->setProperty("tabName", QString::fromLatin1(tabName));
    // Tab moves on from a table to the next control (arrow keys move between its cells);
    // otherwise the focus would go round the table's cells for ever.
    for (auto* view : controller->template findChildren<QAbstractItemView*>())
        view->setTabKeyNavigation(false);
    ui_->tabView->addTab(scrollView, title);
    Screen screen{controller, scrollView, nullptr, [controller] { controller->loadValues(); }};
    screen.hand = [controller, hand](const std::shared_ptr<ZOLWorksheet>& sheet,
                                     const std::string& name) { hand(controller, sheet, name); };
    screens_.push_back(std::move(screen));
    return controller;
}

// The screens in the order in which they receive their records; the tabs show in this order.
void ZOLDocument::installScreens() {
    using Sheet = std::shared_ptr<ZOLWorksheet>;
    auto* wallEntry = addScreen<ZOLWallEntryViewController>(
        tr("Wall Entry"), "wallEntryScrollView", "wallEntryTab",
        [](ZOLWallEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setWallData(sheet->wallData());
        });
    auto* openingsEntry = addScreen<ZOLOpeningsEntryViewController>(
        tr("Openings"), "openingScrollView", "openingsEntryTab",
        [](ZOLOpeningsEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setOpeningData(sheet->openingData());
            screen->setWallData(sheet->wallData());
        });
    auto* blockInfo = addScreen<ZOLBlockInfoViewController>(
        tr("Block Info"), "blockInfoScrollView", "blockInfoTab",
        [](ZOLBlockInfoViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setWallData(sheet->wallData());
        });
    auto* wallInfo = addScreen<ZOLWallInfoViewController>(
        tr("Wall Info"), "wallInfoScrollView", "wallInfoTab",
        [](ZOLWallInfoViewController* screen, const Sheet& sheet, const std::string& name) {
            screen->setWallData(sheet->wallData());
            screen->setWorksheetName(name);
        });
    workbookSummary_ = addScreen<ZOLWorkbookSummaryViewController>(
        tr("Workbook Summary"), "workbookSummaryScrollView", "workbookSummaryTab",
        [this](ZOLWorkbookSummaryViewController* screen, const Sheet&, const std::string&) {
            screen->setWorkbook(workbook());
        });
    auto* concreteEntry = addScreen<ZOLConcreteEntryViewController>(
        tr("Concrete"), "concreteEntryScrollView", "concreteEntryTab",
        [](ZOLConcreteEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setConcreteData(sheet->concreteData());
            screen->setWallData(sheet->wallData());
        });
    auto* rebarEntry = addScreen<ZOLRebarEntryViewController>(
        tr("Rebar"), "rebarEntryScrollView", "rebarEntryTab",
        [](ZOLRebarEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setRebarData(sheet->rebarData());
            screen->setWallData(sheet->wallData());
        });
    auto* tiltEntry = addScreen<ZOLTiltEntryViewController>(
        tr("Tilt-Up"), "tiltEntryScrollView", "tiltEntryTab",
        [](ZOLTiltEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setTiltData(sheet->tiltData());
        });
    auto* manHoursEntry = addScreen<ZOLManHoursEntryViewController>(
        tr("Man-Hours"), "manHoursEntryScrollView", "manHoursEntryTab",
        [](ZOLManHoursEntryViewController* screen, const Sheet& sheet, const std::string&) {
            screen->setManHourData(sheet->manHourData());
            screen->setWallData(sheet->wallData());
        });

    // Screens write straight into the records; the document only learns that something changed.
    connect(wallEntry, &ZOLWallEntryViewController::edited, this, &ZOLDocument::noteEdit);
    connect(openingsEntry, &ZOLOpeningsEntryViewController::edited, this, &ZOLDocument::noteEdit);
    connect(blockInfo, &ZOLBlockInfoViewController::edited, this, &ZOLDocument::noteEdit);
    connect(wallInfo, &ZOLWallInfoViewController::edited, this, &ZOLDocument::noteEdit);
    connect(workbookSummary_, &ZOLWorkbookSummaryViewController::editPricingRequested, this,
            &ZOLDocument::editPricing);
    connect(concreteEntry, &ZOLConcreteEntryViewController::edited, this, &ZOLDocument::noteEdit);
    connect(rebarEntry, &ZOLRebarEntryViewController::edited, this, &ZOLDocument::noteEdit);
    connect(tiltEntry, &ZOLTiltEntryViewController::edited, this, &ZOLDocument::noteEdit);
    connect(manHoursEntry, &ZOLManHoursEntryViewController::edited, this, &ZOLDocument::noteEdit);

    // The job summary comes last, after every estimate that adds lines to it.
    auto* jobSummary = addScreen<ZOLJobSummaryViewController>(
        tr("Job Summary"), "jobSummaryScrollView", "jobSummaryTab",
        [this](ZOLJobSummaryViewController* screen, const Sheet&, const std::string&) {
            screen->setWorkbook(workbook());
        });
    connect(jobSummary, &ZOLJobSummaryViewController::edited, this, &ZOLDocument::noteEdit);
}

QWidget* ZOLDocument::screenNamed(const QString& objectName) const {
    for (const Screen& screen : screens_)
        if (screen.view->metaObject()->className() == objectName ||
            screen.scrollView->objectName() == objectName)
            return screen.view;
    return nullptr;
}

QTabWidget* ZOLDocument::tabView() const {
    return ui_->tabView;
}

QComboBox* ZOLDocument::worksheetSelection() const {
    return ui_->worksheetSelection;
}

void ZOLDocument::tabViewDidSelect(int index) {
    QWidget* page = ui_->tabView->widget(index);
    for (const Screen& screen : screens_)
        if (screen.scrollView == page) {
            screen.loadValues();
            return;
        }
}

// ---------------------------------------------------------------------------------------------
// Workbook and worksheets

void ZOLDocument::loadWorkbook(std::shared_ptr<ZOLWorkbook> workbook) {
    job_->setWorkbook(std::move(workbook));
    showWorkbook();
    job_->resetHistory();
}

void ZOLDocument::showHeader() {
    loading_ = true;
    const auto date = workbook()->projectDate();
    ui_->projectDate->setDateTime(
        QDateTime::fromSecsSinceEpoch(date ? *date : QDateTime::currentSecsSinceEpoch()));
    ui_->projectName->setText(qs(workbook()->projectName()));
    ui_->clientName->setText(qs(workbook()->clientName()));
    ui_->projectVersion->setText(qs(workbook()->projectVersion()));
    ui_->distributorName->setText(qs(workbook()->distributorName()));
    loading_ = false;
}

void ZOLDocument::showWorkbook() {
    showHeader();
    reloadWorksheetSelector();
    loadWorksheetDataWithIndex(0);
}

void ZOLDocument::reloadWorksheetSelector() {
    QComboBox* box = ui_->worksheetSelection;
    const QSignalBlocker blocker(box);
    const int selected = box->currentIndex();
    box->clear();
    for (const auto& sheet : workbook()->worksheets())
        box->addItem(qs(sheet->name()));
    box->setCurrentIndex(selected < box->count() ? selected : -1);
}

void ZOLDocument::loadWorksheetDataWithIndex(int32_t index) {
    const auto& sheets = workbook()->worksheets();
    if (index < 0 || static_cast<size_t>(index) >= sheets.size())
        return;
    const std::shared_ptr<ZOLWorksheet> sheet = sheets[static_cast<size_t>(index)];

    // The selector follows the workbook's list as it is now.
    reloadWorksheetSelector();
    {
        const QSignalBlocker blocker(ui_->worksheetSelection);
        ui_->worksheetSelection->setCurrentIndex(index);
    }

    const std::string name = sheet->name();
    for (const Screen& screen : screens_) {
        screen.hand(sheet, name);
        screen.loadValues();
    }
}

int32_t ZOLDocument::selectedWorksheetIndex() const {
    return ui_->worksheetSelection->currentIndex();
}

void ZOLDocument::comboBoxSelectionDidChange(int index) {
    loadWorksheetDataWithIndex(index);
}

void ZOLDocument::addWorksheet() {
    std::string name;
    const int answer =
        ZOLFieldAlerts::run({"Enter a name for the new worksheet", "", {"OK", "Cancel"}}, name,
                            ZOLFieldAlertPresenter::Field::Line);
    if (answer != 0)
        return;
    if (workbook()->worksheetExistsWithName(name)) {
        ZOLAlerts::run(kDuplicateWorksheet, "", {"OK"});
        return;
    }
    workbook()->addWorksheetsObject(std::make_shared<ZOLWorksheet>(name));
    reloadWorksheetSelector();
    {
        const QSignalBlocker blocker(ui_->worksheetSelection);
        ui_->worksheetSelection->setCurrentIndex(ui_->worksheetSelection->count() - 1);
    }
    loadWorksheetDataWithIndex(selectedWorksheetIndex());
    job_->noteEdit(tr("Add Worksheet \"%1\"").arg(qs(name)));
}

void ZOLDocument::renameWorksheet() {
    const int32_t index = selectedWorksheetIndex();
    const auto& sheets = workbook()->worksheets();
    if (index < 0 || static_cast<size_t>(index) >= sheets.size())
        return;
    const std::shared_ptr<ZOLWorksheet> sheet = sheets[static_cast<size_t>(index)];

    std::string name = sheet->name();
    const int answer =
        ZOLFieldAlerts::run({"Enter a new name for this worksheet", "", {"OK", "Cancel"}}, name,
                            ZOLFieldAlertPresenter::Field::Line);
    if (answer != 0 || name == sheet->name())
        return;
    const QString oldName = qs(sheet->name());
    if (workbook()->worksheetExistsWithName(name)) {
        ZOLAlerts::run(kDuplicateWorksheet, "", {"OK"});
        return;
    }
    sheet->setName(name);
    // Only the selector shows the new name; the screens keep theirs until the next reload.
    reloadWorksheetSelector();
    job_->noteEdit(tr("Rename Worksheet \"%1\"").arg(oldName));
}

void ZOLDocument::deleteWorksheet() {
    if (ZOLAlerts::run("Are you sure you want to delete this worksheet?", "", {"OK", "Cancel"}) !=
        0)
        return;
    const int32_t index = selectedWorksheetIndex();
    auto sheets = workbook()->worksheets();
    if (index < 0 || static_cast<size_t>(index) >= sheets.size())
        return;
    sheets.erase(sheets.begin() + index);
    workbook()->setWorksheets(std::move(sheets));
    // The screens and the selector's text still show the deleted worksheet until another one
    // is chosen, but the selector offers only the worksheets that remain, each under its own
    // name; nothing is chosen in it, so Rename and Delete find no worksheet to act on.
    QComboBox* box = ui_->worksheetSelection;
    const QString shown = box->currentText();
    reloadWorksheetSelector();
    {
        const QSignalBlocker blocker(box);
        box->setPlaceholderText(shown);
        box->setCurrentIndex(-1);
    }
    job_->noteEdit(tr("Delete Worksheet \"%1\"").arg(shown));
}

void ZOLDocument::editNotes() {
    std::string notes = workbook()->notes().value_or(std::string());
    // The workbook file has no place for notes: say where they live.
    if (ZOLFieldAlerts::run({"Project Notes",
                             "Notes are kept on this computer with the job and print with the "
                             "report; the workbook file does not carry them.",
                             {"Done", "Cancel"}},
                            notes, ZOLFieldAlertPresenter::Field::Text) != 0)
        return;
    workbook()->setNotes(notes);
    noteEdit();
}

void ZOLDocument::editPricing() {
    ZOLPricingWindowController window(workbook()->pricingData(), this);
    // Each change made in the window is one change of the job's history.
    connect(&window, &ZOLPricingWindowController::pricesChanged, this,
            [this](const QString& change) { job_->noteEdit(change); });
    window.exec();
    if (workbookSummary_)
        workbookSummary_->loadValues();
    updateSavedPricesBar();
    tabViewDidSelect(ui_->tabView->currentIndex()); // the job summary prices from the list too
    noteEdit();
}

void ZOLDocument::displayBulletins() {
    const QString address = ZOLSettingsKeys::technicalBulletinsURL();
    if (!QDesktopServices::openUrl(QUrl(address)))
        ZOLAlerts::run("The technical bulletins could not be opened.",
                       utf8(tr("No web browser opened %1.").arg(address)), {"OK"});
}

void ZOLDocument::connectHeader() {
    // Each keystroke goes straight into the workbook.
    connect(ui_->projectName, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook()->setProjectName(utf8(text));
        noteEdit();
    });
    connect(ui_->clientName, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook()->setClientName(utf8(text));
        noteEdit();
    });
    connect(ui_->projectVersion, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook()->setProjectVersion(utf8(text));
        noteEdit();
    });
    connect(ui_->distributorName, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook()->setDistributorName(utf8(text));
        noteEdit();
    });
    // A new day keeps the time of day the project was dated with.
    connect(ui_->projectDate, &QDateEdit::dateChanged, this, [this](const QDate& date) {
        if (loading_ || !date.isValid())
            return;
        const auto old = workbook()->projectDate();
        const QTime time =
            QDateTime::fromSecsSinceEpoch(old ? *old : QDateTime::currentSecsSinceEpoch()).time();
        workbook()->setProjectDate(QDateTime(date, time).toSecsSinceEpoch());
        noteEdit();
    });
}

// ---------------------------------------------------------------------------------------------
// Files

bool ZOLDocument::restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot) {
    return job_->restoreFromRecovery(std::move(slot));
}

bool ZOLDocument::save() {
    if (filePath().isEmpty())
        return saveAs();
    return saveToFile(filePath());
}

bool ZOLDocument::saveAs() {
    const QString path =
        ZOLFilePanels::saveFile(this, tr("Save Workbook"), "zol", job_->suggestedFileName());
    if (path.isEmpty())
        return false;
    return saveToFile(path);
}

void ZOLDocument::revertDocumentToSaved() {
    if (filePath().isEmpty() || !isDocumentEdited())
        return;
    const QString message =
        tr("Do you want to revert to the most recently saved version of the document “%1”?")
            .arg(displayName());
    if (ZOLAlerts::run(utf8(message), "Your current changes will be lost.", {"Revert", "Cancel"}) !=
        0)
        return;
    job_->revertToSaved();
}

void ZOLDocument::fileDidChange(const QString& path) {
    if (controller_ && !path.isEmpty())
        controller_->recentFiles()->add(path);
    if (revertAction_)
        revertAction_->setEnabled(!path.isEmpty() && isDocumentEdited());
    updateTitle();
    emit fileChanged(path);
}

void ZOLDocument::updateTitle() {
    setWindowTitle(displayName() + QStringLiteral("[*]"));
    setWindowFilePath(filePath());
    setWindowModified(isDocumentEdited());
}

void ZOLDocument::editedDidChange(bool edited) {
    if (revertAction_)
        revertAction_->setEnabled(!filePath().isEmpty() && edited);
    setWindowModified(edited);
    emit editedChanged(edited);
}

void ZOLDocument::updateSavedPricesBar() {
    savedPricesBar_->setVisible(job_->savedPricesDiffer());
}

void ZOLDocument::reloadScreens() {
    for (const Screen& screen : screens_)
        screen.loadValues();
}

bool ZOLDocument::canClose() {
    if (!isDocumentEdited())
        return true;
    const QString message =
        tr("Do you want to save the changes you made in the document “%1”?").arg(displayName());
    const int answer =
        ZOLAlerts::run(utf8(message), "Your changes will be lost if you don’t save them.",
                       {"Save", "Don't Save", "Cancel"});
    if (answer == 0)
        return save();
    if (answer == 1) {
        job_->discardChanges();
        return true;
    }
    return false;
}

void ZOLDocument::closeEvent(QCloseEvent* event) {
    if (!canClose()) {
        event->ignore();
        return;
    }
    job_->close();
    event->accept();
}

// ---------------------------------------------------------------------------------------------
// Printing

ZOLReportRenderer* ZOLDocument::renderer() {
    if (!renderer_)
        renderer_ =
            new ZOLReportRenderer(QString::fromStdString(ZOLPrintData::resourcesDirectory()), this);
    return renderer_;
}

std::optional<std::string> ZOLDocument::reportFromPrintSettings(const QString& acceptTitle) {
    ZOLPrintSettingsWindowController window(this);
    window.setNumberOfWorksheets(static_cast<int32_t>(workbook()->worksheets().size()));
    window.setAcceptTitle(acceptTitle);
    window.exec();
    if (!window.acceptChanges())
        return std::nullopt;
    const auto settings = window.getZolPrintSettings();
    const auto all = settings.find("PrintAllWorksheets");
    if (all != settings.end() && all->second)
        return ZOLPrintData::getHTMLWithWorkbook(workbook(), settings);
    return ZOLPrintData::getHTMLWithWorkbook(workbook(), selectedWorksheetIndex(), settings);
}

void ZOLDocument::printDocument() {
    // One print job at a time: the printer of a job under way must not be replaced.
    if (printing_)
        return;
    const auto report = reportFromPrintSettings(tr("&Print…"));
    if (!report)
        return;
    printer_ = ZOLReportRenderer::letterPrinter(displayName());
    QPrintDialog dialog(printer_.get(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    printing_ = true;
    auto* progress = new ZOLReportProgress(this, renderer(), *report);
    renderer()->print(*report, printer_.get(), [this, progress](bool ok, const QString& error) {
        printing_ = false;
        progress->deleteLater();
        if (!ok && !renderer()->wasCancelled())
            ZOLAlerts::run("The report could not be printed.", utf8(error), {"OK"});
    });
}

void ZOLDocument::exportPDF() {
    const auto report = reportFromPrintSettings(tr("&Export…"));
    if (!report)
        return;
    const QString path = ZOLFilePanels::saveFile(
        this, tr("Export PDF"), "pdf", QFileInfo(displayName()).completeBaseName() + ".pdf");
    if (path.isEmpty())
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QString error;
    bool written = false;
    {
        ZOLReportProgress progress(this, renderer(), *report);
        written = renderer()->writePdf(*report, path, &error);
    }
    QApplication::restoreOverrideCursor();
    if (!written && !renderer()->wasCancelled())
        ZOLAlerts::run(
            utf8(tr("The PDF “%1” could not be written.").arg(QFileInfo(path).fileName())),
            utf8(error), {"OK"});
}

// ---------------------------------------------------------------------------------------------
// Menus

void ZOLDocument::buildMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    if (controller_) {
        QAction* newAction =
            file->addAction(tr("&New"), controller_, [this] { controller_->newDocument(); });
        newAction->setShortcut(QKeySequence::New);
        QAction* open = file->addAction(tr("&Open…"), controller_,
                                        [this] { controller_->openWithPanel(this); });
        open->setShortcut(QKeySequence::Open);
        recentMenu_ = file->addMenu(tr("Open &Recent"));
        connect(recentMenu_, &QMenu::aboutToShow, this,
                [this] { controller_->recentFiles()->populate(recentMenu_); });
        file->addSeparator();
    }
    QAction* close = file->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence::Close);
    QAction* saveAction = file->addAction(tr("&Save"), this, &ZOLDocument::save);
    saveAction->setShortcut(QKeySequence::Save);
    QAction* saveAsAction = file->addAction(tr("Save &As…"), this, &ZOLDocument::saveAs);
    // Some desktops define no Save As keys; users still expect Ctrl+Shift+S.
    saveAsAction->setShortcut(QKeySequence(QKeySequence::SaveAs).isEmpty()
                                  ? QKeySequence(tr("Ctrl+Shift+S"))
                                  : QKeySequence(QKeySequence::SaveAs));
    revertAction_ =
        file->addAction(tr("Re&vert to Saved"), this, &ZOLDocument::revertDocumentToSaved);
    revertAction_->setEnabled(false);
    file->addSeparator();
    QAction* exportAction = file->addAction(tr("&Export PDF…"), this, &ZOLDocument::exportPDF);
    // Not Ctrl+E: on Linux a text field takes that for "end of line", so it would never reach
    // the menu while the user is typing in a field.
    exportAction->setShortcut(QKeySequence(tr("Ctrl+Shift+E")));
    ZOLSpreadsheetExport::addMenu(file, this);
    QAction* print = file->addAction(tr("&Print…"), this, &ZOLDocument::printDocument);
    print->setShortcut(QKeySequence::Print);
    file->addAction(tr("Co&mpare With…"), this,
                    [this] { ZOLChangeOrderWindow::compareWithDocument(this); });
    if (controller_) {
        file->addSeparator();
        QAction* quit = file->addAction(tr("&Quit"), controller_, &ZOLDocumentController::quit);
        quit->setShortcut(QKeySequence::Quit);
        quit->setMenuRole(QAction::QuitRole);
    }

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    undoAction_ = job_->undoStack()->createUndoAction(this, tr("&Undo"));
    undoAction_->setShortcut(QKeySequence::Undo);
    redoAction_ = job_->undoStack()->createRedoAction(this, tr("&Redo"));
    // Ctrl+Y as well, which estimators know from their spreadsheets.
    redoAction_->setShortcuts(QList<QKeySequence>{QKeySequence::keyBindings(QKeySequence::Redo)}
                              << QKeySequence(tr("Ctrl+Y")));
    edit->addAction(undoAction_);
    edit->addAction(redoAction_);

    QMenu* workbook = menuBar()->addMenu(tr("&Workbook"));
    workbook->addAction(tr("&Add Worksheet…"), this, &ZOLDocument::addWorksheet);
    workbook->addAction(tr("&Rename Worksheet…"), this, &ZOLDocument::renameWorksheet);
    workbook->addAction(tr("&Delete Worksheet…"), this, &ZOLDocument::deleteWorksheet);
    workbook->addSeparator();
    QAction* pricing = workbook->addAction(tr("Edit &Pricing…"), this, &ZOLDocument::editPricing);
    pricing->setShortcut(QKeySequence(tr("Ctrl+Shift+P")));
    QAction* notesAction =
        workbook->addAction(tr("Project &Notes…"), this, &ZOLDocument::editNotes);
    notesAction->setShortcut(QKeySequence(tr("Ctrl+Shift+N")));

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&Technical Bulletins"), this, &ZOLDocument::displayBulletins);
    ZOLHelpMenu::addActions(help, this);
}

// ---------------------------------------------------------------------------------------------
// Undo and redo

namespace {
// How the user knows a control: its label, or its own caption, without accelerator marks.
QString labelOf(const QWidget* control, const QWidget* window) {
    QString text;
    for (QLabel* label : window->findChildren<QLabel*>())
        if (label->buddy() == control) {
            text = label->text();
            break;
        }
    if (text.isEmpty())
        if (const auto* button = qobject_cast<const QAbstractButton*>(control))
            text = button->text();
    if (text.isEmpty())
        text = control->accessibleName();
    text.remove(QLatin1Char('&'));
    text = text.trimmed();
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(0x2026)) ||
           text.endsWith(QLatin1Char('.')))
        text.chop(1);
    // Named as menu commands are: "Wall length" becomes "Undo Wall Length".
    static const QStringList kSmallWords{"a",  "an", "and", "at",  "by",  "for", "in",
                                         "of", "on", "or",  "per", "the", "to",  "with"};
    QStringList words = text.trimmed().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < words.size(); ++i)
        if (i == 0 || !kSmallWords.contains(words[i]))
            words[i][0] = words[i][0].toUpper();
    return words.join(QLatin1Char(' '));
}
} // namespace

ZOLEditPlace ZOLDocument::placeOfEdit() const {
    ZOLEditPlace place;
    const int32_t index = selectedWorksheetIndex();
    const auto& sheets = workbook()->worksheets();
    if (index >= 0 && static_cast<size_t>(index) < sheets.size())
        place.worksheet = sheets[static_cast<size_t>(index)];
    place.tab = ui_->tabView->currentIndex();
    QWidget* control = focusWidget();
    // The text field inside a stepper or an editable box stands for its owner.
    if (control && control->objectName().startsWith(QLatin1String("qt_")))
        control = control->parentWidget();
    // A table's cell editor stands for its table.
    for (QWidget* up = control; up && up != this; up = up->parentWidget())
        if (qobject_cast<QAbstractItemView*>(up))
            control = up;
    if (control && control != this) {
        place.control = control->objectName();
        place.label = labelOf(control, this);
        place.typing = qobject_cast<QLineEdit*>(control) != nullptr;
    }
    if (place.label.isEmpty())
        place.label = ui_->tabView->tabText(place.tab);
    return place;
}

void ZOLDocument::showChange(const ZOLEditPlace& place) {
    const auto& sheets = workbook()->worksheets();
    int32_t index = -1;
    for (size_t i = 0; i < sheets.size(); ++i)
        if (sheets[i] == place.worksheet)
            index = static_cast<int32_t>(i);
    if (place.worksheet && index < 0) {
        // The worksheet is gone again: as after Delete, only the list changes.
        reloadWorksheetSelector();
        const QSignalBlocker blocker(ui_->worksheetSelection);
        ui_->worksheetSelection->setPlaceholderText(qs(place.worksheet->name()));
        ui_->worksheetSelection->setCurrentIndex(-1);
        return;
    }
    if (index < 0)
        index = std::max(selectedWorksheetIndex(), 0);
    showHeader();
    reloadWorksheetSelector();
    if (static_cast<size_t>(index) < sheets.size()) {
        const QSignalBlocker blocker(ui_->worksheetSelection);
        ui_->worksheetSelection->setCurrentIndex(index);
        const auto& sheet = sheets[static_cast<size_t>(index)];
        for (const Screen& screen : screens_)
            screen.hand(sheet, sheet->name());
    }
    updateSavedPricesBar();
    // Only the tab shown reloads, as when the user selects it; the others do when selected.
    if (place.tab >= 0 && place.tab < ui_->tabView->count())
        ui_->tabView->setCurrentIndex(place.tab);
    tabViewDidSelect(ui_->tabView->currentIndex());
    if (place.control.isEmpty())
        return;
    // Several screens have a control of the same name: the one on the tab shown first.
    QWidget* control = ui_->tabView->currentWidget()->findChild<QWidget*>(place.control);
    if (!control)
        control = findChild<QWidget*>(place.control);
    if (control && control->isEnabled()) {
        control->setFocus(Qt::OtherFocusReason);
        if (auto* field = qobject_cast<QLineEdit*>(control))
            field->selectAll();
    }
}

bool ZOLDocument::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != this)
        return QMainWindow::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    QAction* action = key->matches(QKeySequence::Undo) ? undoAction_
                      : key->matches(QKeySequence::Redo) ||
                              key->keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y)
                          ? redoAction_
                          : nullptr;
    if (!action)
        return QMainWindow::eventFilter(watched, event);
    // A text field would take the keys for its own undo; the job's history answers instead.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (action->isEnabled())
        action->trigger();
    return true;
}
