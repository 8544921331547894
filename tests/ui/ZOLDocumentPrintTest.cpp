// Export PDF from the document window: the print settings come first, a cancelled window
// exports nothing, and an accepted one writes the report's pages to the chosen file.
#include "platform/ZOLPreferences.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLReportRenderer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {
// Once the print settings window shows: ticks the named boxes, reads the page count, and
// presses the named button.
void answerPrintSettings(QStringList boxes, QString button, QString* pageCount) {
    auto* timer = new QTimer(qApp);
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [=] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window || window->objectName() != "ZOLPrintSettingsWindowController")
            return;
        timer->stop();
        timer->deleteLater();
        for (const QString& name : boxes)
            window->findChild<QCheckBox*>(name)->setChecked(true);
        *pageCount = window->findChild<QLabel*>("pageCount")->text();
        window->findChild<QAbstractButton*>(button)->click();
    });
    timer->start();
}

// The number of sheets of a PDF, as poppler's pdfinfo reads it.
int sheetCount(const QString& path) {
    QProcess pdfinfo;
    pdfinfo.start(QStringLiteral("pdfinfo"), {path});
    if (!pdfinfo.waitForFinished(30000) || pdfinfo.exitCode() != 0)
        return -1;
    const auto match = QRegularExpression(QStringLiteral("^Pages:\\s+(\\d+)$"),
                                          QRegularExpression::MultilineOption)
                           .match(QString::fromUtf8(pdfinfo.readAllStandardOutput()));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}
} // namespace

class ZOLDocumentPrintTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { ZOLPreferences::setShared(std::make_shared<ZOLMemoryPreferences>()); }

    void exportAsksForTheSectionsFirst() {
        QTemporaryDir dir;
        const QString path = dir.filePath("report.pdf");
        QStringList panels;
        ZOLFilePanels::setScript([&](const ZOLFilePanels::Request& request) {
            panels << request.title;
            return QStringList{path};
        });
        ZOLDocument document;

        QString pageCount;
        answerPrintSettings({}, "cancelButton", &pageCount);
        document.exportPDF();
        QVERIFY(panels.isEmpty());
        QVERIFY(!QFile::exists(path));

        answerPrintSettings({"printWallCheckbox", "printSummaryCheckbox"}, "acceptButton",
                            &pageCount);
        document.exportPDF();
        QCOMPARE(pageCount, QString("Page Count: 2"));
        QCOMPARE(panels, QStringList{"Export PDF"});
        QCOMPARE(sheetCount(path), 2);
        ZOLFilePanels::setScript({});
    }
};

int main(int argc, char** argv) {
    ZOLReportRenderer::prepareApplication();
    QApplication app(argc, argv);
    ZOLDocumentPrintTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ZOLDocumentPrintTest.moc"
