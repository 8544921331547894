// The workbook summary tab: the job's blocks and accessories priced line by line, the same
// lines and totals as the printed workbook summary.
#include "UiTestSupport.h"
#include "io/ZOLFormat.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "ui/ZOLWorkbookSummaryViewController.h"

namespace {
void setPrice(ZOLPricing& pricing, int32_t type, int32_t size, double price) {
    for (const auto& item : pricing.priceItems())
        if (item->partType() == type && (item->partSize() == size || type >= 12)) {
            item->setPrice(price);
            return;
        }
    QFAIL("no such price item");
}

// Two 8-inch walls and a 6-inch one, with a few prices.
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
    auto& pricing = *workbook->pricingData();
    setPrice(pricing, 0, 8, 23.40);
    setPrice(pricing, 0, 6, 21.50);
    setPrice(pricing, 2, 8, 31.25);
    setPrice(pricing, 13, 12, 0.09);
    return workbook;
}

} // namespace

class ZOLWorkbookSummaryTest : public QObject {
    Q_OBJECT

private slots:
    void linesAreThoseOfThePrintedSummary() {
        const auto workbook = job();
        const auto summary = ZOLWorkbookSummaryViewController::summarize(*workbook);
        QVERIFY(summary.rows.size() > 3);
        // 6-inch lines first. Every line and the totals read exactly as the printed page prints
        // them, so the sums per size and the prices are those the page's own checks pin.
        QCOMPARE(summary.rows.front().name, std::string("6\" Straight Block"));
        const std::string page = ZOLPrintData::getSummaryHTML(workbook);
        for (const auto& row : summary.rows) {
            const std::string line = ZOLFormat::format(
                "<tr>\n<td>%@</td>\n<td>%d</td>\n<td>$%.2f</td>\n<td>$%.2f</td>\n<td>$%.2f</td>\n"
                "<td>%.2f lbs</td>\n</tr>\n",
                row.name, row.quantity, row.unitPrice, row.totalCost, row.squareFootCost,
                row.weight);
            QVERIFY2(page.find(line) != std::string::npos, row.name.c_str());
        }
        const std::string totals = ZOLFormat::format(
            "<tr><td>Totals</td>\n<td>%d</td>\n<td> </td>\n<td>$%.2f</td>\n"
            "<td>$%.2f</td>\n<td>%.2f lbs</td>\n</tr>\n",
            summary.totalQuantity, summary.totalCost, summary.squareFootCost, summary.totalWeight);
        QVERIFY(page.find(totals) != std::string::npos);
    }

    void screenShowsTheLinesTheSignAndTheTotals() {
        const auto workbook = job();
        ZOLWorkbookSummaryViewController screen;
        screen.setWorkbook(workbook);
        screen.loadValues();
        const auto summary = ZOLWorkbookSummaryViewController::summarize(*workbook);
        auto* table = screen.findChild<QTableView*>("summaryTable");
        const int rows = static_cast<int>(summary.rows.size());
        QCOMPARE(rowCount(table), rows + 2);
        QCOMPARE(cellText(table, 0, 0), QString("6\" Straight Block"));
        QCOMPARE(cellText(table, 0, 2), QString("$21.50"));
        QCOMPARE(cellText(table, rows, 0), QString("Zol Blocks Job Site Sign"));
        QCOMPARE(cellText(table, rows, 1), QString("1"));
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

QTEST_MAIN(ZOLWorkbookSummaryTest)
#include "ZOLWorkbookSummaryTest.moc"
