// The Openings tab driven through its widgets: adding and removing rows, editing cells in
// place, the remove-sill box, the totals and sending them to the wall.
#include "ui/ZOLOpeningsEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"

class ZOLOpeningsEntryViewControllerTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ZOLOpeningsEntryViewController> screen;
    std::shared_ptr<ZOLOpenings> openings;
    std::shared_ptr<ZOLWall> wall;

    QTableWidget* table() { return screen->findChild<QTableWidget*>("openingsTable"); }
    QPushButton* button(const char* name) { return screen->findChild<QPushButton*>(name); }
    int column(const char* identifier) {
        for (int c = 0; c < table()->columnCount(); ++c)
            if (ZOLOpeningsEntryViewController::columnIdentifier(c) == QLatin1String(identifier))
                return c;
        qFatal("no column %s", identifier);
    }
    std::vector<int32_t> rowNumbers() {
        std::vector<int32_t> numbers;
        for (const auto& o : openings->openingList())
            numbers.push_back(o->rowNumber());
        return numbers;
    }
    void typeInCell(int row, const char* identifier, const QString& keys) {
        ::typeInCell(table(), row, column(identifier), keys);
    }
    // Adds a row and types its count, width and height.
    void addRow(const char* count, const char* width, const char* height) {
        button("addOpening")->click();
        const int row = table()->rowCount() - 1;
        typeInCell(row, "NumberOfOpenings", count);
        typeInCell(row, "Width", width);
        typeInCell(row, "Height", height);
    }
    // The texts of a row's cells, one space between.
    QString cells(int row, std::initializer_list<const char*> identifiers) {
        QStringList texts;
        for (const char* identifier : identifiers)
            texts << table()->item(row, column(identifier))->text();
        return texts.join(' ');
    }

private slots:
    void init() {
        openings = std::make_shared<ZOLOpenings>();
        wall = std::make_shared<ZOLWall>();
        screen = shownScreen<ZOLOpeningsEntryViewController>([this](auto& s) {
            s.setOpeningData(openings);
            s.setWallData(wall);
        });
    }
    void cleanup() { screen.reset(); }

    void addingAndRemovingNumbersTheRows() {
        for (int i = 0; i < 3; ++i)
            button("addOpening")->click();
        QCOMPARE(table()->rowCount(), 3);
        QCOMPARE(rowNumbers(), (std::vector<int32_t>{0, 1, 2}));
        // The table shows positions from 1 whatever is stored.
        QCOMPARE(cells(0, {"RowNumber"}), QString("1"));
        QCOMPARE(cells(2, {"RowNumber"}), QString("3"));
        const auto& fresh = *openings->openingList()[1];
        QCOMPARE(fresh.numberOfOpenings(), 0);
        QVERIFY(fresh.useSill());

        // Nothing selected: nothing removed.
        table()->clearSelection();
        button("removeOpening")->click();
        QCOMPARE(openings->openingList().size(), size_t(3));

        const auto second = openings->openingList()[1];
        table()->selectRow(0);
        button("removeOpening")->click();
        QCOMPARE(table()->rowCount(), 2);
        QCOMPARE(rowNumbers(), (std::vector<int32_t>{1, 2}));
        QCOMPARE(openings->openingList()[0], second);
        QCOMPARE(cells(0, {"RowNumber"}), QString("1"));
    }

    void cellEditsWriteTheRowAndTheTotals() {
        addRow("2", "36", "48");
        const auto& row = *openings->openingList()[0];
        QCOMPARE(row.numberOfOpenings(), 2);
        QCOMPARE(row.openingWidth(), 36.0);
        QCOMPARE(row.openingHeight(), 48.0);
        QCOMPARE(cells(0, {"Width", "NetSqFt", "TotalSqFt", "NetLF", "TotalLF"}),
                 QString("36.00 12.00 24.00 14.67 29.34"));
        expectTexts(screen.get(), "totalSqFt=24.00 Sq Ft|totalLF=29.34 LF");

        // Text is read by what it starts with; letters alone give 0.
        typeInCell(0, "Width", "30in");
        QCOMPARE(row.openingWidth(), 30.0);
        typeInCell(0, "NumberOfOpenings", "abc");
        QCOMPARE(row.numberOfOpenings(), 0);
        QCOMPARE(cells(0, {"NumberOfOpenings"}), QString("0"));
        expectTexts(screen.get(), "totalSqFt=0.00 Sq Ft");

        // The computed columns cannot be edited.
        QVERIFY(!(table()->item(0, column("NetSqFt"))->flags() & Qt::ItemIsEditable));
        QVERIFY(!(table()->item(0, column("RowNumber"))->flags() & Qt::ItemIsEditable));
    }

    void removeSillBoxIsTheInverseOfTheSill() {
        addRow("1", "36", "48");
        QTableWidgetItem* box = table()->item(0, column("RemoveSill"));
        QCOMPARE(box->checkState(), Qt::Unchecked);
        QCOMPARE(openings->getTotalLinearFeetOfBuck(), 14.67);

        box->setCheckState(Qt::Checked);
        const auto& row = *openings->openingList()[0];
        QVERIFY(!row.useSill());
        QCOMPARE(openings->getTotalLinearFeetOfBuck(), 11.67);
        // The sill changes the buck only: square and linear feet stay.
        QCOMPARE(cells(0, {"TotalSqFt", "TotalLF"}), QString("12.00 14.67"));

        box->setCheckState(Qt::Unchecked);
        QVERIFY(row.useSill());

        // A row loaded without a sill shows the box ticked.
        openings->openingList()[0]->setUseSill(false);
        screen->loadValues();
        QCOMPARE(table()->item(0, column("RemoveSill"))->checkState(), Qt::Checked);
    }

    void sendingCopiesTheTotalsToTheWall() {
        ScopedAlertRecorder alerts;
        wall->setSqftOpenings(5.0);
        button("sendOpeningDataToWall")->click();
        QCOMPARE(alertText(alerts->alerts.at(0)), QString("Nothing to send [OK] "));
        QCOMPARE(wall->sqftOpenings(), 5.0);

        addRow("2", "36", "48");
        table()->item(0, column("RemoveSill"))->setCheckState(Qt::Checked);

        QSignalSpy edited(screen.get(), &ZOLOpeningsEntryViewController::edited);
        button("sendOpeningDataToWall")->click();
        QCOMPARE(wall->sqftOpenings(), 24.0);
        QCOMPARE(wall->linearFeetBuck(), 2 * 11.67);
        QCOMPARE(edited.count(), 1);

        screen->setWallData(nullptr);
        button("sendOpeningDataToWall")->click();
        QCOMPARE(alerts->messages(),
                 (std::vector<std::string>{"Nothing to send", "Opening data sent to the Wall page",
                                           "There was an error accessing the Wall page"}));
    }

    void withoutAListTheTableIsEmpty() {
        screen->setOpeningData(nullptr);
        screen->loadValues();
        QCOMPARE(table()->rowCount(), 0);
        expectTexts(screen.get(), "totalSqFt=0.00 Sq Ft");
        button("addOpening")->click();
        button("removeOpening")->click();
        QCOMPARE(table()->rowCount(), 0);
    }
};

QTEST_MAIN(ZOLOpeningsEntryViewControllerTest)
#include "ZOLOpeningsEntryViewControllerTest.moc"
