// The report renderer: report text in, PDF sheets out, with the report's user texts kept from
// running script or reaching the network.
#include "ui/ZOLReportRenderer.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "report/ZOLPrintSettings.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebEnginePage>
#include <QtTest>

#include <string>

namespace {

// A listener on the loopback interface that counts every connection made to it.
class Listener {
public:
    Listener() {
        server_.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server_, &QTcpServer::newConnection, [this] {
            while (QTcpSocket* socket = server_.nextPendingConnection()) {
                ++connections_;
                socket->close();
            }
        });
    }
    std::string base() const { return "http://127.0.0.1:" + std::to_string(server_.serverPort()); }
    bool listening() const { return server_.isListening(); }
    int connections() const { return connections_; }

private:
    QTcpServer server_;
    int connections_ = 0;
};

void settle(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

std::string pages(int count) {
    std::string html = ZOLPrintData::getHeaderHTML();
    for (int i = 1; i <= count; ++i)
        html += "<div class=\"page\">\n<div class=\"content notes\">\n<h1>Page " +
                std::to_string(i) + "</h1>\n</div>\n</div>\n";
    return html + ZOLPrintData::getFooterHTML();
}

// The number of sheets pdfinfo counts in a PDF file; -1 when it cannot tell.
int sheetCount(const QString& pdfPath) {
    QProcess pdfinfo;
    pdfinfo.start(QStringLiteral("pdfinfo"), {pdfPath});
    if (!pdfinfo.waitForFinished(30000) || pdfinfo.exitCode() != 0)
        return -1;
    const QString out = QString::fromUtf8(pdfinfo.readAllStandardOutput());
    static const QRegularExpression line(QStringLiteral("^Pages:\\s+(\\d+)$"),
                                         QRegularExpression::MultilineOption);
    const auto match = line.match(out);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QString resources() {
    return QString::fromStdString(ZOLPrintData::resourcesDirectory());
}

} // namespace

class ZOLReportRendererTest : public QObject {
    Q_OBJECT

private slots:
    void markupInUserTextNeitherRunsNorReachesTheNetwork() {
        Listener listener;
        QVERIFY(listener.listening());
        const std::string remote = listener.base();
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
        const std::string html = ZOLPrintData::getHTMLWithWorkbook(workbook, settings);
        // The report prints them as typed...
        QVERIFY(html.find("<div><p>" + notes + "</p></div>") != std::string::npos);
        QVERIFY(html.find("Worksheet: <img src=" + remote + "/img.png>North</p>") !=
                std::string::npos);

        // ...and rendering runs none of it and reaches nothing.
        ZOLReportRenderer renderer(resources());
        QString error;
        const QByteArray pdf = renderer.renderPdfAndWait(html, &error);
        settle(300); // a refresh or a late image would have been asked for by now
        QVERIFY2(pdf.startsWith("%PDF"), qPrintable(error));
        QCOMPARE(listener.connections(), 0);
        QVERIFY(renderer.page()->title() != QStringLiteral("script ran"));
        // Remote images and style sheets may already be dropped by the engine as insecure
        // content; a file outside the resources folder and the frame are refused by the guards.
        const QStringList blocked = renderer.blockedRequests();
        QVERIFY2(blocked.contains(QStringLiteral("file:///etc/hostname")),
                 qPrintable(blocked.join(' ')));
        QVERIFY(blocked.contains(QString::fromStdString(remote + "/frame")));
        // The page's own background comes from the resources folder and is never refused.
        for (const QString& url : blocked)
            QVERIFY2(!url.contains(QStringLiteral("PrintingBackground")), qPrintable(url));
    }

    void sampleJobPrintsOneSheetPerPageDiv() {
        // zolest's PDF path: the report built by the core, rendered by zolest-render.
        QTemporaryDir dir;
        const QString sample = QStringLiteral(ZOL_SOURCE_DIR "/examples/sample-house.zol");
        const QString html = dir.filePath(QStringLiteral("sample.html"));
        const QString pdf = dir.filePath(QStringLiteral("sample.pdf"));
        QProcess zolest;
        zolest.start(QStringLiteral(ZOLEST_PATH),
                     {QStringLiteral("report"), sample, QStringLiteral("-o"), html});
        QVERIFY(zolest.waitForFinished(60000));
        QCOMPARE(zolest.exitCode(), 0);
        zolest.start(QStringLiteral(ZOLEST_PATH),
                     {QStringLiteral("report"), sample, QStringLiteral("-o"), pdf});
        QVERIFY(zolest.waitForFinished(120000));
        QVERIFY2(zolest.exitCode() == 0, zolest.readAllStandardError().constData());
        QFile file(html);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const int divs =
            QString::fromUtf8(file.readAll()).count(QStringLiteral("<div class=\"page\">"));
        QVERIFY(divs > 1);
        QCOMPARE(sheetCount(pdf), divs);
    }

    void everyPageDivIsOneLetterSheet() {
        // Forty page divs of 27.9 cm would drift onto forty-one 27.94 cm sheets without the
        // renderer's page breaks.
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("forty.pdf"));
        ZOLReportRenderer renderer(resources());
        QString error;
        QVERIFY2(renderer.writePdf(pages(40), path, &error), qPrintable(error));
        QCOMPARE(sheetCount(path), 40);

        // A report without pages (every section off) is still a document.
        QVERIFY(renderer.writePdf(ZOLPrintData::getHeaderHTML() + ZOLPrintData::getFooterHTML(),
                                  path, &error));
        QCOMPARE(sheetCount(path), 1);
    }

    void printsThroughAPrinter() {
        QTemporaryDir dir;
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath(QStringLiteral("printed.pdf")));
        ZOLReportRenderer renderer(resources());
        QEventLoop loop;
        bool printed = false;
        renderer.print(pages(2), &printer, [&](bool ok, const QString&) {
            printed = ok;
            loop.quit();
        });
        loop.exec();
        QVERIFY(printed);
        QCOMPARE(sheetCount(printer.outputFileName()), 2);
    }
};

int main(int argc, char** argv) {
    ZOLReportRenderer::prepareApplication();
    QApplication app(argc, argv);
    ZOLReportRendererTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ZOLReportRendererTest.moc"
