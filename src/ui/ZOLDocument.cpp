#include "ui/ZOLDocument.h"

#include "io/ZOLFileSaver.h"
#include "io/ZOLWorkbookReader.h"
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
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLHelpMenu.h"
#include "ui/ZOLJobSnapshot.h"
#include "ui/ZOLJobSummaryViewController.h"
#include "ui/ZOLManHoursEntryViewController.h"
#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui/ZOLPricingWindowController.h"
#include "ui/ZOLPrintSettingsWindowController.h"
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

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QKeySequence>
#include <QMenuBar>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace {
QString qs(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString qs(const std::optional<std::string>& text) {
    return text ? qs(*text) : QString();
}

std::string utf8(const QString& text) {
    return text.toUtf8().toStdString();
}

std::string nativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

const char* kDuplicateWorksheet =
    "A worksheet with that name already exists. Please try again with a different worksheet "
    "name.";
} // namespace

ZOLDocument::ZOLDocument(ZOLDocumentController* controller, QWidget* parent)
    : QMainWindow(parent), ui_(std::make_unique<Ui::ZOLDocument>()), controller_(controller),
      autosaveTimer_(new QTimer(this)) {
    ui_->setupUi(this);
    fitToScreen();
    setAttribute(Qt::WA_DeleteOnClose, controller_ != nullptr);
    if (controller_)
        untitledNumber_ = controller_->nextUntitledNumber();

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

    autosaveTimer_->setSingleShot(true);
    connect(autosaveTimer_, &QTimer::timeout, this, &ZOLDocument::autosave);

    savedPricesBar_ = new ZOLSavedPricesBar(ui_->mainView);
    savedPricesBar_->hide();
    ui_->mainLayout->insertWidget(ui_->mainLayout->indexOf(ui_->tabView), savedPricesBar_);
    connect(savedPricesBar_, &ZOLSavedPricesBar::useSavedPrices, this,
            &ZOLDocument::useSavedPrices);

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

    loadWorkbook(nullptr);
    snapshotAtSave_ = ZOLJobSnapshot::capture(*workbook_);
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    updateTitle();
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
            screen->setWorkbook(workbook_);
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
            screen->setWorkbook(workbook_);
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
    if (!workbook)
        workbook = std::make_shared<ZOLWorkbook>();
    workbook_ = std::move(workbook);

    loading_ = true;
    const auto date = workbook_->projectDate();
    ui_->projectDate->setDateTime(
        QDateTime::fromSecsSinceEpoch(date ? *date : QDateTime::currentSecsSinceEpoch()));
    ui_->projectName->setText(qs(workbook_->projectName()));
    ui_->clientName->setText(qs(workbook_->clientName()));
    ui_->projectVersion->setText(qs(workbook_->projectVersion()));
    ui_->distributorName->setText(qs(workbook_->distributorName()));
    loading_ = false;

    reloadWorksheetSelector();
    loadWorksheetDataWithIndex(0);
}

void ZOLDocument::reloadWorksheetSelector() {
    QComboBox* box = ui_->worksheetSelection;
    const QSignalBlocker blocker(box);
    const int selected = box->currentIndex();
    box->clear();
    for (const auto& sheet : workbook_->worksheets())
        box->addItem(qs(sheet->name()));
    box->setCurrentIndex(selected < box->count() ? selected : -1);
}

void ZOLDocument::loadWorksheetDataWithIndex(int32_t index) {
    const auto& sheets = workbook_->worksheets();
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
    if (workbook_->worksheetExistsWithName(name)) {
        ZOLAlerts::run(kDuplicateWorksheet, "", {"OK"});
        return;
    }
    workbook_->addWorksheetsObject(std::make_shared<ZOLWorksheet>(name));
    reloadWorksheetSelector();
    {
        const QSignalBlocker blocker(ui_->worksheetSelection);
        ui_->worksheetSelection->setCurrentIndex(ui_->worksheetSelection->count() - 1);
    }
    loadWorksheetDataWithIndex(selectedWorksheetIndex());
    noteEdit();
}

