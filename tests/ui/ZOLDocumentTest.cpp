// The document window: the worksheet commands with their alerts, the project header, notes, and
// the file flow (save, reopen, unsaved changes, autosave and recovery, unreadable files).
#include "ui/ZOLDocument.h"
#include "UiTestSupport.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "ui/ZOLBlockInfoViewController.h"
#include "ui/ZOLDocumentController.h"
#include "ui/ZOLJobSummaryViewController.h"
#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui/ZOLRecentFiles.h"
#include "ui/ZOLSavedPricesBar.h"
#include "ui/ZOLWallEntryViewController.h"
#include "ui/ZOLWallInfoViewController.h"
#include "ui/ZOLWorkbookSummaryViewController.h"

namespace {
const QString kLongDuplicate = "A worksheet with that name already exists. Please try again "
                               "with a different worksheet name.";

template <class Screen> Screen* screen(const ZOLDocument& document) {
    return qobject_cast<Screen*>(document.screenNamed(Screen::staticMetaObject.className()));
}

// The worksheet names, and what the selector lists and shows.
QString names(const ZOLWorkbook& workbook) {
    QStringList out;
    for (const auto& sheet : workbook.worksheets())
        out << QString::fromStdString(sheet->name());
    return out.join(", ");
}
QString selector(const ZOLDocument& document) {
    QStringList items;
    for (int i = 0; i < document.worksheetSelection()->count(); ++i)
        items << document.worksheetSelection()->itemText(i);
    const QComboBox* box = document.worksheetSelection();
    return items.join(", ") + " showing " +
           (box->currentIndex() < 0 ? box->placeholderText() : box->currentText());
}

// A choice of a radio group that is not chosen: Tab stops on the chosen one and the arrow keys
// move between the choices.
bool isOtherChoice(const QWidget* widget) {
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    return radio && radio->autoExclusive() && !radio->isChecked();
}

} // namespace

class ZOLDocumentTest : public QObject {
    Q_OBJECT

    FieldAlerts alerts;
    QTemporaryDir dir_;

    void add(ZOLDocument& document, const std::string& name, int button = 0) {
        alerts->answer(button, name);
        document.addWorksheet();
    }
    static std::shared_ptr<ZOLWall> firstWall(const ZOLDocument& document) {
        return document.workbook()->worksheets()[0]->wallData();
    }
    // Edits the first wall's length as a screen would.
    static void setLength(ZOLDocument& document, double length) {
        firstWall(document)->setWallLength(length);
        document.noteEdit();
    }

private slots:
    void initTestCase() { useTestSettings("ZOLDocumentTest"); }
    void init() {
        QSettings().clear();
        QVERIFY(dir_.isValid());
        alerts.renew();
    }

    void newDocumentShowsOneWorksheetOnEveryScreen() {
        ZOLDocument document;
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1"));
        QCOMPARE(selector(document), QString("Worksheet 1 showing Worksheet 1"));
        QCOMPARE(document.windowTitle(), QString("Untitled[*]"));
        QVERIFY(!document.isDocumentEdited());
        // Ten tabs, the job summary last.
        QStringList titles;
        for (int i = 0; i < document.tabView()->count(); ++i)
            titles << document.tabView()->tabText(i);
        QCOMPARE(titles.join(", "),
                 QString("Wall Entry, Openings, Block Info, Wall Info, Workbook Summary, Concrete, "
                         "Rebar, Tilt-Up, Man-Hours, Job Summary"));

        QCOMPARE(screen<ZOLJobSummaryViewController>(document)->workbook(), document.workbook());

        // Selecting a tab reloads its screen.
        auto* table = document.workbookSummary()->findChild<QTableView*>("summaryTable");
        QCOMPARE(rowCount(table), 0);
        firstWall(document)->setWallLength(100.0);
        document.tabView()->setCurrentIndex(0);
        document.tabView()->setCurrentIndex(4); // Workbook Summary
        QVERIFY(rowCount(table) > 2);
        QCOMPARE(cellText(table, 0, 0), QString("8\" Straight Block"));

        // Choosing a worksheet hands its records to every wall screen (the estimate tabs' are
        // typed through and reopened in aSavedJobReopensAsItWasSaved).
        auto* wallEntry = screen<ZOLWallEntryViewController>(document);
        auto* openings = screen<ZOLOpeningsEntryViewController>(document);
        auto* blockInfo = screen<ZOLBlockInfoViewController>(document);
        auto* wallInfo = screen<ZOLWallInfoViewController>(document);
        const auto handed = [&](size_t index) {
            const auto sheet = document.workbook()->worksheets()[index];
            for (const auto& wall : {wallEntry->wallData(), openings->wallData(),
                                     blockInfo->wallData(), wallInfo->wallData()})
                QCOMPARE(wall, sheet->wallData());
            QCOMPARE(openings->openingData(), sheet->openingData());
        };
        add(document, "Garage");
        handed(1);
        choose(document.worksheetSelection(), 0);
        handed(0);
    }

