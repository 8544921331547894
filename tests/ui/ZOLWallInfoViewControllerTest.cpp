// The Wall Info tab: the title and the texts of the wall's values.
#include "ui/ZOLWallInfoViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLWall.h"

class ZOLWallInfoViewControllerTest : public ScreenTest<ZOLWallInfoViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLWall> wall;

private slots:
    void init() {
        wall = std::make_shared<ZOLWall>();
        screen = std::make_unique<ZOLWallInfoViewController>();
        screen->setWallData(wall);
    }

    void titleNamesTheWorksheetAndValuesShowInTheirFormats() {
        screen->setWorksheetName("North");
        screen->loadValues();
        QCOMPARE(control<QLabel>("pageTitle")->text(), QString("North WALL DATA"));
        screen->setWorksheetName("");
        screen->loadValues();
        QCOMPARE(control<QLabel>("pageTitle")->text(), QString("WALL DATA FOR CURRENT WORKSHEET"));

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
        // Every field, so that none shows another's value. The total height has the courses on
        // top; rows count the base height only. 41.4 inches of inside corner: 3.45 ft,
        // truncated to whole inches.
        expectTexts(screen.get(),
                    "blockSize=8\"|wallHeight=8' 8\"|rows=6|wallLength=100.00|"
                    "insideCornerLocations=1|lfInsideCorners=3' 5\"|lfOutsideCorners=11' 4\"|"
                    "lfTBlock=3' 8\"|lfCornersAndTs=18' 5\"|lfStraightBlock=81' 6\"|"
                    "lfStraightCurbBlock=10' 6\"|sqftOpenings=26.65|lfZolBuck=29' 4\"|"
                    "openingsInBlockCount=4|sqftBrick=60.00|radius=@ 12 foot radius|"
                    "grossSqFt=866.70|netSqFt=840.05|bracing=17|trucks=0.37|"
                    "concrete=20.74 Y   15.86 M|pelmoPerBlock=0");
    }
};

QTEST_MAIN(ZOLWallInfoViewControllerTest)
#include "ZOLWallInfoViewControllerTest.moc"
