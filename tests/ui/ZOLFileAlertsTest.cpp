// What the user is told when a workbook, price list or template cannot be opened or saved: one
// alert each time, worded by the kind of file.
#include "io/ZOLFileSaver.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLJobSummaryViewController.h"
#include "ui/ZOLPricingWindowController.h"

#include "UiTestSupport.h"

class ZOLFileAlertsTest : public QObject {
    Q_OBJECT

private slots:
    void filesThatCannotBeReadAreReportedByKind() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        // A workbook's own alerts are checked where the user meets them: opening in the window.
        for (const auto kind : {ZOLFileKind::PriceList, ZOLFileKind::Template}) {
            QVERIFY(!ZOLFileAlerts::readFile(dir.filePath("missing.zol"), kind));
            QCOMPARE(alertText(alerts->alerts.back()),
                     QString("There was an error opening the file. The file may be corrupted or of "
                             "the wrong format. [OK] "));
        }

        // After the read: only what the reader left unsaid. Bytes that are no document are the
        // workbook's own alert (the window's to show); the price and template readers, and every
        // parse error, have alerted already.
        QVERIFY(ZOLFileAlerts::accepted("/a/photo.zol", ZOLFileKind::Workbook, ZOLReadStatus::Read));
        for (const auto kind : {ZOLFileKind::PriceList, ZOLFileKind::Template})
            QVERIFY(!ZOLFileAlerts::accepted("/a/photo.zp", kind, ZOLReadStatus::Refused));
        for (const auto kind : {ZOLFileKind::Workbook, ZOLFileKind::PriceList, ZOLFileKind::Template})
            QVERIFY(!ZOLFileAlerts::accepted("/a/broken", kind, ZOLReadStatus::ParseError));
        QCOMPARE(alerts->alerts.size(), size_t(2));
    }

    void aPriceListOrTemplateThatCannotBeWrittenIsReported() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        auto workbook = std::make_shared<ZOLWorkbook>();
        workbook->generateCustomItems();
        ZOLPricingWindowController prices(workbook->pricingData());
        ZOLJobSummaryViewController summary;
        summary.setWorkbook(workbook);
        const QString nowhere = dir.filePath("no/such/folder/");
        prices.savePricingFile(nowhere + "prices.zp");
        summary.saveTemplateFile(nowhere + "lines.zci");
        QCOMPARE(alerts->messages(), (std::vector<std::string>{"The price list could not be saved.",
                                                               "The template could not be saved."}));
        for (const auto& alert : alerts->alerts)
            QCOMPARE(alert.informativeText, std::string("No such file or directory"));
        // Written where the user can write, they raise no alert: the price list and template
        // round trips of their windows check that.
        QVERIFY(QDir(dir.path()).isEmpty());
    }
};

QTEST_MAIN(ZOLFileAlertsTest)
#include "ZOLFileAlertsTest.moc"
