// File > Compare With…: the change order against a chosen file or the last saved state, its
// filter, and the exported CSV and PDF.
#include "ui/ZOLChangeOrderWindow.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLChangeOrder.h"
#include "report/ZOLChangeOrderFormat.h"
#include "ui/ZOLDocument.h"

#include "UiTestSupport.h"
#include "support/ChangedSample.h"

class ZOLChangeOrderWindowTest : public QObject {
    Q_OBJECT

private slots:
    void showsTheChangeOrderTextAndItsFilter() {
        ScopedAlertRecorder alerts;
        auto older = ZOLWorkbookReader::readWorkbookData(sampleHouseText()).workbook;
        auto newer =
            ZOLWorkbookReader::readWorkbookData(longerBasement(sampleHouseText())).workbook;
        ZOLChangeOrderWindow window(older, newer, nullptr, "quote.zol", "now.zol");
        // Unfiltered, unchanged worksheets are listed too (the text itself is the report's).
        QVERIFY(window.text().contains("Worksheet \"Main Floor\": same"));
        window.setOnlyChanges(true);
        QCOMPARE(
            window.text().toStdString(),
            ZOLChangeOrderFormat::getText(
                window.changeOrder(), {"quote.zol", "now.zol", "the price list of now.zol"}, true));

        QTemporaryDir dir;
        QVERIFY(window.writeCsv(dir.filePath("order.csv")));
        QCOMPARE(readAll(dir.filePath("order.csv")).toStdString(),
                 ZOLChangeOrderFormat::getCSV(window.changeOrder()));
        QString error;
        QVERIFY2(window.writePdf(dir.filePath("order.pdf"), &error), qPrintable(error));
        QCOMPARE(sheetCount(dir.filePath("order.pdf")), 1);
    }

    void comparesWithTheLastSavedStateOrAChosenFile() {
        QTemporaryDir dir;
        const QString path = dir.filePath("house.zol");
        writeAll(path, QByteArray::fromStdString(sampleHouseText()));
        const auto opened = openedDocument(path);
        ZOLDocument& document = *opened;
        // A waste allowance lives only in the snapshot this computer keeps with the file: the
        // saved version has it too, so it is no change, and both versions count with it.
        const auto& wall = document.workbook()->worksheets()[0]->wallData();
        wall->setWastePercentage(0.05);
        QVERIFY(document.saveToFile(path));
        wall->setWallLength(180.0);
        document.noteEdit();

        ScopedAlertRecorder alerts;
        alerts->answers = {1}; // Last Saved Version
        auto* window = ZOLChangeOrderWindow::compareWithDocument(&document);
        QVERIFY(window);
        QVERIFY(window->text().contains("Old version: house.zol as last saved"));
        const auto& basement = window->changeOrder().worksheets()[0];
        QCOMPARE(basement.fields.size(), size_t(1));
        QCOMPARE(basement.fields[0].newValue.value_or(""), std::string("180.00 ft"));
        QCOMPARE(basement.parts[0].count.newValue, double(wall->getPartCountWithPartType(0)));
        window->close();

        // A chosen file that is not there: its alert, and no window.
        ScriptedPanels panels({dir.filePath("gone.zol")});
        alerts->answers = {0}; // Choose File…
        QVERIFY(!ZOLChangeOrderWindow::compareWithDocument(&document));
        QCOMPARE(panels.requests, QStringList{"Compare With *.zol"});
        QCOMPARE(QString::fromStdString(alerts->alerts.back().message),
                 QString("The file “gone.zol” couldn’t be opened."));

        // The File menu's command asks the same question; Cancel opens nothing.
        QAction* compare = titled<QAction>(&document, "Co&mpare With…");
        QVERIFY(compare);
        const auto windows = document.findChildren<ZOLChangeOrderWindow*>().size();
        alerts->answers = {2};
        compare->trigger();
        QCOMPARE(QString::fromStdString(alerts->alerts.back().message),
                 QString("Compare “house.zol” with which version?"));
        QCOMPARE(document.findChildren<ZOLChangeOrderWindow*>().size(), windows);
    }
};

ZOL_RENDERER_TEST_MAIN(ZOLChangeOrderWindowTest)

#include "ZOLChangeOrderWindowTest.moc"
