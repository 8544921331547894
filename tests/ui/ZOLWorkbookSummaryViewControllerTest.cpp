// The workbook summary tab: the job's blocks and accessories priced line by line. The lines are
// worked out once for the tab and the printed page; the page and its sums are the report's to pin.
#include "ui/ZOLWorkbookSummaryViewController.h"
#include "UiTestSupport.h"
#include "io/ZOLFormat.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

namespace {
// Two 8-inch walls and a priced 6-inch one.
std::shared_ptr<ZOLWorkbook> job() {
    auto workbook = std::make_shared<ZOLWorkbook>();
    workbook->worksheets()[0]->wallData()->setWallLength(100.0);
    workbook->worksheets()[0]->wallData()->setOutsideCornerLocations(4);
    auto garage = std::make_shared<ZOLWorksheet>("Garage");
    garage->wallData()->setWallLength(50.0);
    workbook->addWorksheetsObject(garage);
    auto porch = std::make_shared<ZOLWorksheet>("Porch");
    porch->wallData()->setBlockSize(6);
    porch->wallData()->setWallLength(40.0);
    workbook->addWorksheetsObject(porch);
    for (const auto& item : workbook->pricingData()->priceItems())
        if (item->partType() == 0 && item->partSize() == 6)
            item->setPrice(21.50);
    return workbook;
}

} // namespace

class ZOLWorkbookSummaryViewControllerTest : public QObject {
    Q_OBJECT

private slots:
    void screenShowsTheLinesTheSignAndTheTotals() {
        const auto workbook = job();
        ZOLWorkbookSummaryViewController screen;
        screen.setWorkbook(workbook);
        screen.loadValues();
        const auto summary = ZOLWorkbookSummaryViewController::summarize(*workbook);
        auto* table = screen.findChild<QTableView*>("summaryTable");
        const int rows = static_cast<int>(summary.rows.size());
        QVERIFY(rows > 3);
        QCOMPARE(rowCount(table), rows + 2);
        // 6-inch lines first.
        QCOMPARE(cellText(table, 0, 0), QString("6\" Straight Block"));
        QCOMPARE(cellText(table, 0, 2), QString("$21.50"));
        QCOMPARE(cellText(table, rows, 0), QString("Zol Blocks Job Site Sign"));
        QCOMPARE(cellText(table, rows + 1, 0), QString("Totals"));
        QCOMPARE(cellText(table, rows + 1, 1), QString::number(summary.totalQuantity));
        QCOMPARE(cellText(table, rows + 1, 3),
                 QString::fromStdString(ZOLFormat::format("$%.2f", summary.totalCost)));
        QVERIFY(cellData(table, 0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        expectTexts(&screen, QString::fromStdString(ZOLFormat::format(
                                 "grossSquareFeet=%.2f", workbook->getTotalGrossSquareFeet())));

        // Without a single block there is nothing to price.
        workbook->setWorksheets({std::make_shared<ZOLWorksheet>("Empty")});
        screen.loadValues();
        QCOMPARE(rowCount(table), 0);
    }
};

QTEST_MAIN(ZOLWorkbookSummaryViewControllerTest)
#include "ZOLWorkbookSummaryViewControllerTest.moc"
