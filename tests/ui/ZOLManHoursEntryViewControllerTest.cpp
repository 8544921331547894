// The Man-Hours tab driven through its widgets: the fields and lists, the results they give,
// pulling the wall's facts and the illustration each "?" button and F1 open.
#include "ui/ZOLManHoursEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLManHours.h"
#include "model/ZOLWall.h"

class ZOLManHoursEntryViewControllerTest : public ScreenTest<ZOLManHoursEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLManHours> hours;

private slots:
    void init() {
        hours = std::make_shared<ZOLManHours>();
        showScreen([this](auto& s) { s.setManHourData(hours); });
    }

    void typingChoosingAndPullingTheWallRecomputeTheLabour() {
        // The keystroke and rewrite rules are every entry field's (Tilt-Up and Wall tabs).
        QCOMPARE(box("crewSize")->currentText(), QString("6"));
        choose(box("crewSize"), 0);
        QCOMPARE(hours->crewSize(), 1);
        QCOMPARE(box("crewExperience")->count(), 3);
        choose(box("crewExperience"), 2);
        QCOMPARE(hours->crewExperience(), 2);
        QCOMPARE(control<QLabel>("crewExperienceGrade")->text(), QString("2"));

        type(field("sqftWall"), "2000");
        type(field("costPerHour"), "40");
        const double cost = hours->getHoursToComplete() * 40.0;
        QCOMPARE(field("targetManHours")->text(),
                 QString::asprintf("%.3f", hours->getManHourRate()));
        QCOMPARE(field("costOfLabor")->text(), QString::asprintf("$%.2f", cost));
        QCOMPARE(field("costPerSqFt")->text(), QString::asprintf("$%.2f", cost / 2000.0));

        // Pulling the wall's facts adds its corners, angles and Ts.
        auto wall = std::make_shared<ZOLWall>();
        wall->setInsideCornerLocations(2);
        wall->setOutsideCornerLocations(3);
        wall->setTBlockLocations(1);
        wall->setAngleLocations(1);
        wall->setLinearFeetCorbel(10.0);
        wall->setLinearFeetTapered(2.5);
        pullFrom(wall, &ZOLManHoursEntryViewController::pullDataFromWall);
        expectTexts(screen.get(), "cornersAndTs=7|lfCorbelCurbTapered=12.50");
    }

    void infoButtonsAndF1OpenTheirIllustrations() {
        // The corbel and wall-height keys name their fields: those buttons open no picture.
        const char* const buttons[][2] = {{"sqftWallInfo", "Square_Feet_Wall_Info"},
                                          {"otherTurnsInfo", "Other_Turns_Info"},
                                          {"lfCorbelCurbTaperedInfo", "none"},
                                          {"wallHeightInfo", "none"}};
        for (const auto& [name, key] : buttons)
            QCOMPARE(illustrationAfter([&] { control<QToolButton>(name)->click(); }), QString(key));
        QCOMPARE(control<QToolButton>("sqftWallInfo")->focusPolicy(), Qt::ClickFocus);

        // F1 in the corbel field finds the field's own key.
        QApplication::setActiveWindow(screen.get());
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
        QLineEdit* corbel = field("lfCorbelCurbTapered");
        corbel->setFocus();
        QCOMPARE(illustrationAfter([&] { QTest::keyClick(corbel, Qt::Key_F1); }),
                 QString("LF_Corbel_Curb_Taper_Info"));
    }
};

QTEST_MAIN(ZOLManHoursEntryViewControllerTest)
#include "ZOLManHoursEntryViewControllerTest.moc"