    void addingWorksheetsChecksTheNameWithTheLongAlert() {
        ZOLDocument document;
        add(document, "Garage");
        QCOMPARE(alerts->last(), QString("Enter a name for the new worksheet [OK|Cancel] "));
        QCOMPARE(alerts->shownTexts.at(0), std::string());
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Garage"));
        QCOMPARE(selector(document), QString("Worksheet 1, Garage showing Garage"));
        QVERIFY(document.isDocumentEdited());

        // A taken name gets the document's own long alert, not the workbook's short one.
        add(document, "Garage");
        QCOMPARE(alerts->last(), kLongDuplicate + " [OK] ");
        QCOMPARE(alerts->alerts.size(), size_t(3));
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Garage"));

        // Cancel adds nothing, whatever was typed; an empty name is a name.
        add(document, "Porch", 1);
        add(document, "");
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Garage, "));
        QCOMPARE(selector(document), QString("Worksheet 1, Garage,  showing "));
    }

    void renamingChecksOtherNamesOnly() {
        ZOLDocument document;
        add(document, "Garage");

        // Its own name: nothing happens and no second alert.
        alerts->answer(0, "Garage");
        document.renameWorksheet();
        QCOMPARE(alerts->alerts.size(), size_t(2));
        QCOMPARE(alerts->last(), QString("Enter a new name for this worksheet [OK|Cancel] "));
        QCOMPARE(alerts->shownTexts.back(), std::string("Garage"));

        alerts->answer(0, "Worksheet 1");
        document.renameWorksheet();
        QCOMPARE(alerts->last(), kLongDuplicate + " [OK] ");
        alerts->answer(1, "Shed");
        document.renameWorksheet();
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Garage"));

        alerts->answer(0, "Shed");
        document.renameWorksheet();
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Shed"));
        QCOMPARE(selector(document), QString("Worksheet 1, Shed showing Shed"));
    }

    void deletingLeavesTheWindowAsItWasButTheSelectorLive() {
        ZOLDocument document;
        add(document, "Garage");
        add(document, "Shed");
        choose(document.worksheetSelection(), 1);
        const auto garageWall = document.workbook()->worksheets()[1]->wallData();
        const auto shed = document.workbook()->worksheets()[2];

        alerts->answer(1);
        document.deleteWorksheet();
        QCOMPARE(alerts->last(),
                 QString("Are you sure you want to delete this worksheet? [OK|Cancel] "));
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Garage, Shed"));

        alerts->answer(0);
        document.deleteWorksheet();
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Shed"));
        // The screens and the selector's text still show the deleted worksheet, but the list
        // holds only the worksheets left, and nothing is chosen to rename or delete again.
        QCOMPARE(selector(document), QString("Worksheet 1, Shed showing Garage"));
        QCOMPARE(screen<ZOLWallEntryViewController>(document)->wallData(), garageWall);
        const size_t asked = alerts->alerts.size();
        document.renameWorksheet();
        QCOMPARE(alerts->alerts.size(), asked);
        alerts->answer(0);
        document.deleteWorksheet();
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Shed"));

        // Choosing a name loads that worksheet, and Rename then renames it.
        choose(document.worksheetSelection(), 1);
        QCOMPARE(screen<ZOLWallEntryViewController>(document)->wallData(), shed->wallData());
        alerts->answer(0, "Barn");
        document.renameWorksheet();
        QCOMPARE(names(*document.workbook()), QString("Worksheet 1, Barn"));

        // The last worksheet can go too, and comes back on opening.
        for (int i = 0; i < 2; ++i) {
            choose(document.worksheetSelection(), 0);
            alerts->answer(0);
            document.deleteWorksheet();
        }
        QVERIFY(document.workbook()->worksheets().empty());
        const QString path = dir_.filePath("empty.zol");
        QVERIFY(document.saveToFile(path));
        QVERIFY(readAll(path).contains("\t<Worksheets>\n\t</Worksheets>\n"));
        ZOLDocument reopened;
        QVERIFY(reopened.readFromFile(path));
        QCOMPARE(names(*reopened.workbook()), QString("Worksheet 1"));
        QCOMPARE(selector(reopened), QString("Worksheet 1 showing Worksheet 1"));
    }

