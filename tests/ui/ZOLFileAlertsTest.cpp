// What the user is told when a workbook, price list or template cannot be opened or saved: one
// alert each time, worded by the kind of file.
#include "io/ZOLFileSaver.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLJobSummaryViewController.h"
#include "ui/ZOLPricingWindowController.h"

#include "UiTestSupport.h"

namespace {
const std::string kWrongFormat =
    "There was an error opening the file. The file may be corrupted or of the wrong format.";
} // namespace

class ZOLFileAlertsTest : public QObject {
    Q_OBJECT

private slots:
    void filesThatCannotBeReadAreReportedByKind() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        const QString missing = dir.filePath("missing.zol");
        const std::tuple<ZOLFileKind, std::string, std::string> cases[] = {
            {ZOLFileKind::Workbook, "The file “missing.zol” couldn’t be opened.",
             "No such file or directory"},
            {ZOLFileKind::PriceList, kWrongFormat, ""},
            {ZOLFileKind::Template, kWrongFormat, ""}};
        for (const auto& [kind, message, informative] : cases) {
            QVERIFY(!ZOLFileAlerts::readFile(missing, kind));
            QCOMPARE(alerts->alerts.back().message, message);
            QCOMPARE(alerts->alerts.back().informativeText, informative);
        }
        QCOMPARE(alerts->alerts.size(), size_t(3));

        // After the read: only what the reader left unsaid. Bytes that are no document are the
        // workbook's own alert; the price and template readers, and every parse error, have
        // alerted already.
        QVERIFY(ZOLFileAlerts::accepted("/a/photo.zol", ZOLFileKind::Workbook, ZOLReadStatus::Read));
        QVERIFY(!ZOLFileAlerts::accepted("/a/photo.zol", ZOLFileKind::Workbook,
                                         ZOLReadStatus::Refused));
        QCOMPARE(alerts->alerts.back().message,
                 std::string("The file “photo.zol” couldn’t be opened."));
        QCOMPARE(alerts->alerts.back().informativeText,
                 std::string("It is not a Zol Estimator workbook, or it is damaged."));
        for (const auto kind : {ZOLFileKind::PriceList, ZOLFileKind::Template})
            QVERIFY(!ZOLFileAlerts::accepted("/a/photo.zp", kind, ZOLReadStatus::Refused));
        for (const auto kind : {ZOLFileKind::Workbook, ZOLFileKind::PriceList, ZOLFileKind::Template})
            QVERIFY(!ZOLFileAlerts::accepted("/a/broken", kind, ZOLReadStatus::ParseError));
        QCOMPARE(alerts->alerts.size(), size_t(4));
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
        QVERIFY(QDir(dir.path()).isEmpty());

        // Written where the user can write: no alert.
        prices.savePricingFile(dir.filePath("prices.zp"));
        summary.saveTemplateFile(dir.filePath("lines.zci"));
        QCOMPARE(alerts->alerts.size(), size_t(2));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{"lines.zci", "prices.zp"}));
    }
};

QTEST_MAIN(ZOLFileAlertsTest)
#include "ZOLFileAlertsTest.moc"
