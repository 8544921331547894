// The Job Summary tab through its buttons, its form (typing cleaned as in every entry field,
// Return adds, Escape cancels) and its windows: the lines it shows and totals, deleting and
// editing lines, the estimates that contribute, the package in full bundles, templates, and the
// printed page that must list what the tab lists.
#include "ui/ZOLJobSummaryViewController.h"
#include "UiTestSupport.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"

namespace {
// Priced straight blocks, tilt-up panels and labour: the package, tilt-up and man-hours lines.
std::shared_ptr<ZOLWorkbook> house() {
    auto workbook = std::make_shared<ZOLWorkbook>();
    const auto& sheet = workbook->worksheets()[0];
    sheet->wallData()->setWallLength(103.0); // 159 straight blocks, 168 in full bundles
    sheet->tiltData()->setWallHeight(10.0);
    sheet->tiltData()->setWallLength(100.0);
    sheet->manHourData()->setSquareFeetOfWall(2400.0);
    sheet->manHourData()->setLaborCost(30.0);
    workbook->pricingData()->setPriceItems({std::make_shared<ZOLPriceItem>(8, 0, 23.40)});
    return workbook;
}

std::shared_ptr<ZOLCustomItem> ownLine(const char* name, double quantity, double cost,
                                       bool visible = true) {
    auto line = std::make_shared<ZOLCustomItem>();
    line->setName(name);
    line->setQuantity(quantity);
    line->setUnit("Each");
    line->setCost(cost);
    line->setVisible(visible);
    return line;
}

// Types a line into the form and accepts it with Return.
void fillForm(QWidget* form, const QString& fields) {
    for (const QString& field : fields.split('|'))
        type(control<QLineEdit>(form, field.section('=', 0, 0)), field.section('=', 1));
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
}
} // namespace

class ZOLJobSummaryViewControllerTest : public ScreenTest<ZOLJobSummaryViewController> {
    Q_OBJECT

    std::shared_ptr<ZOLWorkbook> workbook;
    FieldAlerts alerts;

    QTableView* table() { return control<QTableView>("summaryTable"); }
    QString cells(int row, int columns = 1) {
        QStringList texts;
        for (int column = 0; column < columns; ++column)
            texts << cellText(table(), row, column);
        return texts.join(" | ");
    }
    QString names() {
        QStringList shown;
        for (int row = 0; row < rowCount(table()); ++row)
            shown << cells(row);
        return shown.join(", ");
    }
    void select(const QString& name) {
        for (int row = 0; row < rowCount(table()); ++row)
            if (cells(row) == name)
                table()->selectRow(row);
    }
    double totalCost() {
        return QLocale(QLocale::English, QLocale::UnitedStates)
            .toDouble(field("totalCost")->text().remove('$'));
    }

private slots:
    void init() {
        alerts.renew();
        workbook = house();
        showScreen([this](auto& s) { s.setWorkbook(workbook); });
    }

