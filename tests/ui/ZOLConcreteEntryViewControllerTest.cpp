// The Concrete tab driven through its widgets: whole-inch fields, the volume unit, the openings
// box and pulling the wall's size.
#include "ui/ZOLConcreteEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLWall.h"

class ZOLConcreteEntryViewControllerTest : public ScreenTest<ZOLConcreteEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLConcrete> concrete;

private slots:
    void init() {
        concrete = std::make_shared<ZOLConcrete>();
        showScreen([this](auto& s) { s.setConcreteData(concrete); });
    }

    void wholeInchFieldsVolumesAndPullingTheWallsSize() {
        type(field("wallThickness"), "8.5");
        QCOMPARE(concrete->wallThickness(), 8);
        QCOMPARE(field("wallThickness")->text(), QString("8.5"));
        emit field("wallThickness")->editingFinished();
        QCOMPARE(field("wallThickness")->text(), QString("8"));

        type(field("wallHeight"), "9");
        type(field("wallLength"), "27");
        const QString weight = field("wallWeight")->text();
        QCOMPARE(field("totalVolume")->text(), QString("6.00 Y³"));

        // Cubic metres change the volumes and labels, never the weights or the sizes typed.
        auto* yardsChoice = control<QRadioButton>("cubicYards");
        yardsChoice->setFocus();
        QTest::keyClick(yardsChoice, Qt::Key_Right);
        QCOMPARE(concrete->measurement(), 1);
        QCOMPARE(control<QLabel>("wallMeasurement")->text(), QString("M³"));
        QCOMPARE(field("wallVolume")->text(), QString("4.59"));
        QCOMPARE(field("wallWeight")->text(), weight);
        QCOMPARE(field("totalVolume")->text(), QString("4.59 M³"));

        // Nothing fills the openings area, so the box changes the flag and not the volume.
        control<QCheckBox>("removeOpenings")->click();
        QVERIFY(concrete->removeSqFtOpenings());
        QCOMPARE(field("wallVolume")->text(), QString("4.59"));

        // Pulling the wall's facts copies its height, length and block size over what was typed.
        auto wall = std::make_shared<ZOLWall>();
        wall->setWallHeight(9.0);
        wall->setWallLength(120.0);
        wall->setBlockSize(6);
        pullFrom(wall, &ZOLConcreteEntryViewController::pullWallData);
        expectTexts(screen.get(),
                    "wallHeight=9.00|wallLength=120.00|wallThickness=6|footingWidth=0");
    }
};

QTEST_MAIN(ZOLConcreteEntryViewControllerTest)
#include "ZOLConcreteEntryViewControllerTest.moc"
