#include "ui/ZOLJobDocument.h"

#include "io/ZOLFileSaver.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLJobSnapshot.h"
#include "ui/ZOLJobSummaryCommand.h"
#include "ui/ZOLNotesCommand.h"
#include "ui/ZOLOpeningsCommand.h"
#include "ui/ZOLPricesCommand.h"
#include "ui/ZOLProjectHeaderCommand.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLRecordEditCommand.h"
#include "ui/ZOLRecoveryStore.h"
#include "ui/ZOLSettingsPreferences.h"
#include "ui/ZOLWastePercentageCommand.h"
#include "ui/ZOLWorksheetCommand.h"

#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <QUndoStack>

namespace {
std::string nativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}
} // namespace

ZOLJobDocument::ZOLJobDocument(QObject* parent)
    : QObject(parent), workbook_(std::make_shared<ZOLWorkbook>()), autosaveTimer_(new QTimer(this)),
      undoStack_(new QUndoStack(this)) {
    autosaveTimer_->setSingleShot(true);
    connect(autosaveTimer_, &QTimer::timeout, this, &ZOLJobDocument::autosave);
    startUnedited();
}

void ZOLJobDocument::startUnedited() {
    snapshotAtSave_ = ZOLJobSnapshot::capture(*workbook_);
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    resetHistory();
}

ZOLJobDocument::~ZOLJobDocument() = default;

void ZOLJobDocument::setWorkbook(std::shared_ptr<ZOLWorkbook> workbook) {
    workbook_ = workbook ? std::move(workbook) : std::make_shared<ZOLWorkbook>();
    resetHistory();
}

// ---------------------------------------------------------------------------------------------
// Reading

QByteArray ZOLJobDocument::dataOfType(const QString&) const {
    const std::string xml = workbook_->getXMLString();
    return QByteArray(xml.data(), static_cast<qsizetype>(xml.size()));
}

QByteArray ZOLJobDocument::jobState() const {
    return dataOfType() + QByteArray(1, '\0') + ZOLJobSnapshot::capture(*workbook_);
}

