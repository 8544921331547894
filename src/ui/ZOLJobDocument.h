#pragma once
#include "ui/ZOLEditPlace.h"
#include "ui/ZOLJobValues.h"
#include "ui/ZOLSnapshotStore.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QTimer;
class QUndoCommand;
class QUndoStack;
class ZOLRecoverySlot;
class ZOLWorkbook;

// One open estimate apart from any window: the workbook, its file, whether the two differ, and
// the safety nets behind them.
//
// A workbook with a file is autosaved into that file a little after an edit, so a crash loses
// almost nothing; an untitled one is autosaved to a recovery file that the next start offers
// back. Save, Don't Save and Revert still mean what users expect: the file holds what the user
// last saved unless the program stops without being asked.
//
// Every save and autosave also keeps a snapshot of the job on this computer (ZOLJobSnapshot):
// what the workbook file does not bring back (notes, version, distributor, waste percentages,
// summary switches, the user's own job-summary lines, the price list as it was, the concrete
// wall heights). Reopening that same file, unchanged, gives the job back as the user left it.
//
// Every change is also kept in an undo history. The screens write straight into the records and
// only say that something changed; the document compares the records with their values as last
// recorded and keeps what changed, before and after, as one command named after the change.
class ZOLJobDocument : public QObject {
    Q_OBJECT

public:
    // A new workbook of one worksheet "Worksheet 1", as yet unedited.
    explicit ZOLJobDocument(QObject* parent = nullptr);
    ~ZOLJobDocument() override;

    const std::shared_ptr<ZOLWorkbook>& workbook() const { return workbook_; }
    // Takes a workbook as it stands (a new one when none is given); the saved state is not
    // touched, so the next edit compares it with what was saved.
    void setWorkbook(std::shared_ptr<ZOLWorkbook> workbook);

    // Reads a workbook file's bytes. A file that the reader refuses leaves the document as it
    // was and returns false; the reader has shown its alert, and `wrongFormat` tells whether
    // the bytes were turned away before parsing (the caller then reports it).
    bool readFromData(const QByteArray& bytes, bool* wrongFormat = nullptr);
    // The bytes saved for the workbook, whatever the type asked for.
    QByteArray dataOfType(const QString& type = QStringLiteral("zol")) const;
    // Opens `path` into this (fresh) document; false (after the alert) when it cannot be read.
    bool readFromFile(const QString& path);
    // Writes the workbook to `path` and makes it the document's file.
    bool saveToFile(const QString& path);
    // What decides whether the document is edited: the file's bytes and the snapshot of what
    // the file does not keep.
    QByteArray jobState() const;
    // Replaces the price list with the prices the opened file was saved with; false when the
    // file brought none.
    bool useSavedPrices();
    // Whether the opened file's own prices differ from the list the job is priced with.
    bool savedPricesDiffer() const;

    // Where the snapshots of saved jobs are kept (tests point it at a folder of their own).
    void setSnapshotDirectory(const QString& directory) {
        snapshots_ = ZOLSnapshotStore(directory);
    }
    const ZOLSnapshotStore& snapshotStore() const { return snapshots_; }
    // Where an untitled job's autosave goes; by default a slot of the user's recovery folder.
    void setRecoverySlotMaker(std::function<std::unique_ptr<ZOLRecoverySlot>()> maker) {
        makeRecoverySlot_ = std::move(maker);
    }
    void setUntitledNumber(int number) { untitledNumber_ = number; }

    QString filePath() const { return filePath_; }
    QString displayName() const;
    // The name Save As offers: the project's name, else the document's.
    QString suggestedFileName() const;
    // The job as last opened or saved, the older version File > Compare With… offers: the
    // file's bytes (empty for a job never saved) and the snapshot kept with them.
    QByteArray savedFileBytes() const { return fileBytesAtSave_; }
    QByteArray savedSnapshot() const { return snapshotAtSave_; }
    bool isDocumentEdited() const { return edited_; }

