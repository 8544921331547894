// The price list window: prices edited in the table, and price files saved and opened with
// their alerts.
#include "ui/ZOLPricingWindowController.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLPriceTableModel.h"

#include "UiTestSupport.h"

class ZOLPricingWindowControllerTest : public QObject {
    Q_OBJECT

private slots:
    void pricesAreEditedInTheTable() {
        auto pricing = std::make_shared<ZOLPricing>();
        ZOLPricingWindowController window(pricing);
        window.show();
        auto* table = window.findChild<QTableView*>("priceTable"); // all 44 lines: see below
        QCOMPARE(cellText(table, 0, 1), QString("0.00"));
        QVERIFY(cellData(table, 0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        QVERIFY(!(cellFlags(table, 0, 0) & Qt::ItemIsEditable));

        // Typing is cleaned as in every entry field (a lone minus is no number and goes); the
        // price is the number it starts with.
        const std::tuple<int, const char*, double, const char*> prices[] = {
            {0, "12a.5", 12.5, "12.50"}, {40, "1.2.3", 1.2, "1.20"}, {1, "-3", 3.0, "3.00"}};
        for (const auto& [row, keys, price, shown] : prices) {
            typeInCell(table, row, ZOLPriceTableModel::Price, keys);
            QCOMPARE(pricing->priceItems()[row]->price(), price);
            QCOMPARE(cellText(table, row, 1), QString(shown));
        }
    }

    void linesThatALineAboveOverridesAreGreyed() {
        // As after reopening a priced workbook: its prices follow the list it starts with.
        auto pricing = std::make_shared<ZOLPricing>();
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(8, 0, 23.40));
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(4, 13, 0.09)); // clips: any size
        pricing->addPriceItem(std::make_shared<ZOLPriceItem>(8, 10, 5.0));  // no 8" radius above
        ZOLPricingWindowController window(pricing);
        auto* table = window.findChild<QTableView*>("priceTable");
        QStringList marked;
        for (int row = 0; row < rowCount(table); ++row)
            if (!cellData(table, row, 1, Qt::ToolTipRole).toString().isEmpty()) {
                marked << cellText(table, row, 0);
                // An edit there would change no price: the cell cannot be edited.
                QVERIFY(!(cellFlags(table, row, 1) & Qt::ItemIsEditable));
            }
        QCOMPARE(marked, QStringList({"8\" Straight Block", "Zol Block HV Clips"}));
        QCOMPARE(cellData(table, 44, 1, Qt::ToolTipRole).toString(),
                 QString("Not used: line 17 (8\" Straight Block) sets the price of this part."));

        // The saved prices become the list at one click.
        auto* use = control<QPushButton>(&window, "useSavedPrices");
        QVERIFY(use->isEnabled());
        QTest::mouseClick(use, Qt::LeftButton);
        QCOMPARE(rowCount(table), 3);
        QCOMPARE(pricing->getPriceForItemType(0, 8), 23.40);
        QVERIFY(!use->isEnabled());
    }

    void priceFilesCarryTheListAcrossAndBadOnesChangeNothing() {
        QTemporaryDir dir;
        ScopedAlertRecorder alerts;
        auto pricing = std::make_shared<ZOLPricing>();
        pricing->priceItems()[5]->setPrice(19.95);
        const QString path = dir.filePath("prices.zp");
        ZOLPricingWindowController(pricing).savePricingFile(path);

        // Opening shows the file's list.
        auto other = std::make_shared<ZOLPricing>();
        ZOLPricingWindowController window(other);
        auto* table = window.findChild<QTableView*>("priceTable");
        {
            ScriptedPanels panels({path});
            window.openPricing();
            QCOMPARE(panels.requests, QStringList{"Open Price List *.zp"});
        }
        QVERIFY(alerts->alerts.empty());
        QCOMPARE(cellText(table, 5, 1), QString("19.95"));

        // A broken file changes nothing: no price of the job is lost to a cut-off file. (What
        // each kind of bad file is told is checked on the price reader and the file alerts.)
        writeAll(dir.filePath("broken.zp"),
                 "<Pricing><PriceItems><PriceItem><PartSize>Eight</PartSize>"
                 "<PartType>Straight</PartType><Price>9.50</Price></PriceItem>"
                 "<PriceItem><Price>1</Pri");
        window.openPricingFile(dir.filePath("broken.zp"));
        QCOMPARE(alerts->messages(),
                 std::vector<std::string>{"There was an error opening the file."});
        QCOMPARE(other->priceItems().size(), size_t(44));
        QCOMPARE(other->priceItems()[5]->price(), 19.95);
        QCOMPARE(rowCount(table), 44);

        // Cancelling the panel still reloads the table from the list.
        other->addPriceItem(std::make_shared<ZOLPriceItem>(13, 0.09));
        ScriptedPanels cancelled({});
        window.openPricing();
        QCOMPARE(rowCount(table), 45);
    }
};

QTEST_MAIN(ZOLPricingWindowControllerTest)
#include "ZOLPricingWindowControllerTest.moc"
