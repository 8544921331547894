#pragma once
#include <QWidget>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ZOLWorkbook;
namespace Ui {
class ZOLWorkbookSummaryViewController;
}

// The Workbook Summary tab: the blocks and accessories of every worksheet, priced from the
// price list, as the printed workbook summary lists them (never rounded to full bundles), with
// a way to the price list.
class ZOLWorkbookSummaryViewController : public QWidget {
    Q_OBJECT

public:
    // One line of the summary: a block shape of one size, or an accessory.
    struct Row {
        std::string name;
        int32_t quantity = 0;
        double unitPrice = 0.0;
        double totalCost = 0.0;
        double squareFootCost = 0.0;
        double weight = 0.0;
    };
    struct Summary {
        std::vector<Row> rows; // blocks by size, then accessories; empty when no block is used
        int32_t totalQuantity = 0;
        double totalCost = 0.0;
        double squareFootCost = 0.0;
        double totalWeight = 0.0;
        double grossSquareFeet = 0.0;
    };
    // The summary of a workbook, line for line as the printed page computes it.
    static Summary summarize(const ZOLWorkbook& workbook);

    explicit ZOLWorkbookSummaryViewController(QWidget* parent = nullptr);
    ~ZOLWorkbookSummaryViewController() override;

    void setWorkbook(std::shared_ptr<ZOLWorkbook> workbook);
    const std::shared_ptr<ZOLWorkbook>& workbook() const { return workbook_; }
    void loadValues();

    static constexpr const char* kSignName = "Zol Blocks Job Site Sign";

signals:
    void editPricingRequested();

private:
    std::unique_ptr<Ui::ZOLWorkbookSummaryViewController> ui_;
    std::shared_ptr<ZOLWorkbook> workbook_;
};
