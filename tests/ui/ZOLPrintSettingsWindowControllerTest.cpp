// The print settings window: the live page count and the choices kept only on accept.
#include "ui/ZOLPrintSettingsWindowController.h"
#include "platform/ZOLPreferences.h"

#include "UiTestSupport.h"

namespace {
QString pageCount(QWidget& window) {
    return control<QLabel>(&window, "pageCount")->text();
}

// Clicks the named boxes and buttons in turn, on the box or the dot itself: a check box spans its
// column but reacts only to its box and its label.
void click(QWidget& window, const QString& names) {
    for (const QString& name : names.split(' ')) {
        auto* button = control<QAbstractButton>(&window, name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
    }
}
} // namespace

class ZOLPrintSettingsWindowControllerTest : public QObject {
    Q_OBJECT

private slots:
    void pageCountFollowsEveryChoice() {
        auto preferences = std::make_shared<ZOLMemoryPreferences>();
        ZOLPrintSettingsWindowController window(nullptr, preferences);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.setNumberOfWorksheets(3);
        // First use: everything off, the current worksheet.
        QCOMPARE(pageCount(window), QString("Page Count: 0"));
        QVERIFY(window.findChild<QRadioButton*>("currentWorksheet")->isChecked());

        click(window, "printManHourCheckbox");
        QCOMPARE(pageCount(window), QString("Page Count: 2")); // man hours take two pages
        click(window, "printWallCheckbox printOpeningsCheckbox printConcreteCheckbox "
                      "printRebarCheckbox printTiltCheckbox printSummaryCheckbox "
                      "printJobSummaryCheckbox printProjectNotesCheckbox");
        QCOMPARE(pageCount(window), QString("Page Count: 10"));
        click(window, "allWorksheets");
        QCOMPARE(pageCount(window), QString("Page Count: 24"));

        // Only the summary pages: three, whatever the worksheets.
        click(window, "printWallCheckbox printOpeningsCheckbox printConcreteCheckbox "
                      "printRebarCheckbox printTiltCheckbox printManHourCheckbox");
        QCOMPARE(pageCount(window), QString("Page Count: 3"));
        window.setNumberOfWorksheets(7);
        QCOMPARE(pageCount(window), QString("Page Count: 3"));
    }

    void choicesAreKeptOnlyWhenAccepted() {
        auto preferences = std::make_shared<ZOLMemoryPreferences>();
        // Cancel keeps nothing (the window after it starts as before); accept keeps the choices.
        const std::tuple<const char*, bool> closings[] = {
            {"printWallCheckbox allWorksheets cancelButton", false},
            {"printWallCheckbox printProjectNotesCheckbox allWorksheets acceptButton", true}};
        for (const auto& [clicks, accepted] : closings) {
            ZOLPrintSettingsWindowController window(nullptr, preferences);
            window.show();
            QVERIFY(!window.findChild<QCheckBox*>("printWallCheckbox")->isChecked());
            click(window, clicks);
            QCOMPARE(window.acceptChanges(), accepted);
            QCOMPARE(preferences->boolForKey("PrintWall"), accepted);
            QCOMPARE(preferences->boolForKey("PrintAllWorksheets"), accepted);
        }
        QVERIFY(preferences->boolForKey("PrintProjectNotes"));
        QVERIFY(!preferences->boolForKey("PrintConcrete"));
        // The next print starts from the kept choices.
        ZOLPrintSettingsWindowController window(nullptr, preferences);
        window.setNumberOfWorksheets(2);
        QVERIFY(window.findChild<QCheckBox*>("printWallCheckbox")->isChecked());
        QVERIFY(window.findChild<QRadioButton*>("allWorksheets")->isChecked());
        QCOMPARE(pageCount(window), QString("Page Count: 3"));
    }
};

QTEST_MAIN(ZOLPrintSettingsWindowControllerTest)
#include "ZOLPrintSettingsWindowControllerTest.moc"