void ZOLDocument::renameWorksheet() {
    const int32_t index = selectedWorksheetIndex();
    const auto& sheets = workbook_->worksheets();
    if (index < 0 || static_cast<size_t>(index) >= sheets.size())
        return;
    const std::shared_ptr<ZOLWorksheet> sheet = sheets[static_cast<size_t>(index)];

    std::string name = sheet->name();
    const int answer =
        ZOLFieldAlerts::run({"Enter a new name for this worksheet", "", {"OK", "Cancel"}}, name,
                            ZOLFieldAlertPresenter::Field::Line);
    if (answer != 0 || name == sheet->name())
        return;
    if (workbook_->worksheetExistsWithName(name)) {
        ZOLAlerts::run(kDuplicateWorksheet, "", {"OK"});
        return;
    }
    sheet->setName(name);
    // Only the selector shows the new name; the screens keep theirs until the next reload.
    reloadWorksheetSelector();
    noteEdit();
}

void ZOLDocument::deleteWorksheet() {
    if (ZOLAlerts::run("Are you sure you want to delete this worksheet?", "", {"OK", "Cancel"}) !=
        0)
        return;
    const int32_t index = selectedWorksheetIndex();
    auto sheets = workbook_->worksheets();
    if (index < 0 || static_cast<size_t>(index) >= sheets.size())
        return;
    sheets.erase(sheets.begin() + index);
    workbook_->setWorksheets(std::move(sheets));
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
    noteEdit();
}

void ZOLDocument::editNotes() {
    std::string notes = workbook_->notes().value_or(std::string());
    // The workbook file has no place for notes: say where they live.
    if (ZOLFieldAlerts::run({"Project Notes",
                             "Notes are kept on this computer with the job and print with the "
                             "report; the workbook file does not carry them.",
                             {"Done", "Cancel"}},
                            notes, ZOLFieldAlertPresenter::Field::Text) != 0)
        return;
    workbook_->setNotes(notes);
    noteEdit();
}

void ZOLDocument::editPricing() {
    ZOLPricingWindowController window(workbook_->pricingData(), this);
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
        workbook_->setProjectName(utf8(text));
        noteEdit();
    });
    connect(ui_->clientName, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook_->setClientName(utf8(text));
        noteEdit();
    });
    connect(ui_->projectVersion, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook_->setProjectVersion(utf8(text));
        noteEdit();
    });
    connect(ui_->distributorName, &QLineEdit::textEdited, this, [this](const QString& text) {
        workbook_->setDistributorName(utf8(text));
        noteEdit();
    });
    // A new day keeps the time of day the project was dated with.
    connect(ui_->projectDate, &QDateEdit::dateChanged, this, [this](const QDate& date) {
        if (loading_ || !date.isValid())
            return;
        const auto old = workbook_->projectDate();
        const QTime time =
            QDateTime::fromSecsSinceEpoch(old ? *old : QDateTime::currentSecsSinceEpoch()).time();
        workbook_->setProjectDate(QDateTime(date, time).toSecsSinceEpoch());
        noteEdit();
    });
}

// ---------------------------------------------------------------------------------------------
// Files

QByteArray ZOLDocument::dataOfType(const QString&) const {
    const std::string xml = workbook_->getXMLString();
    return QByteArray(xml.data(), static_cast<qsizetype>(xml.size()));
}

QByteArray ZOLDocument::jobState() const {
    return dataOfType() + QByteArray(1, '\0') + ZOLJobSnapshot::capture(*workbook_);
}

