// Undo and redo in the document window: each kind of change done, undone and redone through the
// real controls, keystrokes of one field merged, the unsaved mark following the history, and
// Ctrl+Z reaching the job's history from a text field.
#include "UiTestSupport.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLSavedPricesBar.h"

#include <QUndoStack>

namespace {
// What the window shows: every field's text on every tab, and every choice.
QStringList shown(ZOLDocument& document) {
    QStringList texts;
    for (auto* field : document.findChildren<QLineEdit*>())
        texts << field->objectName() + "=" + field->text();
    for (auto* box : document.findChildren<QComboBox*>())
        texts << box->objectName() + "=" + box->currentText();
    return texts;
}
} // namespace

class ZOLUndoTest : public QObject {
    Q_OBJECT

    FieldAlerts alerts;
    QTemporaryDir dir_;

    std::unique_ptr<ZOLDocument> sampleHouse() {
        return openedDocument(sampleHouseCopy(dir_.filePath("house.zol")));
    }
    static QWidget* tab(ZOLDocument& document, int index) {
        document.tabView()->setCurrentIndex(index);
        return document.tabView()->currentWidget();
    }
    static QUndoStack* history(ZOLDocument& document) {
        return document.jobDocument()->undoStack();
    }

private slots:
    void initTestCase() { useTestSettings("ZOLUndoTest"); }
    void init() { alerts.renew(); }

    void everyKindOfChangeIsUndoneAndRedone() {
        const QString prices = dir_.filePath("prices.zp");
        QVERIFY(QFile::copy(ZOL_SOURCE_DIR "/examples/prices.zp", prices));
        using Act = std::function<void(ZOLDocument&)>;
        // A worksheet or notes command answered with OK and the text typed.
        const auto answered = [this](const char* text, void (ZOLDocument::*command)()) -> Act {
            return [this, text, command](ZOLDocument& d) {
                alerts->answer(0, text);
                (d.*command)();
            };
        };
        const std::pair<QString, Act> changes[] = {
            {"Undo Wall Length",
             [](ZOLDocument& d) { type(control<QLineEdit>(tab(d, 0), "wallLength"), "200"); }},
            {"Undo Add Opening",
             [](ZOLDocument& d) {
                 QTest::mouseClick(control<QPushButton>(tab(d, 1), "addOpening"), Qt::LeftButton);
             }},
            {"Undo Delete Worksheet \"Garage\"",
             [this](ZOLDocument& d) {
                 choose(d.worksheetSelection(), 2);
                 alerts->answer(0);
                 d.deleteWorksheet();
             }},
            {"Undo Rename Worksheet \"Basement\"",
             answered("Cellar", &ZOLDocument::renameWorksheet)},
            {"Undo Add Worksheet \"Shed\"", answered("Shed", &ZOLDocument::addWorksheet)},
            {"Undo Project",
             [](ZOLDocument& d) { type(control<QLineEdit>(&d, "projectName"), "Lakeside"); }},
            {"Undo Project Notes", answered("Pour Monday", &ZOLDocument::editNotes)},
            {"Undo Waste Percentage",
             [](ZOLDocument& d) { choose(control<QComboBox>(tab(d, 2), "wastePercentage"), 7); }},
            {"Undo Load Price File",
             [prices](ZOLDocument& d) {
                 ScriptedPanels panels({prices});
                 whenModalShows([](QWidget* window) {
                     control<QPushButton>(window, "openPricing")->click();
                     control<QPushButton>(window, "done")->click();
                 });
                 d.editPricing();
             }},
            {"Undo Use Saved Prices",
             [](ZOLDocument& d) {
                 QTest::mouseClick(d.findChild<ZOLSavedPricesBar*>()->useSavedPricesButton(),
                                   Qt::LeftButton);
             }},
            {"Undo Round the Zol Blocks Package to Full Bundles",
             [](ZOLDocument& d) {
                 QTest::mouseClick(control<QCheckBox>(tab(d, 9), "roundToFullBundles"),
                                   Qt::LeftButton);
             }},
        };
        for (const auto& [text, act] : changes) {
            auto document = sampleHouse();
            const QByteArray before = document->jobState();
            act(*document);
            const QByteArray after = document->jobState();
            QVERIFY2(after != before, qPrintable(text));
            QCOMPARE(history(*document)->count(), 1);
            QCOMPARE(history(*document)->undoText().prepend("Undo "), text);

            history(*document)->undo();
            QVERIFY2(document->jobState() == before, qPrintable(text));
            QVERIFY2(!document->isDocumentEdited(), qPrintable(text));
            history(*document)->redo();
            QVERIFY2(document->jobState() == after, qPrintable(text));
        }
    }

