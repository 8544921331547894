// The Wall Info tab: the title and the texts of the wall's values.
#include "ui/ZOLWallInfoViewController.h"
#include "model/ZOLWall.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <memory>

class ZOLWallInfoViewControllerTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ZOLWallInfoViewController> screen;
    std::shared_ptr<ZOLWall> wall;

    QString text(const char* name) {
        auto* edit = screen->findChild<QLineEdit*>(QLatin1String(name));
        if (!edit)
            qFatal("no field %s", name);
        return edit->text();
    }
    QString title() { return screen->findChild<QLabel*>("pageTitle")->text(); }

private slots:
    void init() {
        wall = std::make_shared<ZOLWall>();
        screen = std::make_unique<ZOLWallInfoViewController>();
        screen->setWallData(wall);
    }

    void titleNamesTheWorksheet() {
        screen->loadValues();
        QCOMPARE(title(), QString("WALL DATA FOR CURRENT WORKSHEET"));
        screen->setWorksheetName("North");
        screen->loadValues();
        QCOMPARE(title(), QString("North WALL DATA"));
        screen->setWorksheetName("");
        screen->loadValues();
        QCOMPARE(title(), QString("WALL DATA FOR CURRENT WORKSHEET"));
    }

    void clearedWallShowsZeros() {
        screen->loadValues();
        QCOMPARE(text("blockSize"), QString("8\""));
        QCOMPARE(text("wallHeight"), QString("8' 0\""));
        QCOMPARE(text("rows"), QString("6"));
        QCOMPARE(text("wallLength"), QString("0.00"));
        QCOMPARE(text("insideCornerLocations"), QString("0"));
        QCOMPARE(text("lfInsideCorners"), QString("0' 0\""));
        QCOMPARE(text("trucks"), QString("0.00"));
        QCOMPARE(text("concrete"), QString("0.00 Y   0.00 M"));
        QCOMPARE(text("bracing"), QString("0"));
        QCOMPARE(text("radius"), QString("@ 10 foot radius"));
        QCOMPARE(text("pelmoPerBlock"), QString("0"));
    }

    void wallValuesShowInTheirFormats() {
        wall->setWallLength(100.0);
        wall->setUseHalfBlock(true);
        wall->setInsideCornerLocations(1);
        wall->setOutsideCornerLocations(2);
        wall->setTBlockLocations(1);
        wall->setLinearFeetCurb(10.5);
        wall->setSqftOpenings(26.65);
        wall->setLinearFeetBuck(29.34);
        wall->setPelmoBrickHeight(2.0);
        wall->setPelmoBrickLength(30.0);
        wall->setRadius(12);
        screen->loadValues();
        // The total height, courses on top included; rows count the base height only.
        QCOMPARE(text("wallHeight"), QString("8' 8\""));
        QCOMPARE(text("rows"), QString("6"));
        // 41.4 inches of inside corner: 3.45 ft, truncated to whole inches.
        QCOMPARE(text("lfInsideCorners"), QString("3' 5\""));
        QCOMPARE(text("lfOutsideCorners"), QString("11' 4\""));
        QCOMPARE(text("lfTBlock"), QString("3' 8\""));
        QCOMPARE(text("lfCornersAndTs"), QString("18' 5\""));
        QCOMPARE(text("lfStraightBlock"), QString("81' 6\""));
        QCOMPARE(text("lfStraightCurbBlock"), QString("10' 6\""));
        QCOMPARE(text("sqftOpenings"), QString("26.65"));
        QCOMPARE(text("lfZolBuck"), QString("29' 4\""));
        QCOMPARE(text("openingsInBlockCount"), QString("4"));
        QCOMPARE(text("sqftBrick"), QString("60.00"));
        QCOMPARE(text("radius"), QString("@ 12 foot radius"));
        QCOMPARE(text("grossSqFt"), QString("866.70"));
        QCOMPARE(text("netSqFt"), QString("840.05"));
        QCOMPARE(text("bracing"), QString("17"));
    }
};

QTEST_MAIN(ZOLWallInfoViewControllerTest)
#include "ZOLWallInfoViewControllerTest.moc"