    void headerFieldsWriteEveryKeystrokeAndNotesOnDone() {
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

        // The notes are replaced on Done only.
        const std::string notes = "Pour Monday\n<b>Call the pump</b>";
        alerts->answer(0, notes);
        document.editNotes();
        QCOMPARE(alerts->last(),
                 QString("Project Notes [Done|Cancel] Notes are kept on this computer with the "
                         "job and print with the report; the workbook file does not carry them."));
        QVERIFY(document.isDocumentEdited()); // notes alone are an edit
        QCOMPARE(document.workbook()->notes().value_or(""), notes);
        alerts->answer(1, "lost");
        document.editNotes();
        QCOMPARE(alerts->shownTexts.back(), notes);
        QCOMPARE(document.workbook()->notes().value_or(""), notes);
    }

    // What autosave writes and what Revert and Don't Save put back is checked on the job
    // document alone; here, the window's questions that lead there.
    void closingAndRevertingAskAboutUnsavedChanges() {
        const QString path = dir_.filePath("autosave.zol");
        ZOLDocument document;
        QVERIFY(document.canClose()); // nothing to ask
        QVERIFY(alerts->alerts.empty());

        setLength(document, 10.0);
        alerts->answer(2); // Cancel
        QVERIFY(!document.canClose());
        QCOMPARE(alerts->last(),
                 QString("Do you want to save the changes you made in the document "
                         "“Untitled”? [Save|Don't Save|Cancel] Your changes will be lost if "
                         "you don’t save them."));
        QVERIFY(document.isDocumentEdited());
        // Save with the panel cancelled keeps the window open.
        for (const QStringList& answers : {QStringList(), QStringList{path}}) {
            ScriptedPanels panels(answers);
            alerts->answer(0);
            QCOMPARE(document.canClose(), !answers.isEmpty());
        }
        const QByteArray saved = readAll(path);
        QVERIFY(saved.contains("<WallLength>10.000000</WallLength>"));

        // Undoing an edit by hand leaves nothing to ask about: the job document and the undo
        // history's window mark check that.
        setLength(document, 33.0);
        document.autosave();
        alerts->answer(0);
        document.revertDocumentToSaved();
        QCOMPARE(QString::fromStdString(alerts->alerts.back().message),
                 QString("Do you want to revert to the most recently saved version of the "
                         "document “autosave.zol”?"));
        QVERIFY(!document.isDocumentEdited());

        setLength(document, 44.0);
        document.autosave();
        alerts->answer(1); // Don't Save
        QVERIFY(document.canClose());
        QCOMPARE(readAll(path), saved);
    }

    void untitledWorkIsOfferedBackAfterACrash() {
        const QDir recovery(dir_.filePath("recovery"));
        {
            ZOLDocumentController controller;
            controller.setRecoveryDirectory(recovery.path());
            ZOLDocument* document = controller.newDocument();
            document->autosave(); // nothing edited, nothing written
            QVERIFY(recovery.entryList({"*.zol"}, QDir::Files).isEmpty());
            setLength(*document, 55.0);
            document->workbook()->setNotes(std::string("Pour Monday"));
            document->autosave();
            const QStringList files = recovery.entryList({"*.zol"}, QDir::Files);
            QCOMPARE(files.size(), 1);
            // What a crash leaves: the file and its snapshot without their owner.
            for (const char* suffix : {"", ".job"})
                QVERIFY(QFile::copy(recovery.filePath(files.front() + suffix),
                                    recovery.filePath("recovery-crash.zol" + QString(suffix))));
            alerts->answer(1); // Don't Save on the way out
            QVERIFY(controller.closeAll());
            QCOMPARE(recovery.entryList({"*.zol"}, QDir::Files), QStringList{"recovery-crash.zol"});
        }

        ZOLDocumentController controller;
        controller.setRecoveryDirectory(recovery.path());
        alerts->answer(0); // Reopen
        QCOMPARE(controller.offerRecovery(), 1);
        QCOMPARE(alerts->alerts.back().buttons, (std::vector<std::string>{"Reopen", "Discard"}));
        ZOLDocument* restored = controller.documents().front();
        QCOMPARE(firstWall(*restored)->wallLength(), 55.0);
        QCOMPARE(restored->workbook()->notes().value_or(""), std::string("Pour Monday"));
        QVERIFY(restored->isDocumentEdited());
        QVERIFY(restored->filePath().isEmpty());
        QCOMPARE(restored->displayName(), QString("Untitled"));

        // Discarding it at close removes the recovery file for good.
        alerts->answer(1);
        QVERIFY(controller.closeAll());
        QVERIFY(recovery.entryList({"*.zol", "*.job"}, QDir::Files).isEmpty());
        QCOMPARE(controller.offerRecovery(), 0);
    }

