// Export PDF from the document window: the print settings come first, a cancelled window
// exports nothing, and an accepted one writes the report's pages to the chosen file.
#include "platform/ZOLPreferences.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLReportRenderer.h"

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
};

int main(int argc, char** argv) {
    ZOLReportRenderer::prepareApplication();
    QApplication app(argc, argv);
    ZOLDocumentPrintTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ZOLDocumentPrintTest.moc"
