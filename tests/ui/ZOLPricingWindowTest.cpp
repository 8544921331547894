// The price list window: prices edited in the table, and price files saved and opened with
// their alerts.
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLPricingWindowController.h"

#include "UiTestSupport.h"

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

        // Typing is cleaned as in every entry field (a lone minus is no number and goes); the
        // price is the number it starts with.
        const std::tuple<int, const char*, double, const char*> prices[] = {
            {0, "12a.5", 12.5, "12.50"}, {40, "1.2.3", 1.2, "1.20"}, {1, "-3", 3.0, "3.00"}};
        for (const auto& [row, keys, price, shown] : prices) {
            typeInCell(table, row, ZOLPricingWindowController::kPriceColumn, keys);
            QCOMPARE(pricing->priceItems()[row]->price(), price);
            QCOMPARE(table->item(row, 1)->text(), QString(shown));
        }
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
            if (!table->item(row, 1)->toolTip().isEmpty()) {
                marked << table->item(row, 0)->text();
                // An edit there would change no price: the cell cannot be edited.
                QVERIFY(!(table->item(row, 1)->flags() & Qt::ItemIsEditable));
            }
        QCOMPARE(marked, QStringList({"8\" Straight Block", "Zol Block HV Clips"}));
        QCOMPARE(table->item(44, 1)->toolTip(),
                 QString("Not used: line 17 (8\" Straight Block) sets the price of this part."));

        // The saved prices become the list at one click.
        auto* use = control<QPushButton>(&window, "useSavedPrices");
        QVERIFY(use->isEnabled());
        QTest::mouseClick(use, Qt::LeftButton);
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(pricing->getPriceForItemType(0, 8), 23.40);
        QVERIFY(!use->isEnabled());
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
            ScriptedPanels panels({path});
            window.openPricing();
            QCOMPARE(panels.requests, QStringList{"Open Price List *.zp"});
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

        const auto open = [&](const char* name, const QByteArray& bytes) {
            writeAll(dir.filePath(name), bytes);
            window.openPricingFile(dir.filePath(name));
        };
        open("photo.zp", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10));
        QCOMPARE(alerts->alerts.back().message,
                 std::string("There was an error opening the file. The file may be corrupted "
                             "or of the wrong format."));
        QCOMPARE(pricing->priceItems().size(), size_t(44));

        // A file without a price list leaves the list alone.
        open("none.zp", "<?xml version=\"1.0\"?>\n<Pricing></Pricing>");
        QCOMPARE(alerts->alerts.size(), size_t(1));
        QCOMPARE(pricing->priceItems().size(), size_t(44));

        // A broken one changes nothing: no price of the job is lost to a cut-off file.
        open("broken.zp", "<Pricing><PriceItems><PriceItem><PartSize>Eight</PartSize>"
                          "<PartType>Straight</PartType><Price>9.50</Price></PriceItem>"
                          "<PriceItem><Price>1</Pri");
        QCOMPARE(alerts->alerts.back().message,
                 std::string("There was an error opening the file."));
        QCOMPARE(pricing->priceItems().size(), size_t(44));
        QCOMPARE(window.findChild<QTableWidget*>("priceTable")->rowCount(), 44);

        // Cancelling the panel still reloads the table from the list.
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(13, 0.09));
        ScriptedPanels cancelled({});
        window.openPricing();
        QCOMPARE(window.findChild<QTableWidget*>("priceTable")->rowCount(), 45);
    }
};

QTEST_MAIN(ZOLPricingWindowTest)
#include "ZOLPricingWindowTest.moc"