    void unreadableFilesOpenNothing() {
        ZOLDocumentController controller;
        controller.setRecoveryDirectory(dir_.filePath("recovery"));
        writeAll(dir_.filePath("photo.zol"), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
        writeAll(dir_.filePath("broken.zol"),
                 "<Workbook><Worksheets><Worksheet Name=\"A\"></Workbook>");
        // The alert in one line; what the reader says about the broken file follows its message.
        const char* const files[][2] = {
            {"photo.zol", "The file “photo.zol” couldn’t be opened. [OK] It is not a Zol "
                          "Estimator workbook, or it is damaged."},
            {"broken.zol", "There was an error opening the file. [OK] "},
            {"missing.zol", "The file “missing.zol” couldn’t be opened. [OK] No such file or "
                            "directory"}};
        for (const auto& [file, alert] : files) {
            QVERIFY(!controller.openDocument(dir_.filePath(file)));
            QVERIFY2(alerts->last().startsWith(alert), qPrintable(alerts->last()));
        }
        QCOMPARE(alerts->alerts.size(), size_t(3)); // one alert each
        QVERIFY(controller.documents().isEmpty());
    }

    void resultsShowEveryDigit() {
        ZOLDocument document;
        document.show();
        QVERIFY(QTest::qWaitForWindowExposed(&document));
        // A result far beyond everyday sizes still shows every digit.
        document.tabView()->setCurrentIndex(7);
        auto* tilt = document.tabView()->currentWidget();
        type(control<QLineEdit>(tilt, "wallHeight"), "1000000000");
        type(control<QLineEdit>(tilt, "wallLength"), "1000000000");
        QCoreApplication::processEvents(); // the layout widens the field
        auto* area = control<QLineEdit>(tilt, "totalSquareFeet");
        QCOMPARE(area->text(), QString("1000000000000000000.00"));
        QVERIFY(area->width() > area->fontMetrics().horizontalAdvance(area->text()));
    }

    void aSavedJobReopensAsItWasSaved() {
        const QString path = dir_.filePath("lakeside.zol");
        ZOLDocument document;
        document.setSnapshotDirectory(dir_.filePath("snapshots"));
        // Tab title, field, keys typed, and what the field shows after reopening.
        const char* const edits[][4] = {{"Concrete", "footingWidth", "20", "20"},
                                        {"Rebar", "horizontalRows1", "3", "3"},
                                        {"Tilt-Up", "wallLength", "100", "100.00"},
                                        {"Man-Hours", "sqftWall", "1a2.5", "12.50"}};
        auto select = [](ZOLDocument& window, const QString& title) {
            for (int i = 0; i < window.tabView()->count(); ++i)
                if (window.tabView()->tabText(i) == title)
                    window.tabView()->setCurrentIndex(i);
            return window.tabView()->currentWidget();
        };
        for (const auto& [tab, name, keys, shown] : edits) {
            auto* edit = control<QLineEdit>(select(document, tab), name);
            type(edit, keys);
            emit edit->editingFinished();
        }
        choose(control<QComboBox>(select(document, "Rebar"), "horizontalSize1"), 2);
        add(document, "Garage");
        QTest::keyClicks(control<QLineEdit>(&document, "projectVersion"), "3");
        type(control<QLineEdit>(&document, "projectName"), "Lakeview Residence & Co");
        const auto sheet = document.workbook()->worksheets()[0];
        sheet->wallData()->setWastePercentage(0.05);
        sheet->concreteData()->setWallHeight(9.0);
        sheet->concreteData()->setSqFtOpenings(42.5);
        document.workbook()->pricingData()->priceItems()[0]->setPrice(4.75);
        document.workbook()->setSummarizeTilt(false);
        auto line = std::make_shared<ZOLCustomItem>();
        line->setName(std::string("Building permit"));
        document.workbook()->setCustomItems({line});
        alerts->answer(0, "Pour Monday");
        document.editNotes();
        QVERIFY(document.isWindowModified());
        {
            ScriptedPanels panels({dir_.filePath("lakeside")});
            QVERIFY(document.save());
            QCOMPARE(panels.requests, QStringList{"Save Workbook *.zol"});
        }
        QCOMPARE(document.filePath(), path);
        QCOMPARE(document.windowTitle(), QString("lakeside.zol[*]"));
        QVERIFY(!document.isWindowModified());
        const QByteArray saved = document.dataOfType();
        QCOMPARE(readAll(path), saved);
        const QByteArray job = document.jobState();

        // On this computer the job comes back whole: the file and what only the snapshot keeps.
        auto reopened = openedDocument(path);
        QCOMPARE(reopened->jobState(), job);
        QCOMPARE(names(*reopened->workbook()), QString("Worksheet 1, Garage"));
        QCOMPARE(reopened->findChild<QLineEdit*>("projectName")->text(),
                 QString("Lakeview Residence & Co"));
        QCOMPARE(reopened->workbook()->worksheets()[0]->concreteData()->wallHeight(), 9.0);
        for (const auto& [tab, name, keys, shown] : edits)
            QCOMPARE(control<QLineEdit>(select(*reopened, tab), name)->text(), QString(shown));
        auto* rebar = select(*reopened, "Rebar");
        QCOMPARE(control<QComboBox>(rebar, "horizontalSize1")->currentText(), QString("#6"));
        QCOMPARE(reopened->statusBar()->currentMessage(),
                 QString("Restored from this computer: notes, prices, concrete heights, waste "
                         "percentages, job summary lines, summary switches, version"));
        QVERIFY(!reopened->isDocumentEdited());
        QVERIFY(!reopened->findChild<ZOLSavedPricesBar*>()->isVisibleTo(reopened.get()));

        // Changed by another program: the file opens as it says, and the snapshot stays.
        writeAll(path, QByteArray(saved).replace("Lakeview", "Lakeside"));
        reopened = openedDocument(path);
        QCOMPARE(reopened->workbook()->worksheets()[0]->concreteData()->wallHeight(), 42.5);
        QCOMPARE(reopened->workbook()->notes().value_or(""), std::string());
        QVERIFY(reopened->statusBar()->currentMessage().isEmpty());
        writeAll(path, saved);
        QCOMPARE(openedDocument(path)->jobState(), job);

        // Opened from the File menu, the same file again brings its window forward.
        ZOLDocumentController controller;
        controller.setRecoveryDirectory(dir_.filePath("recovery"));
        ZOLDocument* opened = controller.openDocument(path);
        QVERIFY(opened);
        QCOMPARE(controller.openDocument(dir_.filePath("./lakeside.zol")), opened);
        QCOMPARE(controller.documents().size(), 1);
        QCOMPARE(controller.recentFiles()->files().front(), path);
        opened->close();
    }

    void savedPricesAreOneClickAwayAndAFailedAutosaveIsSaid() {
        const QString path = sampleHouseCopy(dir_.filePath("house.zol"));
        const auto document = openedDocument(path);
        auto* bar = document->findChild<ZOLSavedPricesBar*>();
        QVERIFY(bar->isVisibleTo(document.get()));
        const auto pricing = document->workbook()->pricingData();
        QCOMPARE(pricing->getPriceForItemType(0, 8), 0.0);
        QTest::mouseClick(bar->useSavedPricesButton(), Qt::LeftButton);
        QVERIFY(pricing->getPriceForItemType(0, 8) > 0.0);
        QCOMPARE(pricing->priceItems().size(), size_t(44));
        QVERIFY(!bar->isVisibleTo(document.get()));
        QVERIFY(document->isDocumentEdited());

        // The file's place is taken by a folder: autosave says so and tries again later.
        QVERIFY(QFile::remove(path) && QDir().mkdir(path));
        document->autosave();
        QVERIFY(document->statusBar()->currentMessage().startsWith(
            "The document “house.zol” could not be saved."));
        QVERIFY(QDir().rmdir(path));
        setLength(*document, 12.0);
        document->autosave();
        QVERIFY(readAll(path).contains("<WallLength>12.000000</WallLength>"));
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
                    widget->isActiveWindow() && !qobject_cast<QTabWidget*>(widget) &&
                    !isOtherChoice(widget))
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
};

QTEST_MAIN(ZOLDocumentTest)
#include "ZOLDocumentTest.moc"