std::shared_ptr<ZOLWorkbook> ZOLJobDocument::readWorkbook(const QByteArray& bytes,
                                                          bool* wrongFormat) {
    const auto result = ZOLWorkbookReader::readWorkbookData(
        std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    if (wrongFormat)
        *wrongFormat = result.status == ZOLReadStatus::Refused;
    return result.ok() ? result.workbook : nullptr;
}

bool ZOLJobDocument::readFromData(const QByteArray& bytes, bool* wrongFormat) {
    auto workbook = readWorkbook(bytes, wrongFormat);
    if (!workbook)
        return false;
    adopt(std::move(workbook), QByteArray());
    return true;
}

QStringList ZOLJobDocument::adopt(std::shared_ptr<ZOLWorkbook> workbook,
                                  const QByteArray& snapshot) {
    const QStringList restored =
        snapshot.isEmpty() ? QStringList() : ZOLJobSnapshot::apply(snapshot, *workbook);
    workbook_ = std::move(workbook);
    emit workbookReplaced();
    // After the window has shown it: showing brings the job summary's generated lines up to date.
    resetHistory();
    return restored;
}

bool ZOLJobDocument::readFromFile(const QString& path) {
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
    const QStringList restored =
        adopt(std::move(workbook), snapshots_.load(path, data).value_or(QByteArray()));
    if (!restored.isEmpty())
        emit statusMessage(tr("Restored from this computer: %1").arg(restored.join(", ")));
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

// ---------------------------------------------------------------------------------------------
// Saving

bool ZOLJobDocument::writeFile(const QString& path, const QByteArray& bytes,
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
        emit statusMessage(message + QLatin1Char(' ') + qs(error) + QLatin1Char(' ') +
                           tr("Autosave tries again after your next change."));
    return false;
}

bool ZOLJobDocument::saveToFile(const QString& path) {
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
    // The generated lines just brought up to date are part of no change the user made.
    commitValues();
    undoStack_->setClean();
    setFilePath(canonical);
    setEdited(false);
    return true;
}

QString ZOLJobDocument::suggestedFileName() const {
    QString suggested = qs(workbook_->projectName()).trimmed();
    if (suggested.isEmpty())
        suggested = displayName();
    suggested.replace('/', '-');
    return QFileInfo(suggested).completeBaseName() + ".zol";
}

bool ZOLJobDocument::revertToSaved() {
    auto workbook = readWorkbook(fileBytesAtSave_, nullptr);
    if (!workbook)
        return false;
    adopt(std::move(workbook), snapshotAtSave_);
    restoreLastSaved();
    cleanState_ = jobState();
    lastAutosaved_ = cleanState_;
    setEdited(false);
    return true;
}

void ZOLJobDocument::restoreLastSaved() {
    if (!autosavedSinceSave_ || filePath_.isEmpty())
        return;
    if (writeFile(filePath_, fileBytesAtSave_, snapshotAtSave_, false))
        autosavedSinceSave_ = false;
}

void ZOLJobDocument::discardChanges() {
    restoreLastSaved();
    recovery_.reset();
}

void ZOLJobDocument::close() {
    autosaveTimer_->stop();
    recovery_.reset();
    undoStack_->clear();
}

void ZOLJobDocument::setFilePath(const QString& path) {
    filePath_ = path;
    emit fileChanged(path);
}

QString ZOLJobDocument::displayName() const {
    if (!filePath_.isEmpty())
        return QFileInfo(filePath_).fileName();
    return untitledNumber_ <= 1 ? tr("Untitled") : tr("Untitled %1").arg(untitledNumber_);
}

// ---------------------------------------------------------------------------------------------
// Edits and autosave

void ZOLJobDocument::setEdited(bool edited) {
    if (edited == edited_)
        return;
    edited_ = edited;
    emit editedChanged(edited_);
}

void ZOLJobDocument::noteEdit(const QString& change) {
    const QByteArray now = jobState();
    if (now != committedState_ && !applying_) {
        ZOLJobValues is = ZOLJobValues::capture(*workbook_);
        ZOLJobValues before;
        ZOLJobValues after;
        ZOLJobValues::difference(committed_, is, before, after);
        committed_ = std::move(is);
        committedState_ = now;
        if (!after.isEmpty() || !before.isEmpty())
            undoStack_->push(commandFor(std::move(before), std::move(after), change));
    }
    followSavedState(now);
}

void ZOLJobDocument::followSavedState(const QByteArray& now) {
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

void ZOLJobDocument::startAutosaveTimer() {
    // Not restarted by every keystroke, so steady typing is still saved within the delay.
    if (!autosaveTimer_->isActive())
        autosaveTimer_->start(ZOLSettingsKeys::autosaveDelaySeconds() * 1000);
}

void ZOLJobDocument::autosave() {
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
        recovery_ = makeRecoverySlot_ ? makeRecoverySlot_() : fallback.createSlot();
    }
    if (recovery_->write(bytes, snapshot))
        lastAutosaved_ = state;
}

bool ZOLJobDocument::restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot) {
    if (!slot)
        return false;
    const QByteArray bytes = slot->read();
    // The reader's own alerts still show: a damaged recovery file is reported as such.
    auto workbook = readWorkbook(bytes, nullptr);
    if (!workbook)
        return false;
    adopt(std::move(workbook), slot->readSnapshot());
    recovery_ = std::move(slot);
    cleanState_.clear(); // nothing of it was ever saved
    lastAutosaved_ = jobState();
    setEdited(true);
    return true;
}

// ---------------------------------------------------------------------------------------------
// Prices

bool ZOLJobDocument::savedPricesDiffer() const {
    const auto& pricing = workbook_->pricingData();
    return pricing && pricing->savedItemsChangePrices();
}

bool ZOLJobDocument::useSavedPrices() {
    const auto& pricing = workbook_->pricingData();
    if (!pricing || !pricing->useSavedItems())
        return false;
    emit pricesReplaced();
    noteEdit(tr("Use Saved Prices"));
    emit statusMessage(tr("The job is priced with the prices saved in the workbook."));
    return true;
}

// ---------------------------------------------------------------------------------------------
// Undo history

void ZOLJobDocument::commitValues() {
    committed_ = ZOLJobValues::capture(*workbook_);
    committedState_ = jobState();
}

void ZOLJobDocument::resetHistory() {
    undoStack_->clear();
    commitValues();
}

namespace {
// Whether the worksheets' records differ in their waste percentages alone.
bool onlyWasteDiffers(const ZOLJobValues& before, const ZOLJobValues& after) {
    for (size_t i = 0; i < before.sheets.size(); ++i) {
        ZOLJobValues::Sheet was = before.sheets[i].second;
        const ZOLJobValues::Sheet& is = after.sheets[i].second;
        if (was.wall.wastePercentage() == is.wall.wastePercentage())
            return false;
        was.wall.setWastePercentage(is.wall.wastePercentage());
        if (!(was == is))
            return false;
    }
    return true;
}

bool openingsDiffer(const ZOLJobValues& before, const ZOLJobValues& after) {
    for (size_t i = 0; i < before.sheets.size(); ++i)
        if (before.sheets[i].second.openings != after.sheets[i].second.openings)
            return true;
    return false;
}
} // namespace

QUndoCommand* ZOLJobDocument::commandFor(ZOLJobValues before, ZOLJobValues after,
                                         const QString& change) {
    ZOLEditPlace place = placeOfEdit_ ? placeOfEdit_() : ZOLEditPlace();
    const QString text = change.isEmpty() ? place.label : change;
    if (!change.isEmpty())
        place.typing = false; // a named command is one step of its own
    // The kind is the first part the change touched, in the order the user meets them.
    if (after.sheetList) {
        // The worksheet added, renamed or deleted, at its place in the list.
        const auto& was = *before.sheetList;
        const auto& is = *after.sheetList;
        size_t at = 0;
        while (at < was.size() && at < is.size() && was[at] == is[at])
            ++at;
        place.worksheet = at < was.size() && was.size() >= is.size() ? was[at].first
                          : at < is.size()                           ? is[at].first
                                                                     : nullptr;
        return new ZOLWorksheetCommand(this, std::move(before), std::move(after), place, text);
    }
    if (!after.sheets.empty()) {
        if (openingsDiffer(before, after))
            return new ZOLOpeningsCommand(this, std::move(before), std::move(after), place, text);
        if (onlyWasteDiffers(before, after))
            return new ZOLWastePercentageCommand(this, std::move(before), std::move(after), place,
                                                 tr("Waste Percentage"));
        return new ZOLRecordEditCommand(this, std::move(before), std::move(after), place, text);
    }
    if (after.header)
        return new ZOLProjectHeaderCommand(this, std::move(before), std::move(after), place, text);
    if (after.notes)
        return new ZOLNotesCommand(this, std::move(before), std::move(after), place,
                                   tr("Project Notes"));
    if (after.prices)
        return new ZOLPricesCommand(this, std::move(before), std::move(after), place,
                                    change.isEmpty() ? tr("Price Change") : change);
    return new ZOLJobSummaryCommand(this, std::move(before), std::move(after), place, text);
}

void ZOLJobDocument::applyChange(const ZOLJobValues& values, const ZOLEditPlace& place) {
    applying_ = true;
    values.applyTo(*workbook_);
    emit changeApplied(place);
    commitValues();
    applying_ = false;
    followSavedState(committedState_);
}