    // Adopts a recovery file: the document holds its workbook as unsaved changes.
    bool restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot);
    // Goes back to what the user last saved, in the document and in the file.
    bool revertToSaved();
    // Don't Save: the file goes back to what the user saved and the recovery file goes away.
    void discardChanges();
    // The document closes: nothing more is autosaved.
    void close();

    // Writes the autosave now (the timer calls it).
    void autosave();
    // Call after anything that may have changed the workbook; cheap when nothing did. A change
    // goes into the undo history under `change`, or else under the name of where it was made.
    void noteEdit(const QString& change = QString());

    // The undo history; its clean state is the state last saved.
    QUndoStack* undoStack() const { return undoStack_; }
    // Tells where the user is making changes (the window knows its worksheet, tab and control).
    void setPlaceOfEdit(std::function<ZOLEditPlace()> place) { placeOfEdit_ = std::move(place); }
    // Starts a new history from the records as they stand (a job opened, reverted, recovered).
    void resetHistory();
    // A new job as it now stands (a window has shown it) is where the user starts from.
    void startUnedited();
    // Undo and redo: puts record values back and shows where the change was made.
    void applyChange(const ZOLJobValues& values, const ZOLEditPlace& place);

signals:
    // The document holds another workbook (opened, reverted, recovered).
    void workbookReplaced();
    // The price list was replaced by the file's own prices.
    void pricesReplaced();
    void editedChanged(bool edited);
    void fileChanged(const QString& path);
    // Undo or redo changed the records: the window shows them again at `place`.
    void changeApplied(const ZOLEditPlace& place);
    // A passing word for the user (what a reopened job got back, a failed autosave).
    void statusMessage(const QString& message);

private:
    void setFilePath(const QString& path);
    void setEdited(bool edited);
    void startAutosaveTimer();
    bool writeFile(const QString& path, const QByteArray& bytes, const QByteArray& snapshot,
                   bool reportFailure);
    // The workbook in a file's bytes, or nothing (after the reader's alert).
    std::shared_ptr<ZOLWorkbook> readWorkbook(const QByteArray& bytes, bool* wrongFormat);
    // Takes a workbook just read, with the snapshot of its job (if any) applied first; returns
    // what the snapshot gave back.
    QStringList adopt(std::shared_ptr<ZOLWorkbook> workbook, const QByteArray& snapshot);
    void restoreLastSaved();
    // The edited mark and autosave follow the job as it now stands (`now` is its job state).
    void followSavedState(const QByteArray& now);
    // The record values now become the ones the next change is compared with.
    void commitValues();
    QUndoCommand* commandFor(ZOLJobValues before, ZOLJobValues after, const QString& change);

    std::shared_ptr<ZOLWorkbook> workbook_;
    QString filePath_;
    int untitledNumber_ = 1;
    // The file's bytes as the user last opened or saved them: Don't Save and Revert put them
    // back after autosave has written edits into the file.
    QByteArray fileBytesAtSave_;
    // The snapshot of the job as the user last opened or saved it.
    QByteArray snapshotAtSave_;
    // The job state (jobState) at that moment (an opened file saves a little differently from
    // how it was written); the document is edited when the job state now differs.
    QByteArray cleanState_;
    // The job state autosave last wrote, so that an unchanged job is not written again.
    QByteArray lastAutosaved_;
    ZOLSnapshotStore snapshots_;
    bool edited_ = false;
    // Autosave has written edits into the file that the user has not saved.
    bool autosavedSinceSave_ = false;
    QTimer* autosaveTimer_;
    std::function<std::unique_ptr<ZOLRecoverySlot>()> makeRecoverySlot_;
    std::unique_ptr<ZOLRecoverySlot> recovery_;

    QUndoStack* undoStack_;
    std::function<ZOLEditPlace()> placeOfEdit_;
    // The record values, and the job state, as of the last change recorded or applied.
    ZOLJobValues committed_;
    QByteArray committedState_;
    // Undo or redo is putting values back: that is no new change.
    bool applying_ = false;
};
