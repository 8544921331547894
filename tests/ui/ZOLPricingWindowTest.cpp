// The price list window: prices edited in the table, and price files saved and opened with
// their alerts.
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "support/AlertRecorder.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLPricingWindowController.h"

#include <QFile>
#include <QLineEdit>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {
void writeAll(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Types into the price cell of `row` as a user would and presses Return.
void typePrice(QTableWidget* table, int row, const QString& keys) {
    table->setCurrentCell(row, ZOLPricingWindowController::kPriceColumn);
    table->editItem(table->item(row, ZOLPricingWindowController::kPriceColumn));
    QLineEdit* editor = nullptr;
    for (auto* candidate : table->viewport()->findChildren<QLineEdit*>())
        if (candidate->isVisible())
            editor = candidate; // an earlier cell's editor may still wait to be deleted
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, keys);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents(); // the table commits the edit from its event queue
}
} // namespace

class ZOLPricingWindowTest : public QObject {
    Q_OBJECT

private slots:
    void pricesAreEditedInTheTable() {
        auto pricing = std::make_shared<ZOLPricing>();
        ZOLPricingWindowController window(pricing);
        window.show();
        auto* table = window.findChild<QTableWidget*>("priceTable");
        QCOMPARE(table->rowCount(), 44);
        QCOMPARE(table->item(0, 0)->text(), QString("4\" Straight Block"));
        QCOMPARE(table->item(43, 0)->text(), QString("12\" pelmo"));
        QCOMPARE(table->item(0, 1)->text(), QString("0.00"));
        QVERIFY(table->item(0, 1)->textAlignment() & Qt::AlignRight);
        QVERIFY(!(table->item(0, 0)->flags() & Qt::ItemIsEditable));

        // Typing is cleaned as in every entry field; the price is the number it starts with.
        typePrice(table, 0, "12a.5");
        QCOMPARE(pricing->priceItems()[0]->price(), 12.5);
        QCOMPARE(table->item(0, 1)->text(), QString("12.50"));
        QCOMPARE(pricing->getPriceForItemType(0, 4), 12.5);
        typePrice(table, 40, "1.2.3");
        QCOMPARE(pricing->priceItems()[40]->price(), 1.2);
        QCOMPARE(table->item(40, 1)->text(), QString("1.20"));
        // A lone minus is no number and is cleaned away, as in the entry fields.
        typePrice(table, 1, "-3");
        QCOMPARE(pricing->priceItems()[1]->price(), 3.0);
    }

    void linesThatALineAboveOverridesAreGreyed() {
        // As after reopening a priced workbook: its prices follow the list it starts with.
        auto pricing = std::make_shared<ZOLPricing>();
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(8, 0, 23.40));
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(4, 13, 0.09)); // clips: any size
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(8, 10, 5.0));  // no 8" radius above
        ZOLPricingWindowController window(pricing);
        auto* table = window.findChild<QTableWidget*>("priceTable");
        QStringList marked;
        for (int row = 0; row < table->rowCount(); ++row)
            if (!table->item(row, 1)->toolTip().isEmpty())
                marked << table->item(row, 0)->text();
        QCOMPARE(marked, QStringList({"8\" Straight Block", "Zol Block HV Clips"}));
    }

    void priceFilesCarryTheListAcross() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        auto pricing = std::make_shared<ZOLPricing>();
        pricing->priceItems()[5]->setPrice(19.95);
        const QString path = dir.filePath("prices.zp");
        ZOLPricingWindowController(pricing).savePricingFile(path);

        // Opening replaces the list by the file's items: the same 44, no defaults added.
        auto other = std::make_shared<ZOLPricing>();
        ZOLPricingWindowController window(other);
        {
            ZOLFilePanels::setScript([&path](const ZOLFilePanels::Request& request) {
                return request.suffix == "zp" ? QStringList{path} : QStringList{};
            });
            window.openPricing();
            ZOLFilePanels::setScript({});
        }
        QVERIFY(alerts->alerts.empty());
        QCOMPARE(other->priceItems().size(), size_t(44));
        QCOMPARE(other->getFullXMLString(), pricing->getFullXMLString());
        auto* table = window.findChild<QTableWidget*>("priceTable");
        QCOMPARE(table->item(5, 1)->text(), QString("19.95"));
    }

    void badPriceFilesAreReported() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        auto pricing = std::make_shared<ZOLPricing>();
        ZOLPricingWindowController window(pricing);

        const QString picture = dir.filePath("photo.zp");
        writeAll(picture, QByteArray("\x89PNG\r\n\x1a\n\0\0", 10));
        window.openPricingFile(picture);
        QCOMPARE(alerts->alerts.back().message,
                 std::string("There was an error opening the file. The file may be corrupted "
                             "or of the wrong format."));
        QCOMPARE(pricing->priceItems().size(), size_t(44));

        // A file without a price list leaves the list alone.
        const QString none = dir.filePath("none.zp");
        writeAll(none, "<?xml version=\"1.0\"?>\n<Pricing></Pricing>");
        window.openPricingFile(none);
        QCOMPARE(alerts->alerts.size(), size_t(1));
        QCOMPARE(pricing->priceItems().size(), size_t(44));

        // A broken one keeps the items read before the break.
        const QString broken = dir.filePath("broken.zp");
        writeAll(broken, "<Pricing><PriceItems><PriceItem><PartSize>Eight</PartSize>"
                         "<PartType>Straight</PartType><Price>9.50</Price></PriceItem>"
                         "<PriceItem><Price>1</Pri");
        window.openPricingFile(broken);
        QCOMPARE(alerts->alerts.back().message,
                 std::string("There was an error opening the file."));
        QCOMPARE(pricing->priceItems().size(), size_t(1));
        QCOMPARE(window.findChild<QTableWidget*>("priceTable")->rowCount(), 1);

        // Cancelling the panel still reloads the table from the list.
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(13, 0.09));
        ZOLFilePanels::setScript([](const ZOLFilePanels::Request&) { return QStringList{}; });
        window.openPricing();
        ZOLFilePanels::setScript({});
        QCOMPARE(window.findChild<QTableWidget*>("priceTable")->rowCount(), 2);
    }
};

QTEST_MAIN(ZOLPricingWindowTest)
#include "ZOLPricingWindowTest.moc"