std::shared_ptr<ZOLWorkbook> ZOLDocument::readWorkbook(const QByteArray& bytes, bool* wrongFormat) {
    const auto result = ZOLWorkbookReader::readWorkbookData(
        std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    if (wrongFormat)
        *wrongFormat = result.status == ZOLReadStatus::Refused;
    return result.ok() ? result.workbook : nullptr;
}

bool ZOLDocument::readFromData(const QByteArray& bytes, bool* wrongFormat) {
    auto workbook = readWorkbook(bytes, wrongFormat);
    if (!workbook)
        return false;
    showWithSnapshot(std::move(workbook), QByteArray());
    return true;
}

QStringList ZOLDocument::showWithSnapshot(std::shared_ptr<ZOLWorkbook> workbook,
                                          const QByteArray& snapshot) {
    const QStringList restored =
        snapshot.isEmpty() ? QStringList() : ZOLJobSnapshot::apply(snapshot, *workbook);
    loadWorkbook(std::move(workbook));
    updateSavedPricesBar();
    return restored;
}

bool ZOLDocument::readFromFile(const QString& path) {
    auto bytes = ZOLFileAlerts::readFile(path, ZOLFileKind::Workbook);
    if (!bytes)
        return false;
    const QByteArray data(bytes->data(), static_cast<qsizetype>(bytes->size()));
    bool wrongFormat = false;
    auto workbook = readWorkbook(data, &wrongFormat);
    if (!workbook) {
        ZOLFileAlerts::accepted(path, ZOLFileKind::Workbook,
                                wrongFormat ? ZOLReadStatus::Refused : ZOLReadStatus::ParseError);
        return false;
    }
    // The same file, unchanged since this computer saved it: the job comes back whole.
    const QStringList restored = showWithSnapshot(
        std::move(workbook), snapshots_.load(path, data).value_or(QByteArray()));
    if (!restored.isEmpty())
        statusBar()->showMessage(tr("Restored from this computer: %1").arg(restored.join(", ")));
    fileBytesAtSave_ = data;
    snapshotAtSave_ = ZOLJobSnapshot::capture(*workbook_);
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    autosavedSinceSave_ = false;
    recovery_.reset();
    setFilePath(path);
    setEdited(false);
    return true;
}

bool ZOLDocument::writeFile(const QString& path, const QByteArray& bytes,
                            const QByteArray& snapshot, bool reportFailure) {
    std::string error;
    if (ZOLFileSaver::save(nativePath(path),
                           std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())),
                           ZOLFileKind::Workbook, &error) == ZOLFileSaver::Outcome::Saved) {
        snapshots_.save(path, bytes, snapshot);
        return true;
    }
    const QString message =
        tr("The document “%1” could not be saved.").arg(QFileInfo(path).fileName());
    if (reportFailure)
        ZOLAlerts::run(utf8(message), error, {"OK"});
    else
        statusBar()->showMessage(message + QLatin1Char(' ') + qs(error) + QLatin1Char(' ') +
                                 tr("Autosave tries again after your next change."));
    return false;
}

bool ZOLDocument::saveToFile(const QString& path) {
    // The job summary's generated lines as the worksheets now price them, as reopening shows them.
    workbook_->generateCustomItems();
    const QByteArray bytes = dataOfType();
    const QByteArray snapshot = ZOLJobSnapshot::capture(*workbook_);
    if (!writeFile(path, bytes, snapshot, true))
        return false;
    const QString canonical = QFileInfo(path).absoluteFilePath();
    if (canonical != filePath_ && !filePath_.isEmpty() && autosavedSinceSave_)
        restoreLastSaved(); // the old file goes back to what the user saved in it
    fileBytesAtSave_ = bytes;
    snapshotAtSave_ = snapshot;
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    autosavedSinceSave_ = false;
    autosaveTimer_->stop();
    recovery_.reset();
    setFilePath(canonical);
    setEdited(false);
    return true;
}

bool ZOLDocument::save() {
    if (filePath_.isEmpty())
        return saveAs();
    return saveToFile(filePath_);
}

bool ZOLDocument::saveAs() {
    QString suggested = qs(workbook_->projectName()).trimmed();
    if (suggested.isEmpty())
        suggested = displayName();
    suggested.replace('/', '-');
    const QString path = ZOLFilePanels::saveFile(this, tr("Save Workbook"), "zol",
                                                 QFileInfo(suggested).completeBaseName() + ".zol");
    if (path.isEmpty())
        return false;
    return saveToFile(path);
}

void ZOLDocument::revertDocumentToSaved() {
    if (filePath_.isEmpty() || !edited_)
        return;
    const QString message =
        tr("Do you want to revert to the most recently saved version of the document “%1”?")
            .arg(displayName());
    if (ZOLAlerts::run(utf8(message), "Your current changes will be lost.", {"Revert", "Cancel"}) !=
        0)
        return;
    auto workbook = readWorkbook(fileBytesAtSave_, nullptr);
    if (!workbook)
        return;
    showWithSnapshot(std::move(workbook), snapshotAtSave_);
    restoreLastSaved();
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    setEdited(false);
}

void ZOLDocument::restoreLastSaved() {
    if (!autosavedSinceSave_ || filePath_.isEmpty())
        return;
    if (writeFile(filePath_, fileBytesAtSave_, snapshotAtSave_, false))
        autosavedSinceSave_ = false;
}

void ZOLDocument::setFilePath(const QString& path) {
    filePath_ = path;
    if (controller_ && !path.isEmpty())
        controller_->recentFiles()->add(path);
    if (revertAction_)
        revertAction_->setEnabled(!filePath_.isEmpty() && edited_);
    updateTitle();
    emit fileChanged(path);
}

QString ZOLDocument::displayName() const {
    if (!filePath_.isEmpty())
        return QFileInfo(filePath_).fileName();
    return untitledNumber_ <= 1 ? tr("Untitled") : tr("Untitled %1").arg(untitledNumber_);
}

