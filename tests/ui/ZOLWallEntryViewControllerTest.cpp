// The Wall tab driven through its widgets: typing, combo boxes, check boxes, steppers,
// enabling by block size and the information pop-up.
#include "ui/ZOLWallEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLWall.h"
#include "ui/ZOLStepper.h"

class ZOLWallEntryViewControllerTest : public ScreenTest<ZOLWallEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLWall> wall;

private slots:
    void init() {
        wall = std::make_shared<ZOLWall>();
        showScreen([this](auto& s) { s.setWallData(wall); });
    }

    void typingCleansTheFieldWritesTheWallAndLeavingRewritesIt() {
        // The keystroke rule every entry field shares is pinned on the Tilt-Up tab. A letter
        // typed in the middle leaves the cursor where it was.
        QLineEdit* length = field("wallLength");
        type(length, "125");
        QCOMPARE(wall->wallLength(), 125.0);
        length->setCursorPosition(1);
        QTest::keyClick(length, Qt::Key_X);
        QCOMPARE(length->text(), QString("125"));
        QCOMPARE(length->cursorPosition(), 1);

        // A lone minus sign is not a number and is cleaned away; -3 as a whole is kept.
        QLineEdit* inside = field("insideCornerLocations");
        type(inside, "-");
        QCOMPARE(inside->text(), QString("0"));
        type(inside, "3");
        QTest::keyClick(inside, Qt::Key_Home);
        QTest::keyClick(inside, Qt::Key_Minus);
        QCOMPARE(inside->text(), QString("-3"));
        QCOMPARE(wall->insideCornerLocations(), -3);

        // Counts take the leading integer.
        type(field("tBlockLocations"), "4.7");
        QCOMPARE(wall->tBlockLocations(), 4);
        type(field("lfBrick"), "2.5");
        type(field("brickHeight"), "3");
        QCOMPARE(wall->pelmoBrickLength(), 2.5);
        QCOMPARE(wall->pelmoBrickHeight(), 3.0);

        // Return ends the editing, and so does moving on with Tab.
        const std::tuple<const char*, const char*, Qt::Key, const char*> edits[] = {
            {"wallLength", "12.5", Qt::Key_Return, "12.50"},
            {"lfCorbelBlock", "1.2.3", Qt::Key_Return, "1.20"},
            {"outsideCornerLocations", "07", Qt::Key_Return, "7"},
            {"sqftOpenings", "20", Qt::Key_Tab, "20.00"}};
        for (const auto& [name, keys, key, shown] : edits) {
            type(field(name), keys);
            QTest::keyClick(field(name), key);
            QCOMPARE(field(name)->text(), QString(shown));
        }
    }

    void eachEditTellsTheDocument() {
        QSignalSpy spy(screen.get(), &ZOLWallEntryViewController::edited);
        screen->loadValues();
        QCOMPARE(spy.count(), 0);
        type(field("wallLength"), "10");
        QCOMPARE(spy.count(), 2);
        control<QCheckBox>("addHalfBlock")->click();
        choose(box("blockSize"), 3);
        QCOMPARE(spy.count(), 4);
    }

    void blockSizeChoosesTheSizeAndTheControls() {
        wall->setBlockSize(6);
        screen->loadValues();
        QCOMPARE(box("blockSize")->currentText(), QString("6\""));
        QVERIFY(field("lfRadiusBlock")->isEnabled());
        QVERIFY(box("radius")->isEnabled());
        QVERIFY(!field("lfCurbBlock")->isEnabled());
        // The keyboard chooses too: the next size down the list.
        box("blockSize")->setFocus();
        QTest::keyClick(box("blockSize"), Qt::Key_Down);
        QCOMPARE(wall->blockSize(), 8);
        wall->setBlockSize(6);

        // Each size enables only the shapes made in it (a leading ! means disabled).
        const std::tuple<int, int32_t, const char*> sizes[] = {
            {2, 8, "lfCurbBlock cornerCurbLocations !lfRadiusBlock !radius tBlockLocations"},
            {3, 10,
             "lfCurbBlock !lfCorbelBlock !lfTaperedBlock !tBlockLocations !angleLocations "
             "lfZolBuck"},
            {0, 4, "angleLocations !lfCurbBlock"}};
        for (const auto& [index, size, states] : sizes) {
            choose(box("blockSize"), index);
            QCOMPARE(wall->blockSize(), size);
            for (const QString& state : QString(states).split(' ')) {
                const bool enabled = !state.startsWith('!');
                const QString name = enabled ? state : state.mid(1);
                QVERIFY2(control<QWidget>(name)->isEnabled() == enabled, qPrintable(state));
            }
        }

        // Disabling keeps what was typed behind the control.
        wall->setLinearFeetCurb(12.0);
        screen->loadValues();
        QCOMPARE(field("lfCurbBlock")->text(), QString("12.00"));
        QCOMPARE(wall->linearFeetCurb(), 12.0);

        // A size the box does not list shows no item.
        wall->setBlockSize(7);
        screen->loadValues();
        QCOMPARE(box("blockSize")->currentIndex(), -1);
    }

    void comboBoxesMapTheirItems() {
        // The wall height in 16-inch courses.
        QComboBox* height = box("wallHeight");
        QCOMPARE(height->currentIndex(), 5);
        QCOMPARE(height->currentText(), QString("8' 0\""));

        choose(height, 7);
        QCOMPARE(wall->wallHeight(), 10.667);
        QCOMPARE(field("totalHeight")->text(), QString("10' 8\""));

        // A height that is no 16-inch course (from a file) shows its own text, unselected.
        wall->setWallHeight(9.0);
        screen->loadValues();
        QCOMPARE(height->currentIndex(), -1);
        QCOMPARE(height->placeholderText(), QString("9' 0\""));
        choose(height, 5);
        QCOMPARE(wall->wallHeight(), 8.0);
        QCOMPARE(height->currentText(), QString("8' 0\""));

        // The other lists, each item with its value.
        const std::tuple<const char*, int, int32_t (ZOLWall::*)() const, int32_t> picks[] = {
            {"radius", 0, &ZOLWall::radius, 5},
            {"radius", 7, &ZOLWall::radius, 12},
            {"caloraStickLayers", 2, &ZOLWall::caloraStickLayers, 2},
            {"pelmoPerBlock", 0, &ZOLWall::pelmoPerBlock, 2},
            {"pelmoPerBlock", 1, &ZOLWall::pelmoPerBlock, 3}};
        for (const auto& [name, index, read, value] : picks) {
            choose(box(name), index);
            QCOMPARE(((*wall).*read)(), value);
        }

        // Loading selects by value: the default radius of 10 is the sixth item; a cleared wall's
        // 0 pelmos per block selects nothing.
        wall->clear();
        screen->loadValues();
        QCOMPARE(box("radius")->currentText(), QString("10"));
        QCOMPARE(box("caloraStickLayers")->currentText(), QString("0"));
        QCOMPARE(box("pelmoPerBlock")->currentIndex(), -1);
        wall->setRadius(4);
        screen->loadValues();
        QCOMPARE(box("radius")->currentIndex(), -1);
    }

    void courseBoxesSetFlagsAndTotalHeight() {
        // Each box ticked in turn, with the total height it leaves.
        const std::tuple<const char*, bool (ZOLWall::*)() const, const char*> boxes[] = {
            {"addHalfBlock", &ZOLWall::useHalfBlock, "8' 8\""},
            {"addExtenders", &ZOLWall::useExtenders, "9' 0\""},
            {"addCutBlock", &ZOLWall::useCutBlock, "9' 8\""},
            {"addPravex", &ZOLWall::usePravex, "9' 8\""}};
        for (const auto& [name, read, height] : boxes) {
            control<QCheckBox>(name)->click();
            QVERIFY2(((*wall).*read)(), name);
            QCOMPARE(field("totalHeight")->text(), QString(height));
        }
        QCheckBox* half = control<QCheckBox>("addHalfBlock");
        half->click();
        QVERIFY(!wall->useHalfBlock());

        // Loading shows the flags and does not write them back.
        wall->setUseHalfBlock(true);
        wall->setUseCutBlock(false);
        screen->loadValues();
        QVERIFY(half->isChecked());
        QVERIFY(!control<QCheckBox>("addCutBlock")->isChecked());
        QVERIFY(wall->useHalfBlock());
    }

    void steppersAddAndRemoveBlocks() {
        auto* straight = control<ZOLStepper>("addStraightStepper");
        QLineEdit* straightField = field("addedStraightBlocks");
        straight->setFocus();
        QTest::keyClick(straight, Qt::Key_Up);
        QTest::keyClick(straight, Qt::Key_Up);
        QCOMPARE(wall->straightBlockAdded(), 2);
        QCOMPARE(straightField->text(), QString("2"));
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(straight, Qt::Key_Down);
        QCOMPARE(wall->straightBlockAdded(), -3);
        QCOMPARE(straightField->text(), QString("-3"));

        // The stepper continues from a typed number.
        type(straightField, "7");
        QCOMPARE(wall->straightBlockAdded(), 7);
        QTest::keyClick(straight, Qt::Key_Up);
        QCOMPARE(wall->straightBlockAdded(), 8);

        // The arrows are buttons too.
        auto* corner = control<ZOLStepper>("addCornerStepper");
        QList<QToolButton*> arrows = corner->findChildren<QToolButton*>();
        QCOMPARE(arrows.size(), 2);
        arrows[0]->click();
        QCOMPARE(wall->cornerBlockAdded(), 1);
        QCOMPARE(field("addedCornerBlocks")->text(), QString("1"));

        wall->setCornerBlockAdded(-4);
        screen->loadValues();
        QCOMPARE(corner->value(), -4);
        QTest::keyClick(corner, Qt::Key_Up);
        QCOMPARE(wall->cornerBlockAdded(), -3);
    }

    void takeOffFollowsTheKeystrokes() {
        // Two of the figures, each after its own field (the take-off is the engine's to pin).
        type(field("wallLength"), "100");
        QCOMPARE(field("takeoffStraightBlocks")->text(), QString("153"));
        type(field("outsideCornerLocations"), "4");
        QCOMPARE(field("takeoffCornerBlocks")->text(), QString("24"));
    }

    void infoButtonsOpenTheirIllustration() {
        const char* const buttons[][2] = {{"wallHeightInfo", "Wall_Height_Info"},
                                          {"cornerInfo", "In_Out_Corners_Info"},
                                          {"angleInfo", "Angle_Info"},
                                          {"extendersInfo", "Extenders_Info"}};
        for (const auto& [name, key] : buttons)
            QCOMPARE(illustrationAfter([&] { control<QToolButton>(name)->click(); }), QString(key));

        // Every button of the screen has its picture among the program's resources (index 3
        // names none).
        for (int32_t index : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}) {
            ZOLInfoPopup popup;
            popup.setImageIndex(index);
            QVERIFY2(popup.hasImage(), popup.imageName().value_or("(none)").c_str());
        }
    }
};

QTEST_MAIN(ZOLWallEntryViewControllerTest)
#include "ZOLWallEntryViewControllerTest.moc"
