#pragma once
#include "ui/ZOLJobDocument.h"

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
class ZOLDocumentController;
class ZOLRecoverySlot;
class ZOLSavedPricesBar;
class ZOLWorkbook;
class ZOLWorkbookSummaryViewController;
class ZOLWorksheet;
namespace Ui {
class ZOLDocument;
}

// The window of one open estimate (ZOLJobDocument): the project header, the worksheet selector
// with its commands, a tab for each screen, the menus, printing and export. It shows whether
// the workbook differs from its file; the job document behind it keeps the file, the autosave
// and the snapshot of the job.
class ZOLDocument : public QMainWindow {
    Q_OBJECT

public:
    explicit ZOLDocument(ZOLDocumentController* controller = nullptr, QWidget* parent = nullptr);
    ~ZOLDocument() override;

    // Shows a workbook; with none given, a new one of one worksheet "Worksheet 1".
    void loadWorkbook(std::shared_ptr<ZOLWorkbook> workbook);
    // Hands the records of worksheet `index` to every screen and reloads them.
    void loadWorksheetDataWithIndex(int32_t index);
    ZOLJobDocument* jobDocument() const { return job_; }

    // The job document's own, for the window's callers and tests.
    const std::shared_ptr<ZOLWorkbook>& workbook() const { return job_->workbook(); }
    bool readFromData(const QByteArray& bytes, bool* wrongFormat = nullptr) {
        return job_->readFromData(bytes, wrongFormat);
    }
    QByteArray dataOfType(const QString& type = QStringLiteral("zol")) const {
        return job_->dataOfType(type);
    }
    bool readFromFile(const QString& path) { return job_->readFromFile(path); }
    bool saveToFile(const QString& path) { return job_->saveToFile(path); }
    QByteArray jobState() const { return job_->jobState(); }
    void setSnapshotDirectory(const QString& directory) { job_->setSnapshotDirectory(directory); }
    QString filePath() const { return job_->filePath(); }
    QByteArray savedFileBytes() const { return job_->savedFileBytes(); }
    QByteArray savedSnapshot() const { return job_->savedSnapshot(); }
    const ZOLSnapshotStore& snapshotStore() const { return job_->snapshotStore(); }
    QString displayName() const { return job_->displayName(); }
    bool isDocumentEdited() const { return job_->isDocumentEdited(); }
    bool restoreFromRecovery(std::unique_ptr<ZOLRecoverySlot> slot);
    void autosave() { job_->autosave(); }
    // Call after anything that may have changed the workbook; cheap when nothing did.
    void noteEdit() { job_->noteEdit(); }
    void useSavedPrices() { job_->useSavedPrices(); }

    // Where the user is making a change: the worksheet, the tab and the control with the focus.
    ZOLEditPlace placeOfEdit() const;

    // Asks Save / Don't Save / Cancel when there are unsaved changes; true when the window
    // may close.
    bool canClose();

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
    // Ctrl+Z and its kin reach the job's history from every control of the window, text fields
    // included: a user never meets two undo histories.
    bool eventFilter(QObject* watched, QEvent* event) override;

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
    void showWorkbook();
    void showHeader();
    void fileDidChange(const QString& path);
    void editedDidChange(bool edited);
    void updateTitle();
    void updateSavedPricesBar();
    void reloadScreens();
    // Shows the job again after undo or redo, at the place of the change.
    void showChange(const ZOLEditPlace& place);
    int32_t selectedWorksheetIndex() const;
    // Shows the print settings; the report they ask for, or nothing when the user cancelled.
    std::optional<std::string> reportFromPrintSettings(const QString& acceptTitle);
    ZOLReportRenderer* renderer();

    std::unique_ptr<Ui::ZOLDocument> ui_;
    ZOLDocumentController* controller_;
    ZOLJobDocument* job_;
    std::vector<Screen> screens_;
    ZOLWorkbookSummaryViewController* workbookSummary_ = nullptr;
    ZOLSavedPricesBar* savedPricesBar_ = nullptr;
    bool loading_ = false;

    ZOLReportRenderer* renderer_ = nullptr;
    // The printer of the print job under way; it must live until the job ends.
    std::unique_ptr<QPrinter> printer_;
    bool printing_ = false;

    QMenu* recentMenu_ = nullptr;
    QAction* revertAction_ = nullptr;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
};
