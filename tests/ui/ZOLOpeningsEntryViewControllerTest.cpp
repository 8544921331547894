// The Openings tab driven through its widgets: adding and removing rows, editing cells in
// place, the remove-sill box, the totals and sending them to the wall.
#include "ui/ZOLOpeningsEntryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"
#include "ui/ZOLOpeningsTableModel.h"

class ZOLOpeningsEntryViewControllerTest : public ScreenTest<ZOLOpeningsEntryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLOpenings> openings;
    std::shared_ptr<ZOLWall> wall;

    using Column = ZOLOpeningsTableModel::Column;

    QTableView* table() { return screen->findChild<QTableView*>("openingsTable"); }
    QPushButton* button(const char* name) { return screen->findChild<QPushButton*>(name); }
    std::vector<int32_t> rowNumbers() {
        std::vector<int32_t> numbers;
        for (const auto& o : openings->openingList())
            numbers.push_back(o->rowNumber());
        return numbers;
    }
    // Adds a row and types its count, width and height.
    void addRow(const char* count, const char* width, const char* height) {
        button("addOpening")->click();
        const int row = rowCount(table()) - 1;
        typeInCell(table(), row, Column::NumberOfOpenings, count);
        typeInCell(table(), row, Column::Width, width);
        typeInCell(table(), row, Column::Height, height);
    }
    // The texts of a row's cells, one space between.
    QString cells(int row, std::initializer_list<Column> columns) {
        QStringList texts;
        for (Column column : columns)
            texts << cellText(table(), row, column);
        return texts.join(' ');
    }

private slots:
    void init() {
        openings = std::make_shared<ZOLOpenings>();
        wall = std::make_shared<ZOLWall>();
        showScreen([this](auto& s) {
            s.setOpeningData(openings);
            s.setWallData(wall);
        });
    }

    void addingAndRemovingNumbersTheRows() {
        for (int i = 0; i < 3; ++i)
            button("addOpening")->click();
        QCOMPARE(rowCount(table()), 3);
        QCOMPARE(rowNumbers(), (std::vector<int32_t>{0, 1, 2}));
        // The table shows positions from 1 whatever is stored.
        QCOMPARE(cells(0, {Column::RowNumber}), QString("1"));
        QCOMPARE(cells(2, {Column::RowNumber}), QString("3"));

        // Nothing selected: nothing removed.
        table()->clearSelection();
        button("removeOpening")->click();
        QCOMPARE(openings->openingList().size(), size_t(3));

        const auto second = openings->openingList()[1];
        table()->selectRow(0);
        button("removeOpening")->click();
        QCOMPARE(rowCount(table()), 2);
        QCOMPARE(rowNumbers(), (std::vector<int32_t>{1, 2}));
        QCOMPARE(openings->openingList()[0], second);
        QCOMPARE(cells(0, {Column::RowNumber}), QString("1"));
    }

    void cellEditsWriteTheRowAndTheTotals() {
        addRow("2", "36", "48");
        const auto& row = *openings->openingList()[0];
        QCOMPARE(row.numberOfOpenings(), 2);
        QCOMPARE(row.openingWidth(), 36.0);
        QCOMPARE(row.openingHeight(), 48.0);
        QCOMPARE(cells(0, {Column::Width, Column::NetSqFt, Column::TotalSqFt, Column::NetLF,
                           Column::TotalLF}),
                 QString("36.00 12.00 24.00 14.67 29.34"));
        expectTexts(screen.get(), "totalSqFt=24.00 Sq Ft|totalLF=29.34 LF");

        // Text is read by what it starts with; letters alone give 0.
        typeInCell(table(), 0, Column::Width, "30in");
        QCOMPARE(row.openingWidth(), 30.0);
        typeInCell(table(), 0, Column::NumberOfOpenings, "abc");
        QCOMPARE(row.numberOfOpenings(), 0);
        QCOMPARE(cells(0, {Column::NumberOfOpenings}), QString("0"));
        expectTexts(screen.get(), "totalSqFt=0.00 Sq Ft");

        // The computed columns cannot be edited.
        QVERIFY(!(cellFlags(table(), 0, Column::NetSqFt) & Qt::ItemIsEditable));
        QVERIFY(!(cellFlags(table(), 0, Column::RowNumber) & Qt::ItemIsEditable));
    }

    void removeSillBoxIsTheInverseOfTheSill() {
        addRow("1", "36", "48");
        QCOMPARE(cellCheckState(table(), 0, Column::RemoveSill), Qt::Unchecked);
        setCellCheckState(table(), 0, Column::RemoveSill, Qt::Checked);
        const auto& row = *openings->openingList()[0];
        QVERIFY(!row.useSill());
        // The sill changes the buck only (sent to the wall below): square and linear feet stay.
        QCOMPARE(cells(0, {Column::TotalSqFt, Column::TotalLF}), QString("12.00 14.67"));

        setCellCheckState(table(), 0, Column::RemoveSill, Qt::Unchecked);
        QVERIFY(row.useSill());

        // A row loaded without a sill shows the box ticked.
        openings->openingList()[0]->setUseSill(false);
        screen->loadValues();
        QCOMPARE(cellCheckState(table(), 0, Column::RemoveSill), Qt::Checked);
    }

    void sendingCopiesTheTotalsToTheWall() {
        ScopedAlertRecorder alerts;
        wall->setSqftOpenings(5.0);
        button("sendOpeningDataToWall")->click();
        QCOMPARE(alertText(alerts->alerts.at(0)), QString("Nothing to send [OK] "));
        QCOMPARE(wall->sqftOpenings(), 5.0);

        addRow("2", "36", "48");
        setCellCheckState(table(), 0, Column::RemoveSill, Qt::Checked);

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
        QCOMPARE(rowCount(table()), 0);
        expectTexts(screen.get(), "totalSqFt=0.00 Sq Ft");
        button("addOpening")->click();
        button("removeOpening")->click();
        QCOMPARE(rowCount(table()), 0);
    }
};

QTEST_MAIN(ZOLOpeningsEntryViewControllerTest)
#include "ZOLOpeningsEntryViewControllerTest.moc"
