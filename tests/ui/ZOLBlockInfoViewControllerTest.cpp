// The Block Info tab: the 17 part rows, the totals and the waste allowance.
#include "ui/ZOLBlockInfoViewController.h"
#include "model/ZOLWall.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

#include <memory>

class ZOLBlockInfoViewControllerTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ZOLBlockInfoViewController> screen;
    std::shared_ptr<ZOLWall> wall;

    QTableWidget* table() { return screen->findChild<QTableWidget*>("partTable"); }
    QComboBox* waste() { return screen->findChild<QComboBox*>("wastePercentage"); }
    QString text(const char* name) { return screen->findChild<QLineEdit*>(name)->text(); }
    QStringList row(int r) {
        QStringList cells;
        for (int c = 0; c < table()->columnCount(); ++c)
            cells << table()->item(r, c)->text();
        return cells;
    }

private slots:
    void init() {
        wall = std::make_shared<ZOLWall>();
        screen = std::make_unique<ZOLBlockInfoViewController>();
        screen->setWallData(wall);
    }

    void straightBlocksRoundToFullBundles() {
        // 100 ft of 8-inch wall, 8 ft high: 150 blocks, 153 with the 2 % waste.
        wall->setWallLength(100.0);
        screen->loadValues();
        QCOMPARE(table()->rowCount(), 17);
        QCOMPARE(row(0), QStringList({"Straight Block", "153", "12", "156", "13", "1170.00"}));
        QCOMPARE(table()->item(16, 0)->text(), QString("pelmo"));
        // Radius blocks have a row but never a count.
        QCOMPARE(table()->item(10, 0)->text(), QString("Radius Block"));
        QCOMPARE(table()->item(10, 1)->text(), QString("0"));
        QCOMPARE(text("blockSize"), QString("8\""));
        QCOMPARE(waste()->currentIndex(), 2);
        QCOMPARE(waste()->currentText(), QString("2%"));

        // The total weight is that of full bundles, not of the plain counts.
        double rounded = 0.0;
        for (int32_t type = 0; type < 17; ++type)
            rounded += wall->getApproximateWeightWithPartType(type, true);
        QVERIFY(rounded > wall->getTotalPartsWeight());
        QCOMPARE(text("totalWeight"), QString::asprintf("%.2f lbs", rounded));
        QCOMPARE(text("trucks"), QString::asprintf("%.2f", wall->getTrucks()));
    }

    void wasteChoiceChangesTheStraightBlocks() {
        wall->setWallLength(100.0);
        screen->loadValues();
        QSignalSpy edited(screen.get(), &ZOLBlockInfoViewController::edited);
        waste()->setCurrentIndex(0);
        emit waste()->activated(0);
        QCOMPARE(wall->wastePercentage(), 0.0);
        QCOMPARE(table()->item(0, 1)->text(), QString("150"));
        QCOMPARE(edited.count(), 1);

        waste()->setCurrentIndex(5);
        emit waste()->activated(5);
        QCOMPARE(wall->wastePercentage(), 0.05);
        QCOMPARE(table()->item(0, 1)->text(), QString("158"));
    }

    void clearedWallShowsZeros() {
        screen->loadValues();
        QCOMPARE(text("totalWeight"), QString("0.00 lbs"));
        QCOMPARE(text("trucks"), QString("0.00"));
        for (int r = 0; r < 17; ++r)
            QCOMPARE(table()->item(r, 1)->text(), QString("0"));
        // A waste past the listed percentages selects nothing.
        wall->setWastePercentage(0.5);
        screen->loadValues();
        QCOMPARE(waste()->currentIndex(), -1);
    }
};

QTEST_MAIN(ZOLBlockInfoViewControllerTest)
#include "ZOLBlockInfoViewControllerTest.moc"