    void showsTheVisibleLinesAndCountsHiddenOnesInTheTotal() {
        // Rebar and concrete add no lines for a house without them.
        QCOMPARE(names(), QString("Zol Blocks Package, Quarto Tilt Parts, Total Man Hours"));
        QVERIFY(cellData(table(), 0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        const double before = totalCost();
        workbook->setCustomItems({ownLine("Crane", 2, 10.0, false), ownLine("Permit", 1.255, 2e3)});
        workbook->setSummarizeTilt(false); // a generated kind hidden, as Delete does
        screen->loadValues();
        QCOMPARE(cells(1, 5), QString("Permit | 1.25 | Each | $2,000.00 | $2,510.00"));
        QVERIFY(!names().contains("Crane"));
        QCOMPARE(totalCost(), before + 20.0 + 2510.0);
        // The printed page lists the lines the tab shows, and no others.
        const QString page = QString::fromStdString(ZOLPrintData::getJobSummaryHTML(workbook));
        QStringList printed;
        for (const auto& line : QRegularExpression("<tr>\n<td>([^<]*)</td>").globalMatch(page))
            printed << line.captured(1);
        QCOMPARE(printed.join(", "), names());

        // The package in full bundles (the rounding itself is the summary lines' to pin); the
        // switch is the workbook's.
        QSignalSpy edited(screen.get(), &ZOLJobSummaryViewController::edited);
        control<QCheckBox>("roundToFullBundles")->click();
        QCOMPARE(workbook->customItems()[0]->cost(), 168 * 23.40);
        QCOMPARE(edited.count(), 1);
    }

    void deletingHidesAGeneratedKindAndRemovesAnOwnLine() {
        workbook->setCustomItems({ownLine("Permit", 1, 425.0)});
        screen->loadValues();
        select("Quarto Tilt Parts");
        alerts->answer(1);
        screen->deleteCustomItem();
        QCOMPARE(
            alerts->last(),
            QString("Deleting this item will set all Tilt items to hide. Continue? [Yes|No] "));
        QVERIFY(workbook->summarizeTilt());
        select("Quarto Tilt Parts");
        screen->deleteCustomItem();
        QVERIFY(!workbook->summarizeTilt());
        QCOMPARE(names(), QString("Zol Blocks Package, Permit, Total Man Hours"));

        select("Permit");
        screen->deleteCustomItem();
        QCOMPARE(alerts->last(), QString("Are you sure you want to delete this item? [Yes|No] "));
        QCOMPARE(names(), QString("Zol Blocks Package, Total Man Hours"));
        QCOMPARE(workbook->customItems().size(), size_t(3)); // the tilt-up line stays, hidden

        // Without a selected row the commands do nothing.
        table()->clearSelection();
        screen->deleteCustomItem();
        screen->editCustomItem();
        QCOMPARE(alerts->alerts.size(), size_t(3));
    }

    void theWallLineIsPricedFromThePriceListOtherLinesAreAddedAndEditedInTheForm() {
        int forms = 0;
        whenModalShows([&forms](QWidget* form) {
            ++forms;
            // A generated line keeps its name and quantity; its price takes the focus.
            QVERIFY(control<QLineEdit>(form, "name")->isReadOnly());
            QCOMPARE(form->focusWidget(), control<QLineEdit>(form, "pricePerUnit"));
            QTest::keyClick(form->focusWidget(), Qt::Key_Escape);
        });
        select("Zol Blocks Package");
        screen->editCustomItem();
        QCOMPARE(alerts->last(), QString("To adjust pricing of Wall Parts, please use the Edit "
                                         "Pricing tool from the Workbook menu [Ok] "));
        QCOMPARE(forms, 0);
        select("Total Man Hours");
        screen->editCustomItem();
        QCOMPARE(forms, 1);

        // An own line is added and edited in the form; cancelling changes nothing.
        whenModalShows([](QWidget* form) {
            auto* name = control<QLineEdit>(form, "name");
            QCOMPARE(form->focusWidget(), name);
            QTest::keyClick(name, Qt::Key_Return); // no name, no line
            fillForm(form, "name=Building permit|quantity=1a|unit=Each|pricePerUnit=4x25");
        });
        screen->createCustomItem();
        const int row = rowCount(table()) - 1;
        QCOMPARE(cells(row, 5), QString("Building permit | 1 | Each | $425.00 | $425.00"));
        const auto line = workbook->customItems().back();
        QVERIFY(!line->tiedToWorkbook() && line->visible());

        // A double-click edits the row in the form, which shows the line.
        whenModalShows([](QWidget* form) {
            expectTexts(form, "name=Building permit|quantity=1|unit=Each|pricePerUnit=425.00");
            fillForm(form, "pricePerUnit=450");
        });
        const QPoint cell = table()->visualRect(table()->model()->index(row, 0)).center();
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(line->cost(), 450.0);

        const std::string before = workbook->getCustomItemTemplateXMLString();
        whenModalShows([](QWidget* form) {
            type(control<QLineEdit>(form, "name"), "Crane");
            QTest::keyClick(form->focusWidget(), Qt::Key_Escape);
        });
        screen->createCustomItem();
        QCOMPARE(workbook->getCustomItemTemplateXMLString(), before);
    }

    void theEstimatesWindowAppliesItsSwitchesHoweverItIsClosed() {
        const std::tuple<bool, bool, QString> closings[] = {
            {true, false, "Quarto Tilt Parts, Total Man Hours"},
            {false, true, "Zol Blocks Package, Quarto Tilt Parts, Total Man Hours"}};
        for (const auto& [byOk, wall, shown] : closings) {
            whenModalShows([ok = byOk](QWidget* window) {
                control<QCheckBox>(window, "summarizeWall")->click();
                if (ok)
                    control<QPushButton>(window, "ok")->click();
                else
                    window->close(); // the close box
            });
            screen->adjustTabs();
            QCOMPARE(workbook->summarizeWall(), wall);
            QCOMPARE(names(), shown);
        }
    }

    void templatesCarryTheLinesToAnotherJob() {
        QTemporaryDir dir;
        const QString path = dir.filePath("house.zci");
        workbook->setCustomItems({ownLine("Permit", 1, 425.0), ownLine("Dumpster", 2, 180.0)});
        screen->loadValues();
        ScriptedPanels panels({path, path});
        screen->saveTemplate();

        auto fresh = std::make_shared<ZOLWorkbook>();
        screen->setWorkbook(fresh);
        screen->loadTemplate();
        QCOMPARE(panels.requests, QStringList({"Save Template *.zci", "Load Template *.zci"}));
        QVERIFY(alerts->alerts.empty());
        QCOMPARE(names(), QString("Permit, Dumpster"));
        QCOMPARE(cells(0, 5), QString("Permit | 1 | Each | $425.00 | $425.00"));
    }
};

QTEST_MAIN(ZOLJobSummaryViewControllerTest)
#include "ZOLJobSummaryViewControllerTest.moc"
