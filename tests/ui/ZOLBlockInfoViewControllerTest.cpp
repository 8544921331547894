// The Block Info tab: the 17 part rows, the totals and the waste allowance.
#include "ui/ZOLBlockInfoViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLWall.h"

class ZOLBlockInfoViewControllerTest : public ScreenTest<ZOLBlockInfoViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLWall> wall;

    QTableView* table() { return screen->findChild<QTableView*>("partTable"); }
    QComboBox* waste() { return screen->findChild<QComboBox*>("wastePercentage"); }
    QStringList row(int r) {
        QStringList cells;
        for (int c = 0; c < table()->model()->columnCount(); ++c)
            cells << cellText(table(), r, c);
        return cells;
    }

private slots:
    void init() {
        wall = std::make_shared<ZOLWall>();
        screen = std::make_unique<ZOLBlockInfoViewController>();
        screen->setWallData(wall);
    }

    void straightBlocksRoundToFullBundlesAfterTheWaste() {
        // 100 ft of 8-inch wall, 8 ft high: 150 blocks, 153 with the 2 % waste.
        wall->setWallLength(100.0);
        screen->loadValues();
        QCOMPARE(rowCount(table()), 17);
        QCOMPARE(row(0), QStringList({"Straight Block", "153", "12", "156", "13", "1170.00"}));
        // Radius blocks have a row but never a count.
        QCOMPARE(row(10).mid(0, 2), QStringList({"Radius Block", "0"}));
        expectTexts(screen.get(), "blockSize=8\"");
        QCOMPARE(waste()->currentIndex(), 2);
        QCOMPARE(waste()->currentText(), QString("2%"));

        // The total weight is that of full bundles (1183.50 lbs in plain counts).
        expectTexts(screen.get(), "totalWeight=1206.00 lbs|trucks=0.29");

        // The waste choice changes the straight blocks.
        QSignalSpy edited(screen.get(), &ZOLBlockInfoViewController::edited);
        choose(waste(), 0);
        QCOMPARE(wall->wastePercentage(), 0.0);
        QCOMPARE(cellText(table(), 0, 1), QString("150"));
        QCOMPARE(edited.count(), 1);

        choose(waste(), 5);
        QCOMPARE(wall->wastePercentage(), 0.05);
        QCOMPARE(cellText(table(), 0, 1), QString("158"));

        // A waste past the listed percentages selects nothing.
        wall->setWastePercentage(0.5);
        screen->loadValues();
        QCOMPARE(waste()->currentIndex(), -1);
    }
};

QTEST_MAIN(ZOLBlockInfoViewControllerTest)
#include "ZOLBlockInfoViewControllerTest.moc"