void ZOLDocument::updateTitle() {
    setWindowTitle(displayName() + QStringLiteral("[*]"));
    setWindowFilePath(filePath_);
    setWindowModified(edited_);
}

void ZOLDocument::setEdited(bool edited) {
    if (revertAction_)
        revertAction_->setEnabled(!filePath_.isEmpty() && edited);
    if (edited == edited_)
        return;
    edited_ = edited;
    setWindowModified(edited_);
    emit editedChanged(edited_);
}

void ZOLDocument::noteEdit() {
    const QByteArray now = jobState();
    setEdited(now != cleanState_);
    if (!edited_) {
        // Back where the user saved: nothing of these edits should outlive the session.
        autosaveTimer_->stop();
        restoreLastSaved();
        recovery_.reset();
        lastAutosaved_ = now;
        return;
    }
    if (now != lastAutosaved_)
        startAutosaveTimer();
}

void ZOLDocument::startAutosaveTimer() {
    // Not restarted by every keystroke, so steady typing is still saved within the delay.
    if (!autosaveTimer_->isActive())
        autosaveTimer_->start(ZOLSettingsKeys::autosaveDelaySeconds() * 1000);
}

void ZOLDocument::autosave() {
    autosaveTimer_->stop();
    if (!edited_)
        return;
    const QByteArray state = jobState();
    if (state == lastAutosaved_)
        return;
    const QByteArray bytes = dataOfType();
    const QByteArray snapshot = ZOLJobSnapshot::capture(*workbook_);
    if (!filePath_.isEmpty()) {
        // A failure is said in the status bar; the next edit starts the timer again.
        if (writeFile(filePath_, bytes, snapshot, false)) {
            autosavedSinceSave_ = true;
            lastAutosaved_ = state;
        }
        return;
    }
    if (!recovery_) {
        ZOLRecoveryStore fallback;
        recovery_ = controller_ ? controller_->recoveryStore().createSlot() : fallback.createSlot();
    }
    if (recovery_->write(bytes, snapshot))
        lastAutosaved_ = state;
}

bool ZOLDocument::restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot) {
    if (!slot)
        return false;
    const QByteArray bytes = slot->read();
    // The reader's own alerts still show: a damaged recovery file is reported as such.
    auto workbook = readWorkbook(bytes, nullptr);
    if (!workbook)
        return false;
    showWithSnapshot(std::move(workbook), slot->readSnapshot());
    recovery_ = std::move(slot);
    cleanState_.clear(); // nothing of it was ever saved
    lastAutosaved_ = jobState();
    setEdited(true);
    return true;
}

void ZOLDocument::updateSavedPricesBar() {
    const auto& pricing = workbook_->pricingData();
    savedPricesBar_->setVisible(pricing && pricing->savedItemsChangePrices());
}

void ZOLDocument::useSavedPrices() {
    const auto& pricing = workbook_->pricingData();
    if (!pricing || !pricing->useSavedItems())
        return;
    updateSavedPricesBar();
    for (const Screen& screen : screens_)
        screen.loadValues();
    noteEdit();
    statusBar()->showMessage(tr("The job is priced with the prices saved in the workbook."));
}

bool ZOLDocument::canClose() {
    if (!edited_)
        return true;
    const QString message =
        tr("Do you want to save the changes you made in the document “%1”?").arg(displayName());
    const int answer =
        ZOLAlerts::run(utf8(message), "Your changes will be lost if you don’t save them.",
                       {"Save", "Don't Save", "Cancel"});
    if (answer == 0)
        return save();
    if (answer == 1) {
        restoreLastSaved();
        recovery_.reset();
        return true;
    }
    return false;
}

void ZOLDocument::closeEvent(QCloseEvent* event) {
    if (!canClose()) {
        event->ignore();
        return;
    }
    autosaveTimer_->stop();
    recovery_.reset();
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
    window.setNumberOfWorksheets(static_cast<int32_t>(workbook_->worksheets().size()));
    window.setAcceptTitle(acceptTitle);
    window.exec();
    if (!window.acceptChanges())
        return std::nullopt;
    const auto settings = window.getZolPrintSettings();
    const auto all = settings.find("PrintAllWorksheets");
    if (all != settings.end() && all->second)
        return ZOLPrintData::getHTMLWithWorkbook(workbook_, settings);
    return ZOLPrintData::getHTMLWithWorkbook(workbook_, selectedWorksheetIndex(), settings);
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
