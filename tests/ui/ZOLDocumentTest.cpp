// The document window: the worksheet commands with their alerts, the project header, notes, and
// the file flow (save, reopen, unsaved changes, autosave and recovery, unreadable files).
#include "ui/ZOLDocument.h"
#include "FieldAlertRecorder.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "ui/ZOLBlockInfoViewController.h"
#include "ui/ZOLDocumentController.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui/ZOLRecentFiles.h"
#include "ui/ZOLRecoveryStore.h"
#include "ui/ZOLSettingsPreferences.h"
#include "ui/ZOLWallEntryViewController.h"
#include "ui/ZOLWallInfoViewController.h"
#include "ui/ZOLWorkbookSummaryViewController.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QSettings>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {
const std::string kLongDuplicate = "A worksheet with that name already exists. Please try again "
                                   "with a different worksheet name.";

template <class Screen> Screen* screen(const ZOLDocument& document) {
    return qobject_cast<Screen*>(document.screenNamed(Screen::staticMetaObject.className()));
}

std::vector<std::string> names(const ZOLWorkbook& workbook) {
    std::vector<std::string> out;
    for (const auto& sheet : workbook.worksheets())
        out.push_back(sheet->name());
    return out;
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Answers the save and open panels with the paths given, in order.
class ScriptedPanels {
public:
    explicit ScriptedPanels(QStringList answers) : answers_(std::move(answers)) {
        ZOLFilePanels::setScript([this](const ZOLFilePanels::Request& request) {
            requests.append(request.title);
            return answers_.isEmpty() ? QStringList() : QStringList{answers_.takeFirst()};
        });
    }
    ~ScriptedPanels() { ZOLFilePanels::setScript({}); }
    QStringList requests;

private:
    QStringList answers_;
};
} // namespace

class ZOLDocumentTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QApplication::setOrganizationName("Zol Blocks Test");
        QApplication::setApplicationName("ZOLDocumentTest");
    }
    void init() {
        QSettings().clear();
        QVERIFY(dir_.isValid());
    }

    void newDocumentShowsOneWorksheetOnEveryScreen() {
        ZOLDocument document;
        QCOMPARE(names(*document.workbook()), std::vector<std::string>{"Worksheet 1"});
        QCOMPARE(document.worksheetSelection()->count(), 1);
        QCOMPARE(document.worksheetSelection()->currentText(), QString("Worksheet 1"));
        QCOMPARE(document.windowTitle(), QString("Untitled[*]"));
        QVERIFY(!document.isDocumentEdited());
        // The screens still to come have no tab at all.
        QStringList titles;
        for (int i = 0; i < document.tabView()->count(); ++i)
            titles << document.tabView()->tabText(i);
        QCOMPARE(titles, QStringList({"Wall Entry", "Openings", "Block Info", "Wall Info",
                                      "Workbook Summary"}));

        const auto sheet = document.workbook()->worksheets()[0];
        auto* wallEntry = screen<ZOLWallEntryViewController>(document);
        auto* openings = screen<ZOLOpeningsEntryViewController>(document);
        auto* blockInfo = screen<ZOLBlockInfoViewController>(document);
        auto* wallInfo = screen<ZOLWallInfoViewController>(document);
        QVERIFY(wallEntry && openings && blockInfo && wallInfo);
        for (const auto& wall : {wallEntry->wallData(), openings->wallData(), blockInfo->wallData(),
                                 wallInfo->wallData()})
            QCOMPARE(wall, sheet->wallData());
        QCOMPARE(openings->openingData(), sheet->openingData());
        QCOMPARE(document.workbookSummary()->workbook(), document.workbook());

        // Choosing another worksheet hands its records to every screen.
        ScopedFieldAlertRecorder alerts;
        alerts.answer(0, "Garage");
        document.addWorksheet();
        const auto garage = document.workbook()->worksheets()[1];
        QCOMPARE(wallEntry->wallData(), garage->wallData());
        QCOMPARE(openings->openingData(), garage->openingData());
        QCOMPARE(wallInfo->wallData(), garage->wallData());
        document.worksheetSelection()->setCurrentIndex(0);
        emit document.worksheetSelection()->activated(0);
        QCOMPARE(blockInfo->wallData(), sheet->wallData());
    }

    void addingWorksheetsChecksTheNameWithTheLongAlert() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;

        alerts.answer(0, "Garage");
        document.addWorksheet();
        QCOMPARE(alerts->alerts.at(0).message, std::string("Enter a name for the new worksheet"));
        QCOMPARE(alerts->alerts.at(0).buttons, (std::vector<std::string>{"OK", "Cancel"}));
        QCOMPARE(alerts->alerts.at(0).informativeText, std::string());
        QCOMPARE(alerts->shownTexts.at(0), std::string());
        QCOMPARE(names(*document.workbook()), (std::vector<std::string>{"Worksheet 1", "Garage"}));
        QCOMPARE(document.worksheetSelection()->currentIndex(), 1);
        QCOMPARE(document.worksheetSelection()->currentText(), QString("Garage"));
        QVERIFY(document.isDocumentEdited());

        // A taken name gets the document's own long alert, not the workbook's short one.
        alerts.answer(0, "Garage");
        document.addWorksheet();
        QCOMPARE(alerts.messages().back(), kLongDuplicate);
        QCOMPARE(alerts->alerts.size(), size_t(3));
        QCOMPARE(document.workbook()->worksheets().size(), size_t(2));

        // Cancel adds nothing, whatever was typed; an empty name is a name.
        alerts.answer(1, "Porch");
        document.addWorksheet();
        alerts.answer(0, "");
        document.addWorksheet();
        QCOMPARE(names(*document.workbook()),
                 (std::vector<std::string>{"Worksheet 1", "Garage", ""}));
        QCOMPARE(document.worksheetSelection()->currentIndex(), 2);
        QCOMPARE(document.worksheetSelection()->count(), 3);
    }

    void renamingChecksOtherNamesOnly() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;
        alerts.answer(0, "Garage");
        document.addWorksheet();

        // Its own name: nothing happens and no second alert.
        alerts.answer(0, "Garage");
        document.renameWorksheet();
        QCOMPARE(alerts->alerts.size(), size_t(2));
        QCOMPARE(alerts->alerts.back().message, std::string("Enter a new name for this worksheet"));
        QCOMPARE(alerts->shownTexts.back(), std::string("Garage"));

        alerts.answer(0, "Worksheet 1");
        document.renameWorksheet();
        QCOMPARE(alerts.messages().back(), kLongDuplicate);
        QCOMPARE(names(*document.workbook()), (std::vector<std::string>{"Worksheet 1", "Garage"}));

        alerts.answer(1, "Shed");
        document.renameWorksheet();
        QCOMPARE(names(*document.workbook())[1], std::string("Garage"));

        alerts.answer(0, "Shed");
        document.renameWorksheet();
        QCOMPARE(names(*document.workbook()), (std::vector<std::string>{"Worksheet 1", "Shed"}));
        QCOMPARE(document.worksheetSelection()->currentText(), QString("Shed"));
        QCOMPARE(document.worksheetSelection()->itemText(1), QString("Shed"));
    }

    void deletingLeavesTheWindowAsItWas() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;
        alerts.answer(0, "Garage");
        document.addWorksheet();
        const auto garageWall = document.workbook()->worksheets()[1]->wallData();

        alerts.answer(1);
        document.deleteWorksheet();
        QCOMPARE(alerts.messages().back(),
                 std::string("Are you sure you want to delete this worksheet?"));
        QCOMPARE(alerts->alerts.back().buttons, (std::vector<std::string>{"OK", "Cancel"}));
        QCOMPARE(document.workbook()->worksheets().size(), size_t(2));

        alerts.answer(0);
        document.deleteWorksheet();
        QCOMPARE(names(*document.workbook()), std::vector<std::string>{"Worksheet 1"});
        // Nothing is refreshed: the selector still shows the deleted worksheet.
        QCOMPARE(document.worksheetSelection()->currentText(), QString("Garage"));
        QCOMPARE(document.worksheetSelection()->count(), 2);

        // Its index is now past the end: there is nothing to rename, and deleting again
        // asks but finds nothing to delete.
        const size_t asked = alerts->alerts.size();
        document.renameWorksheet();
        QCOMPARE(alerts->alerts.size(), asked);
        alerts.answer(0);
        document.deleteWorksheet();
        QCOMPARE(alerts->alerts.size(), asked + 1);
        QCOMPARE(names(*document.workbook()), std::vector<std::string>{"Worksheet 1"});
        // The screens still hold the deleted worksheet's records.
        QCOMPARE(screen<ZOLWallEntryViewController>(document)->wallData(), garageWall);

        // Choosing a worksheet brings the selector up to date.
        document.worksheetSelection()->setCurrentIndex(0);
        emit document.worksheetSelection()->activated(0);
        QCOMPARE(document.worksheetSelection()->count(), 1);
        QCOMPARE(document.worksheetSelection()->currentText(), QString("Worksheet 1"));
    }

    void theLastWorksheetCanGoAndComesBackOnOpening() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;
        alerts.answer(0);
        document.deleteWorksheet();
        QVERIFY(document.workbook()->worksheets().empty());

        const QString path = dir_.filePath("empty.zol");
        QVERIFY(document.saveToFile(path));
        QVERIFY(readAll(path).contains("\t<Worksheets>\n\t</Worksheets>\n"));

        ZOLDocument reopened;
        QVERIFY(reopened.readFromFile(path));
        QCOMPARE(names(*reopened.workbook()), std::vector<std::string>{"Worksheet 1"});
        QCOMPARE(reopened.worksheetSelection()->currentText(), QString("Worksheet 1"));
    }

    void headerFieldsWriteEveryKeystroke() {
        ZOLDocument document;
        const ZOLWorkbook& book = *document.workbook();
        const std::pair<const char*, const std::optional<std::string>& (ZOLWorkbook::*)() const>
            fields[] = {{"projectName", &ZOLWorkbook::projectName},
                        {"clientName", &ZOLWorkbook::clientName},
                        {"projectVersion", &ZOLWorkbook::projectVersion},
                        {"distributorName", &ZOLWorkbook::distributorName}};
        for (const auto& [name, read] : fields) {
            auto* field = document.findChild<QLineEdit*>(name);
            QTest::keyClicks(field, "Smith & Sons");
            QCOMPARE((book.*read)().value_or(""), std::string("Smith & Sons"));
            QTest::keyClick(field, Qt::Key_Backspace);
            QCOMPARE((book.*read)().value_or(""), std::string("Smith & Son"));
        }

        // A new day keeps the time of day.
        const int64_t before = document.workbook()->projectDate().value_or(0);
        auto* date = document.findChild<QDateEdit*>("projectDate");
        date->setDate(date->date().addDays(3));
        QCOMPARE(document.workbook()->projectDate().value_or(0), before + 3 * 86400);
    }

    void notesAreReplacedOnDoneOnly() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;
        alerts.answer(0, "Pour Monday\n<b>Call the pump</b>");
        document.editNotes();
        QCOMPARE(alerts->alerts.at(0).message, std::string("Project Notes"));
        QCOMPARE(alerts->alerts.at(0).buttons, (std::vector<std::string>{"Done", "Cancel"}));
        QCOMPARE(document.workbook()->notes().value_or(""),
                 std::string("Pour Monday\n<b>Call the pump</b>"));
        alerts.answer(1, "lost");
        document.editNotes();
        QCOMPARE(alerts->shownTexts.back(), std::string("Pour Monday\n<b>Call the pump</b>"));
        QCOMPARE(document.workbook()->notes().value_or(""),
                 std::string("Pour Monday\n<b>Call the pump</b>"));
    }

    void savedWorkbookReopensWithItsWorksheetsAndTitle() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocument document;
        alerts.answer(0, "Garage");
        document.addWorksheet();
        document.workbook()->worksheets()[1]->wallData()->setWallLength(64.0);
        document.workbook()->setProjectName(std::string("Lakeside"));
        document.noteEdit();
        QVERIFY(document.isWindowModified());

        {
            ScriptedPanels panels({dir_.filePath("lakeside")});
            QVERIFY(document.save());
            QCOMPARE(panels.requests, QStringList{"Save Workbook"});
        }
        const QString path = dir_.filePath("lakeside.zol");
        QCOMPARE(document.filePath(), path);
        QCOMPARE(document.windowTitle(), QString("lakeside.zol[*]"));
        QVERIFY(!document.isWindowModified());
        QCOMPARE(readAll(path), document.dataOfType());

        ZOLDocumentController controller;
        controller.setRecoveryDirectory(dir_.filePath("recovery"));
        ZOLDocument* reopened = controller.openDocument(path);
        QVERIFY(reopened);
        QCOMPARE(names(*reopened->workbook()), (std::vector<std::string>{"Worksheet 1", "Garage"}));
        QCOMPARE(reopened->workbook()->worksheets()[1]->wallData()->wallLength(), 64.0);
        QCOMPARE(reopened->findChild<QLineEdit*>("projectName")->text(), QString("Lakeside"));
        QVERIFY(!reopened->isDocumentEdited());
        // Opening the same file again brings its window forward.
        QCOMPARE(controller.openDocument(dir_.filePath("./lakeside.zol")), reopened);
        QCOMPARE(controller.documents().size(), 1);
        QCOMPARE(controller.recentFiles()->files().front(), path);
        reopened->close();
    }

    void closingAsksAboutUnsavedChanges() {
        ScopedFieldAlertRecorder alerts;
        const QString path = dir_.filePath("ask.zol");
        auto document = std::make_unique<ZOLDocument>();
        QVERIFY(document->canClose()); // nothing to ask
        QVERIFY(alerts->alerts.empty());

        document->workbook()->worksheets()[0]->wallData()->setWallLength(10.0);
        document->noteEdit();
        alerts.answer(2); // Cancel
        QVERIFY(!document->canClose());
        QCOMPARE(alerts->alerts.back().message,
                 std::string("Do you want to save the changes you made in the document "
                             "“Untitled”?"));
        QCOMPARE(alerts->alerts.back().buttons,
                 (std::vector<std::string>{"Save", "Don't Save", "Cancel"}));
        QVERIFY(document->isDocumentEdited());

        // Save with the panel cancelled keeps the window open.
        {
            ScriptedPanels panels({});
            alerts.answer(0);
            QVERIFY(!document->canClose());
        }
        {
            ScriptedPanels panels({path});
            alerts.answer(0);
            QVERIFY(document->canClose());
        }
        QVERIFY(readAll(path).contains("<WallLength>10.000000</WallLength>"));

        // Don't Save leaves the file as it was saved.
        document->workbook()->worksheets()[0]->wallData()->setWallLength(20.0);
        document->noteEdit();
        alerts.answer(1);
        QVERIFY(document->canClose());
        QVERIFY(readAll(path).contains("<WallLength>10.000000</WallLength>"));

        // Undoing an edit by hand leaves nothing to ask about.
        document->workbook()->worksheets()[0]->wallData()->setWallLength(10.0);
        document->noteEdit();
        QVERIFY(!document->isDocumentEdited());
        QVERIFY(!document->isWindowModified());
    }

    void autosaveWritesInPlaceAndDontSavePutsTheFileBack() {
        ScopedFieldAlertRecorder alerts;
        const QString path = dir_.filePath("autosave.zol");
        ZOLDocument document;
        QVERIFY(document.saveToFile(path));
        const QByteArray saved = readAll(path);

        document.workbook()->worksheets()[0]->wallData()->setWallLength(33.0);
        document.noteEdit();
        document.autosave();
        QVERIFY(readAll(path).contains("<WallLength>33.000000</WallLength>"));
        QVERIFY(document.isDocumentEdited()); // autosave is not the user's Save

        // Revert goes back to what the user saved, in the window and in the file.
        alerts.answer(0);
        document.revertDocumentToSaved();
        QCOMPARE(alerts.messages().back(),
                 std::string("Do you want to revert to the most recently saved version of the "
                             "document “autosave.zol”?"));
        QCOMPARE(document.workbook()->worksheets()[0]->wallData()->wallLength(), 0.0);
        QCOMPARE(readAll(path), saved);
        QVERIFY(!document.isDocumentEdited());

        document.workbook()->worksheets()[0]->wallData()->setWallLength(44.0);
        document.noteEdit();
        document.autosave();
        alerts.answer(1); // Don't Save
        QVERIFY(document.canClose());
        QCOMPARE(readAll(path), saved);
    }

    void untitledWorkIsOfferedBackAfterACrash() {
        ScopedFieldAlertRecorder alerts;
        const QString recovery = dir_.filePath("recovery");
        QString leftover;
        {
            ZOLDocumentController controller;
            controller.setRecoveryDirectory(recovery);
            ZOLDocument* document = controller.newDocument();
            document->workbook()->worksheets()[0]->wallData()->setWallLength(55.0);
            document->noteEdit();
            document->autosave();
            const QStringList files = QDir(recovery).entryList({"*.zol"}, QDir::Files);
            QCOMPARE(files.size(), 1);
            // What a crash leaves: the file without its owner.
            leftover = QDir(recovery).filePath("recovery-crash.zol");
            QVERIFY(QFile::copy(QDir(recovery).filePath(files.front()), leftover));
            alerts.answer(1); // Don't Save on the way out
            QVERIFY(controller.closeAll());
            QCOMPARE(QDir(recovery).entryList({"*.zol"}, QDir::Files),
                     QStringList{"recovery-crash.zol"});
        }

        ZOLDocumentController controller;
        controller.setRecoveryDirectory(recovery);
        alerts.answer(0); // Reopen
        QCOMPARE(controller.offerRecovery(), 1);
        QCOMPARE(alerts->alerts.back().buttons, (std::vector<std::string>{"Reopen", "Discard"}));
        ZOLDocument* restored = controller.documents().front();
        QCOMPARE(restored->workbook()->worksheets()[0]->wallData()->wallLength(), 55.0);
        QVERIFY(restored->isDocumentEdited());
        QVERIFY(restored->filePath().isEmpty());

        // Discarding it at close removes the recovery file for good.
        alerts.answer(1);
        QVERIFY(controller.closeAll());
        QVERIFY(QDir(recovery).entryList({"*.zol"}, QDir::Files).isEmpty());
        QCOMPARE(controller.offerRecovery(), 0);
    }

    void unreadableFilesOpenNothing() {
        ScopedFieldAlertRecorder alerts;
        ZOLDocumentController controller;
        controller.setRecoveryDirectory(dir_.filePath("recovery"));

        const QString picture = dir_.filePath("photo.zol");
        writeAll(picture, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
        QVERIFY(!controller.openDocument(picture));
        QCOMPARE(alerts.messages().back(), std::string("The file “photo.zol” couldn’t be opened."));

        const QString broken = dir_.filePath("broken.zol");
        writeAll(broken, "<Workbook><Worksheets><Worksheet Name=\"A\"></Workbook>");
        QVERIFY(!controller.openDocument(broken));
        QCOMPARE(alerts.messages().back(), std::string("There was an error opening the file."));

        QVERIFY(!controller.openDocument(dir_.filePath("missing.zol")));
        QCOMPARE(alerts.messages().back(),
                 std::string("The file “missing.zol” couldn’t be opened."));
        QCOMPARE(alerts->alerts.size(), size_t(3)); // one alert each
        QVERIFY(controller.documents().isEmpty());
    }

    void selectingATabReloadsItsScreen() {
        ZOLDocument document;
        QTabWidget* tabs = document.tabView();
        int summaryTab = -1;
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i) == "Workbook Summary")
                summaryTab = i;
        QVERIFY(summaryTab >= 0);
        auto* table = document.workbookSummary()->findChild<QTableWidget*>("summaryTable");
        QCOMPARE(table->rowCount(), 0);

        document.workbook()->worksheets()[0]->wallData()->setWallLength(100.0);
        tabs->setCurrentIndex(summaryTab == 0 ? 1 : 0);
        tabs->setCurrentIndex(summaryTab);
        QVERIFY(table->rowCount() > 2);
        QCOMPARE(table->item(0, 0)->text(), QString("8\" Straight Block"));
    }

    void everyControlIsReachedWithTab() {
        ZOLDocument document;
        // Tables with rows too: their cells must not keep the focus.
        const auto sheet = document.workbook()->worksheets()[0];
        sheet->openingData()->addOpeningObject(std::make_shared<ZOLOpening>());
        sheet->openingData()->addOpeningObject(std::make_shared<ZOLOpening>());
        sheet->wallData()->setWallLength(100.0);
        document.loadWorksheetDataWithIndex(0);
        document.show();
        QApplication::setActiveWindow(&document);
        QVERIFY(QTest::qWaitForWindowActive(&document));
        for (int tab = 0; tab < document.tabView()->count(); ++tab) {
            document.tabView()->setCurrentIndex(tab);
            QSet<QWidget*> expected;
            for (QWidget* widget : document.findChildren<QWidget*>())
                if (widget->isVisible() && widget->isEnabled() &&
                    (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
                    widget->isActiveWindow() && !qobject_cast<QTabWidget*>(widget))
                    expected.insert(widget);
            // Round the window once (tables are walked cell by cell on the way).
            QSet<QWidget*> reached;
            auto* start = document.findChild<QLineEdit*>("projectName");
            start->setFocus();
            for (int step = 0; step < 2000; ++step) {
                reached.insert(QApplication::focusWidget());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                if (QApplication::focusWidget() == start)
                    break;
            }
            for (QWidget* widget : expected)
                QVERIFY2(reached.contains(widget),
                         qPrintable(document.tabView()->tabText(tab) + ": " + widget->objectName() +
                                    " " + widget->metaObject()->className()));
        }
    }

private:
    QTemporaryDir dir_;
};

QTEST_MAIN(ZOLDocumentTest)
#include "ZOLDocumentTest.moc"
