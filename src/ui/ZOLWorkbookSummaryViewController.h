#pragma once
#include "report/ZOLWorkbookSummary.h"

#include <QWidget>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ZOLWorkbook;
class ZOLWorkbookSummaryTableModel;
namespace Ui {
class ZOLWorkbookSummaryViewController;
}

// The Workbook Summary tab: the blocks and accessories of every worksheet, priced from the
// price list, as the printed workbook summary lists them (never rounded to full bundles), with
// a way to the price list.
class ZOLWorkbookSummaryViewController : public QWidget {
    Q_OBJECT

public:
    using Row = ZOLWorkbookSummary::Row;
    using Summary = ZOLWorkbookSummary::Summary;
    // The summary of a workbook, line for line as the printed page computes it.
    static Summary summarize(const ZOLWorkbook& workbook) {
        return ZOLWorkbookSummary::summarize(workbook);
    }

    explicit ZOLWorkbookSummaryViewController(QWidget* parent = nullptr);
    ~ZOLWorkbookSummaryViewController() override;

    void setWorkbook(std::shared_ptr<ZOLWorkbook> workbook);
    const std::shared_ptr<ZOLWorkbook>& workbook() const { return workbook_; }
    void loadValues();

    static constexpr const char* kSignName = ZOLWorkbookSummary::kSignName;

signals:
    void editPricingRequested();

private:
    std::unique_ptr<Ui::ZOLWorkbookSummaryViewController> ui_;
    ZOLWorkbookSummaryTableModel* summaryModel_;
    std::shared_ptr<ZOLWorkbook> workbook_;
};
