// The report renderer: report text in, PDF sheets out, with the report's user texts kept from
// running script or reaching the network.
#include "ui/ZOLReportRenderer.h"
#include "UiTestSupport.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "report/ZOLPrintSettings.h"
#include "ui/ZOLReportProgress.h"

#include <QPrinter>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebEnginePage>

namespace {

std::string pages(int count) {
    std::string html = ZOLPrintData::getHeaderHTML();
    for (int i = 1; i <= count; ++i)
        html += "<div class=\"page\">\n<div class=\"content notes\">\n<h1>Page " +
                std::to_string(i) + "</h1>\n</div>\n</div>\n";
    return html + ZOLPrintData::getFooterHTML();
}

} // namespace

class ZOLReportRendererTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir;
    std::unique_ptr<ZOLReportRenderer> renderer;

private slots:
    void init() {
        dir = std::make_unique<QTemporaryDir>();
        renderer = std::make_unique<ZOLReportRenderer>(
            QString::fromStdString(ZOLPrintData::resourcesDirectory()));
    }
    void markupInUserTextNeitherRunsNorReachesTheNetwork() {
        // A listener on the loopback interface counts every connection made to it.
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost, 0));
        int connections = 0;
        QObject::connect(&listener, &QTcpServer::newConnection, [&] {
            while (QTcpSocket* socket = listener.nextPendingConnection()) {
                ++connections;
                socket->close();
            }
        });
        const std::string remote = "http://127.0.0.1:" + std::to_string(listener.serverPort());
        // What a workbook from someone else could carry in its names and notes.
        auto workbook = std::make_shared<ZOLWorkbook>();
        workbook->setProjectName("<script>document.title='script ran'; new Image().src='" + remote +
                                 "/script';</script>Lakeview");
        workbook->worksheets()[0]->setName("<img src=" + remote + "/img.png>North");
        workbook->setClientName("<link rel=\"stylesheet\" href=\"" + remote + "/style.css\">");
        const std::string notes =
            "<iframe src=\"" + remote +
            "/frame\"></iframe><meta http-equiv=\"refresh\" "
            "content=\"0; url=" +
            remote + "/refresh\"><span style=\"background:url(" + remote +
            "/bg.png)\">x</span><img src=\"file:///etc/hostname\"><object data=\"" + remote +
            "/object\"></object>";
        workbook->setNotes(notes);
        ZOLPrintData::Settings settings;
        for (const char* key : ZOLPrintSettings::keys())
            settings[key] = true;
        // The report prints them as typed (the report tests check that); rendering runs none of
        // it and reaches nothing.
        const std::string html = ZOLPrintData::getHTMLWithWorkbook(workbook, settings);
        QString error;
        const QByteArray pdf = renderer->renderPdfAndWait(html, &error);
        QTest::qWait(300); // a refresh or a late image would have been asked for by now
        QVERIFY2(pdf.startsWith("%PDF"), qPrintable(error));
        QCOMPARE(connections, 0);
        QVERIFY(renderer->page()->title() != QStringLiteral("script ran"));
        // Remote images and style sheets may already be dropped by the engine as insecure
        // content; a file outside the resources folder and the frame are refused by the guards.
        const QStringList blocked = renderer->blockedRequests();
        QVERIFY2(blocked.contains(QStringLiteral("file:///etc/hostname")),
                 qPrintable(blocked.join(' ')));
        QVERIFY(blocked.contains(QString::fromStdString(remote + "/frame")));
        // The page's own background comes from the resources folder and is never refused.
        for (const QString& url : blocked)
            QVERIFY2(!url.contains(QStringLiteral("PrintingBackground")), qPrintable(url));
    }

    void sampleJobPrintsOneSheetPerPageDiv() {
        // zolest's PDF path: the report built by the core, rendered by zolest-render. The
        // report's HTML is the golden copy zolest's own test holds it to.
        const QString pdf = dir->filePath("sample.pdf");
        QProcess zolest;
        zolest.start(QStringLiteral(ZOLEST_PATH),
                     {"report", ZOL_SOURCE_DIR "/examples/sample-house.zol", "-o", pdf});
        QVERIFY(zolest.waitForFinished(120000));
        QVERIFY2(zolest.exitCode() == 0, zolest.readAllStandardError().constData());
        const QString html = readAll(ZOL_SOURCE_DIR "/tests/data/report/sample-house.html");
        const int divs = html.count("<div class=\"page\">");
        QVERIFY(divs > 1);
        QCOMPARE(sheetCount(pdf), divs);
    }

    void printsThroughAPrinter() {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir->filePath(QStringLiteral("printed.pdf")));
        auto print = [&](const std::string& report) {
            QEventLoop loop;
            bool printed = false;
            renderer->print(report, &printer, [&](bool ok, const QString&) {
                printed = ok;
                loop.quit();
            });
            loop.exec();
            return printed;
        };
        // Print to File writes the vector PDF of the pages asked for: 2 to 3 of 5.
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 3);
        QVERIFY(print(pages(5)));
        QCOMPARE(sheetCount(printer.outputFileName()), 2);
        QVERIFY(readAll(printer.outputFileName()).size() < 200 * 1024);
    }

    void aLongReportShowsProgressThatCancelsAndEveryPageDivIsOneLetterSheet() {
        const QString path = dir->filePath(QStringLiteral("report.pdf"));
        QWidget window;
        ZOLReportProgress shortReport(&window, renderer.get(), pages(ZOLReportProgress::kFewPages));
        QVERIFY(!shortReport.dialog());
        ZOLReportProgress progress(&window, renderer.get(), pages(40));
        QVERIFY(progress.dialog());
        // The user presses Cancel while the report is laid out.
        QTimer::singleShot(0, progress.dialog(),
                           [&] { progress.dialog()->findChild<QPushButton*>()->click(); });
        QString error;
        QVERIFY(!renderer->writePdf(pages(40), path, &error));
        QVERIFY(renderer->wasCancelled());
        QVERIFY(!QFile::exists(path));
        // The next report is not cancelled. Its forty page divs of 27.9 cm would drift onto
        // forty-one 27.94 cm sheets without the renderer's page breaks.
        QVERIFY2(renderer->writePdf(pages(40), path, &error), qPrintable(error));
        QVERIFY(!renderer->wasCancelled());
        QCOMPARE(sheetCount(path), 40);

        // A report without pages (every section off) is still a document.
        QVERIFY(renderer->writePdf(ZOLPrintData::getHeaderHTML() + ZOLPrintData::getFooterHTML(),
                                   path, &error));
        QCOMPARE(sheetCount(path), 1);
    }
};

ZOL_RENDERER_TEST_MAIN(ZOLReportRendererTest)

#include "ZOLReportRendererTest.moc"
