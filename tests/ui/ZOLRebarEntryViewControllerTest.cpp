// The Rebar tab driven through its widgets: lengths per set, the shared line of two sets of one
// size, the totals per size, Imperial and Metric names, and pulling the wall's size.
#include "ui/ZOLRebarEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLRebar.h"
#include "model/ZOLWall.h"

class ZOLRebarEntryViewControllerTest : public ScreenTest<ZOLRebarEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLRebar> rebar;

    QString line(const char* total, const char* size) {
        auto* length = field(total);
        return length->isVisible() ? length->text() + " " + control<QLabel>(size)->text()
                                   : QString("hidden");
    }

private slots:
    void init() {
        rebar = std::make_shared<ZOLRebar>();
        showScreen([this](auto& s) { s.setRebarData(rebar); });
    }

    void setsOfOneSizeShareALineAndCountOnceInTheTotals() {
        type(field("wallLength"), "100");
        type(field("horizontalRows1"), "2");
        type(field("horizontalRows2"), "3");
        // Both sets are "#4": one line with their sum, but the total per size counts set 1 only.
        QCOMPARE(line("horizontalTotal1", "horizontalTotalSize1"), QString("500.00 #4"));
        QCOMPARE(line("horizontalTotal2", "horizontalTotalSize2"), QString("hidden"));
        QCOMPARE(line("total1", "totalSize1"), QString("200' 0\" #4"));

        // Set 2 as "#6" gets its own line and total, in list order after "#4".
        choose(box("horizontalSize2"), 2);
        QCOMPARE(rebar->horizontalSize2(), 3);
        QCOMPARE(line("horizontalTotal1", "horizontalTotalSize1"), QString("200.00 #4"));
        QCOMPARE(line("horizontalTotal2", "horizontalTotalSize2"), QString("300.00 #6"));
        QCOMPARE(line("total2", "totalSize2"), QString("300' 0\" #6"));
        QCOMPARE(screen->totalSizeIndex(1), 2);

        // Vertical bars at 24 inches on an 8-foot wall, dowels of the same size on one line.
        type(field("verticalSpacing"), "24");
        type(field("dowelSpacing"), "48");
        type(field("dowelLength"), "36");
        QCOMPARE(line("verticalTotal1", "verticalTotalSize1"), QString("475.00 #4"));
        QCOMPARE(line("verticalTotal2", "verticalTotalSize2"), QString("hidden"));
        QCOMPARE(line("total1", "totalSize1"), QString("600' 0\" #4"));
    }

    void measurementSwitchKeepsPositionsAndPullingTakesTheWallsSize() {
        rebar->setHorizontalSize1(3);
        rebar->setDowelSize(5);
        screen->loadValues();
        type(field("verticalSpacing"), "16");
        control<QRadioButton>("metric")->click();
        QCOMPARE(rebar->measurement(), 1);
        QCOMPARE(box("horizontalSize1")->currentText(), QString("20M"));
        // "#8" has no Metric size: the box and the lines name the bar it was chosen as.
        QCOMPARE(box("dowelSize")->currentIndex(), -1);
        QCOMPARE(box("dowelSize")->placeholderText(), QString("#8 (Imperial)"));

        // The spacing and dowel fields are written by typing only.
        rebar->setVerticalSpacing(99);
        screen->loadValues();
        QCOMPARE(field("verticalSpacing")->text(), QString("16"));
        control<QRadioButton>("imperial")->click();
        QCOMPARE(box("dowelSize")->currentText(), QString("#8"));

        // Pulling the wall's size takes its height on a four-inch step.
        auto wall = std::make_shared<ZOLWall>();
        wall->setWallLength(120.0);
        wall->setUseHalfBlock(true);
        pullFrom(wall, &ZOLRebarEntryViewController::pullWallData);
        QCOMPARE(rebar->wallLength(), 120.0);
        QCOMPARE(rebar->wallHeight(), 8.67);
        QCOMPARE(box("wallHeight")->currentText(), QString("8' 8\""));
    }
};

QTEST_MAIN(ZOLRebarEntryViewControllerTest)
#include "ZOLRebarEntryViewControllerTest.moc"
