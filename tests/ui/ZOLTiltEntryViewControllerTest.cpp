// The Tilt-Up tab driven through its two fields: the keystroke rule and the results of the worked
// panel case.
#include "ui/ZOLTiltEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLTilt.h"

class ZOLTiltEntryViewControllerTest : public ScreenTest<ZOLTiltEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLTilt> tilt;

private slots:
    void init() {
        tilt = std::make_shared<ZOLTilt>();
        showScreen([this](auto& s) { s.setTiltData(tilt); });
    }

    void aTenByHundredWallShowsTheResultsAndTypingIsCleaned() {
        // Every result, so that none shows another's value.
        type(field("wallHeight"), "10");
        type(field("wallLength"), "100");
        expectTexts(screen.get(),
                    "totalSquareFeet=1000.00|panelActualParts=190|panelPartsPerBundle=12|"
                    "panelBundles=17|panelPartsRounded=204|panelWeight=665.00|"
                    "insertActualParts=570|insertPartsPerBundle=300|insertBundles=3|"
                    "insertPartsRounded=900|insertWeight=28.50|totalWeight=693.50");

        // The keystroke rule every entry field shares, and leaving the field rewrites it.
        QLineEdit* height = field("wallHeight");
        const std::tuple<const char*, const char*, double> keystrokes[] = {
            {"12a", "12", 12.0}, {"abc", "0", 0.0}, {"1.2.3", "1.2.3", 1.2}, {"-5", "05", 5.0}};
        for (const auto& [keys, shown, value] : keystrokes) {
            type(height, keys);
            QCOMPARE(height->text(), QString(shown));
            QCOMPARE(tilt->wallHeight(), value);
        }
        // An emptied field keeps the value, and shows it again once left.
        type(height, "");
        QCOMPARE(tilt->wallHeight(), 5.0);
        emit height->editingFinished();
        QCOMPARE(height->text(), QString("5.00"));
    }
};

QTEST_MAIN(ZOLTiltEntryViewControllerTest)
#include "ZOLTiltEntryViewControllerTest.moc"
