#pragma once
#include <QWidget>

#include <cstdint>
#include <memory>
#include <vector>

class QString;
class ZOLCustomItem;
class ZOLJobSummaryTableModel;
class ZOLWorkbook;
namespace Ui {
class ZOLJobSummaryViewController;
}

// The Job Summary tab: the priced lines of the whole job, those generated from the worksheets
// and the user's own, with the job's total cost and square feet of wall. From here the user
// adds, edits and deletes lines, chooses which estimates contribute lines, prices the wall
// package in full bundles, and saves or loads the lines as a template (.zci).
class ZOLJobSummaryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLJobSummaryViewController(QWidget* parent = nullptr);
    ~ZOLJobSummaryViewController() override;

    void setWorkbook(std::shared_ptr<ZOLWorkbook> workbook);
    const std::shared_ptr<ZOLWorkbook>& workbook() const { return workbook_; }

    // Regenerates the generated lines and shows the visible ones with the totals.
    void loadValues();
    void updateTotals();

    // The commands of the tab. Edit and delete act on the selected row and do nothing without
    // one.
    void createCustomItem();
    void editCustomItem();
    void deleteCustomItem();
    void adjustTabs();
    void saveTemplate();
    void loadTemplate();
    // The template commands with the file already chosen (the panels call these).
    void saveTemplateFile(const QString& path);
    void loadTemplateFile(const QString& path);

signals:
    // The screen changed the workbook's lines or switches.
    void edited();

private:
    // The visible line of the selected row, as the workbook holds it now; none without one.
    std::shared_ptr<ZOLCustomItem> selectedLine() const;
    void displayCustomItemForm();
    void displayInfo(int32_t imageIndex);
    void roundToFullBundlesChanged(bool checked);

    std::unique_ptr<Ui::ZOLJobSummaryViewController> ui_;
    // The lines the table shows, row by row.
    ZOLJobSummaryTableModel* linesModel_;
    std::shared_ptr<ZOLWorkbook> workbook_;
    // The line being edited or deleted; none while a new line is made.
    std::shared_ptr<ZOLCustomItem> currentlyEditingItem_;
};
