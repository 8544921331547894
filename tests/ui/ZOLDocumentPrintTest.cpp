// Export PDF from the document window: the print settings come first, a cancelled window
// exports nothing, and an accepted one writes the report's pages to the chosen file. Export
// Spreadsheet writes the chosen list.
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "platform/ZOLPreferences.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLHelpMenu.h"

#include "UiTestSupport.h"

namespace {
// Once the print settings window shows: ticks the named boxes, reads the page count, and
// presses the named button.
void answerPrintSettings(QStringList boxes, QString button, QString* pageCount) {
    whenModalShows(
        [=](QWidget* window) {
            for (const QString& name : boxes)
                control<QCheckBox>(window, name)->setChecked(true);
            *pageCount = control<QLabel>(window, "pageCount")->text();
            control<QAbstractButton>(window, button)->click();
        },
        "ZOLPrintSettingsWindowController");
}
} // namespace

class ZOLDocumentPrintTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { ZOLPreferences::setShared(std::make_shared<ZOLMemoryPreferences>()); }

    void exportAsksForTheSectionsFirst() {
        QTemporaryDir dir;
        const QString path = dir.filePath("report.pdf");
        ScriptedPanels panels({path});
        ZOLDocument document;

        QString pageCount;
        answerPrintSettings({}, "cancelButton", &pageCount);
        document.exportPDF();
        QVERIFY(panels.requests.isEmpty());
        QVERIFY(!QFile::exists(path));

        answerPrintSettings({"printWallCheckbox", "printSummaryCheckbox"}, "acceptButton",
                            &pageCount);
        document.exportPDF();
        QCOMPARE(pageCount, QString("Page Count: 2"));
        QCOMPARE(panels.requests, QStringList{"Export PDF *.pdf"});
        QCOMPARE(sheetCount(path), 2);
    }

    void exportSpreadsheetWritesTheChosenList() {
        QTemporaryDir dir;
        const QString path = dir.filePath("order.csv");
        ScriptedPanels panels({path});
        ZOLDocument document;
        document.workbook()->worksheets()[0]->wallData()->setWallLength(40);
        QAction* orderList = titled<QAction>(&document, "&Order List…");
        QVERIFY(orderList);
        orderList->trigger();
        QCOMPARE(panels.requests, QStringList{"Export Spreadsheet *.csv"});
        // The list itself is the spreadsheet export's to pin.
        QVERIFY(readAll(path).contains("\r\nWorksheet 1,Straight Block,8,"));
        // The user guide ships with the program.
        QVERIFY(QFile::exists(ZOLHelpMenu::userGuidePath()));
    }
};

ZOL_RENDERER_TEST_MAIN(ZOLDocumentPrintTest)

#include "ZOLDocumentPrintTest.moc"
