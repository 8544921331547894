// The tables' models on their own: consistent with the views as their records grow and shrink,
// rows that stay keep their selection across a reload, and a cell given back its own text is no
// edit.
#include "UiTestSupport.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLJobSummaryTableModel.h"
#include "ui/ZOLOpeningsTableModel.h"
#include "ui/ZOLPriceTableModel.h"
#include "ui/ZOLWorkbookSummaryTableModel.h"

#include <QAbstractItemModelTester>

namespace {
// Gives `openings` that many rows, the first with one opening, the next with two, and so on.
std::shared_ptr<ZOLOpenings> resize(std::shared_ptr<ZOLOpenings> openings, int rows) {
    std::vector<std::shared_ptr<ZOLOpening>> list;
    for (int i = 0; i < rows; ++i) {
        auto opening = std::make_shared<ZOLOpening>();
        opening->setNumberOfOpenings(i + 1);
        opening->setOpeningWidth(36.0);
        opening->setOpeningHeight(48.0);
        list.push_back(opening);
    }
    openings->setOpeningList(list);
    return openings;
}
} // namespace

class ZOLTableModelsTest : public QObject {
    Q_OBJECT

private slots:
    void modelsStayConsistentAsTheirRecordsChange() {
        using Mode = QAbstractItemModelTester::FailureReportingMode;

        ZOLOpeningsTableModel openings;
        QAbstractItemModelTester openingsTester(&openings, Mode::QtTest);
        const auto list = resize(std::make_shared<ZOLOpenings>(), 2);
        openings.setOpeningData(list);
        for (int rows : {2, 5, 1, 0, 3}) {
            resize(list, rows);
            openings.reload();
            QCOMPARE(openings.rowCount(), rows);
        }

        ZOLPriceTableModel prices;
        QAbstractItemModelTester pricesTester(&prices, Mode::QtTest);
        auto pricing = std::make_shared<ZOLPricing>();
        prices.setPricingData(pricing);
        prices.reload(QBrush(Qt::gray));
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(8, 0, 23.40));
        prices.reload(QBrush(Qt::gray));
        QCOMPARE(prices.rowCount(), 45);
        QVERIFY(pricing->useSavedItems());
        prices.reload(QBrush(Qt::gray));
        QCOMPARE(prices.rowCount(), 1);

        ZOLWorkbookSummaryTableModel summary;
        QAbstractItemModelTester summaryTester(&summary, Mode::QtTest);
        ZOLWorkbookSummary::Summary lines;
        lines.rows.resize(3);
        summary.showSummary(lines); // its rows are the summary tab's to pin
        summary.showSummary({});

        ZOLJobSummaryTableModel job;
        QAbstractItemModelTester jobTester(&job, Mode::QtTest);
        job.showLines({std::make_shared<ZOLCustomItem>(), std::make_shared<ZOLCustomItem>()});
        job.showLines({});
        QCOMPARE(job.rowCount(), 0);
    }

    void rowsThatStayKeepTheirSelection() {
        ZOLOpeningsTableModel model;
        const auto list = resize(std::make_shared<ZOLOpenings>(), 2);
        model.setOpeningData(list);
        model.reload();
        QTableView view;
        view.setModel(&model);
        view.selectRow(1);

        // Rows come and go at the end, as lines are added and removed.
        const std::tuple<int, bool> steps[] = {{3, true}, {2, true}, {1, false}};
        for (const auto& [rows, kept] : steps) {
            resize(list, rows);
            model.reload();
            QCOMPARE(view.selectionModel()->isRowSelected(1), kept);
        }
    }

    void aCellGivenBackItsOwnTextIsNoEdit() {
        ZOLOpeningsTableModel openings;
        openings.setOpeningData(resize(std::make_shared<ZOLOpenings>(), 1));
        openings.reload();
        QSignalSpy rowEdits(&openings, &ZOLOpeningsTableModel::rowEdited);
        const QModelIndex width = openings.index(0, ZOLOpeningsTableModel::Width);
        QVERIFY(openings.setData(width, QString("36.00")));
        const QModelIndex box = openings.index(0, ZOLOpeningsTableModel::RemoveSill);
        QVERIFY(openings.setData(box, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(rowEdits.count(), 0);
        QVERIFY(openings.setData(width, QString("36")));
        QCOMPARE(rowEdits.count(), 1);

        ZOLPriceTableModel prices;
        auto pricing = std::make_shared<ZOLPricing>();
        prices.setPricingData(pricing);
        prices.reload(QBrush(Qt::gray));
        QSignalSpy changes(&prices, &QAbstractItemModel::dataChanged);
        const QModelIndex price = prices.index(0, ZOLPriceTableModel::Price);
        QVERIFY(prices.setData(price, QString("0.00")));
        QCOMPARE(changes.count(), 0);
        // An emptied cell keeps its price but shows it again.
        pricing->priceItems()[0]->setPrice(4.5);
        QVERIFY(prices.setData(price, QString()));
        QCOMPARE(pricing->priceItems()[0]->price(), 4.5);
        QCOMPARE(price.data().toString(), QString("4.50"));
        QCOMPARE(changes.count(), 1);
    }
};

QTEST_MAIN(ZOLTableModelsTest)
#include "ZOLTableModelsTest.moc"