    void deletedWorksheetComesBackAtItsPlaceWithItsWalls() {
        auto document = sampleHouse();
        const auto garage = document->workbook()->worksheets()[2];
        choose(document->worksheetSelection(), 2);
        alerts->answer(0);
        document->deleteWorksheet(); // what it deletes is the document window's test to pin
        history(*document)->undo();
        QCOMPARE(document->workbook()->worksheets()[2], garage);
        QCOMPARE(document->worksheetSelection()->currentText(), QString("Garage"));
        QCOMPARE(control<QLineEdit>(tab(*document, 0), "wallLength")->text().toDouble(),
                 garage->wallData()->wallLength());
    }

    void keystrokesOfOneFieldMakeOneChangeAndCtrlZInAFieldUndoesTheJob() {
        auto document = sampleHouse();
        document->show();
        QApplication::setActiveWindow(document.get());
        QVERIFY(QTest::qWaitForWindowActive(document.get()));
        auto* length = control<QLineEdit>(tab(*document, 0), "wallLength");
        const QString old = length->text();
        const QString results = shown(*document).join(' ');
        type(length, "200");
        type(control<QLineEdit>(tab(*document, 0), "insideCornerLocations"), "9");
        QCOMPARE(history(*document)->count(), 2);
        history(*document)->undo();
        history(*document)->undo();
        QCOMPARE(length->text(), old);
        QCOMPARE(shown(*document).join(' '), results);
        QCOMPARE(document->tabView()->currentIndex(), 0);
        QCOMPARE(document->focusWidget(), length);

        // Ctrl+Z in a text field undoes the job's last change, not the field's typing.
        type(control<QLineEdit>(document.get(), "projectName"), "Lakeside");
        type(length, "200");
        QTest::keyClick(length, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(length->text(), old);
        QCOMPARE(history(*document)->undoText(), QString("Project"));
        QTest::keyClick(length, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(document->workbook()->worksheets()[0]->wallData()->wallLength(), 200.0);
    }

    void theUnsavedMarkFollowsTheHistoryAcrossSavesAndAutosaves() {
        auto document = sampleHouse();
        auto* length = control<QLineEdit>(tab(*document, 0), "wallLength");
        type(length, "120");
        QVERIFY(document->isWindowModified());
        history(*document)->undo();
        QVERIFY(!document->isWindowModified());
        history(*document)->redo();
        QVERIFY(document->saveToFile(document->filePath()));
        QVERIFY(!document->isWindowModified());
        history(*document)->undo();
        QVERIFY(document->isWindowModified());
        // Autosave writes the undone state; the history stays.
        document->autosave();
        QVERIFY(!readAll(document->filePath()).contains("<WallLength>120.000000</WallLength>"));
        history(*document)->redo();
        QVERIFY(!document->isWindowModified());
        QVERIFY(history(*document)->canUndo());

        // Revert drops the history.
        type(length, "130");
        alerts->answer(0);
        document->revertDocumentToSaved();
        QVERIFY(!history(*document)->canUndo());
    }
};

QTEST_MAIN(ZOLUndoTest)
#include "ZOLUndoTest.moc"
