#pragma once
#include "ui/ZOLSnapshotStore.h"

#include <QByteArray>
#include <QMainWindow>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QPrinter;
class ZOLReportRenderer;
class QComboBox;
class QMenu;
class QScrollArea;
class QTabWidget;
class QTimer;
class ZOLDocumentController;
class ZOLRecoverySlot;
class ZOLSavedPricesBar;
class ZOLWorkbook;
class ZOLWorkbookSummaryViewController;
class ZOLWorksheet;
namespace Ui {
class ZOLDocument;
}

// One open estimate: the workbook, its file, and the window that shows it: the project header,
// the worksheet selector with its commands, and a tab for each screen.
//
// The window shows whether the workbook differs from its file. A workbook with a file is
// autosaved into that file a little after an edit, so a crash loses almost nothing; an
// untitled one is autosaved to a recovery file that the next start offers back. Save, Don't
// Save and Revert still mean what users expect: the file holds what the user last saved
// unless the program stops without being asked.
//
// Every save and autosave also keeps a snapshot of the job on this computer (ZOLJobSnapshot):
// what the workbook file does not bring back (notes, version, distributor, waste percentages,
// summary switches, the user's own job-summary lines, the price list as it was, the concrete
// wall heights). Reopening that same file, unchanged, gives the job back as the user left it.
class ZOLDocument : public QMainWindow {
    Q_OBJECT

public:
    explicit ZOLDocument(ZOLDocumentController* controller = nullptr, QWidget* parent = nullptr);
    ~ZOLDocument() override;

    // Shows a workbook; with none given, a new one of one worksheet "Worksheet 1".
    void loadWorkbook(std::shared_ptr<ZOLWorkbook> workbook);
    // Hands the records of worksheet `index` to every screen and reloads them.
    void loadWorksheetDataWithIndex(int32_t index);
    const std::shared_ptr<ZOLWorkbook>& workbook() const { return workbook_; }

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
    // Replaces the price list with the prices the opened file was saved with.
    void useSavedPrices();
    // Where the snapshots of saved jobs are kept (tests point it at a folder of their own).
    void setSnapshotDirectory(const QString& directory) {
        snapshots_ = ZOLSnapshotStore(directory);
    }

    QString filePath() const { return filePath_; }
    // The job as last opened or saved, the older version File > Compare With… offers: the
    // file's bytes (empty for a job never saved) and the snapshot kept with them.
    QByteArray savedFileBytes() const { return fileBytesAtSave_; }
    QByteArray savedSnapshot() const { return snapshotAtSave_; }
    const ZOLSnapshotStore& snapshotStore() const { return snapshots_; }
    QString displayName() const;
    bool isDocumentEdited() const { return edited_; }
    // Adopts a recovery file: the document shows its workbook as unsaved changes.
    bool restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot);

    // Asks Save / Don't Save / Cancel when there are unsaved changes; true when the window
    // may close.
    bool canClose();
    // Writes the autosave now (the timer calls it).
    void autosave();
    // Call after anything that may have changed the workbook; cheap when nothing did.
    void noteEdit();

    QTabWidget* tabView() const;
    QComboBox* worksheetSelection() const;
    ZOLWorkbookSummaryViewController* workbookSummary() const { return workbookSummary_; }
    // The screen of a tab title, for tests and screenshots.
    QWidget* screenNamed(const QString& objectName) const;

public slots:
    void addWorksheet();
    void renameWorksheet();
    void deleteWorksheet();
    void editNotes();
    void editPricing();
    void displayBulletins();
    bool save();
    bool saveAs();
    void revertDocumentToSaved();
    void printDocument();
    void exportPDF();

signals:
    void editedChanged(bool edited);
    void fileChanged(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Screen {
        QWidget* view;
        QScrollArea* scrollView;
        std::function<void(const std::shared_ptr<ZOLWorksheet>&, const std::string& name)> hand;
        std::function<void()> loadValues;
    };
    template <class Controller>
    Controller* addScreen(
        const QString& title, const char* scrollViewName, const char* tabName,
        std::function<void(Controller*, const std::shared_ptr<ZOLWorksheet>&, const std::string&)>
            hand);
    void fitToScreen();
    void installScreens();
    void buildMenus();
    void connectHeader();
    void tabViewDidSelect(int index);
    void comboBoxSelectionDidChange(int index);
    void reloadWorksheetSelector();
    void setFilePath(const QString& path);
    void updateTitle();
    void setEdited(bool edited);
    void startAutosaveTimer();
    bool writeFile(const QString& path, const QByteArray& bytes, const QByteArray& snapshot,
                   bool reportFailure);
    // The workbook in a file's bytes, or nothing (after the reader's alert).
    std::shared_ptr<ZOLWorkbook> readWorkbook(const QByteArray& bytes, bool* wrongFormat);
    // Shows a workbook just read, with the snapshot of its job (if any) applied first; returns
    // what the snapshot gave back.
    QStringList showWithSnapshot(std::shared_ptr<ZOLWorkbook> workbook,
                                 const QByteArray& snapshot);
    void updateSavedPricesBar();
    void restoreLastSaved();
    int32_t selectedWorksheetIndex() const;
    // Shows the print settings; the report they ask for, or nothing when the user cancelled.
    std::optional<std::string> reportFromPrintSettings(const QString& acceptTitle);
    ZOLReportRenderer* renderer();

    std::unique_ptr<Ui::ZOLDocument> ui_;
    ZOLDocumentController* controller_;
    std::shared_ptr<ZOLWorkbook> workbook_;
    std::vector<Screen> screens_;
    ZOLWorkbookSummaryViewController* workbookSummary_ = nullptr;

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
    ZOLSavedPricesBar* savedPricesBar_ = nullptr;
    bool edited_ = false;
    // Autosave has written edits into the file that the user has not saved.
    bool autosavedSinceSave_ = false;
    QTimer* autosaveTimer_;
    std::unique_ptr<ZOLRecoverySlot> recovery_;
    bool loading_ = false;

    ZOLReportRenderer* renderer_ = nullptr;
    // The printer of the print job under way; it must live until the job ends.
    std::unique_ptr<QPrinter> printer_;
    bool printing_ = false;

    QMenu* recentMenu_ = nullptr;
    QAction* revertAction_ = nullptr;
};
