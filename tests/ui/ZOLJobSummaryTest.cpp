// The Job Summary tab through its buttons, its form and its windows: the lines it shows and
// totals, deleting and editing generated and own lines, the estimates that contribute, the
// package in full bundles, templates, and the printed page that must show what the tab shows.
#include "UiTestSupport.h"
#include "io/ZOLFormat.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLPrintData.h"
#include "ui/ZOLCustomItemForm.h"
#include "ui/ZOLJobSummaryViewController.h"

namespace {
// A wall with priced straight blocks, tilt-up panels and labour: the package, tilt-up and
// man-hours lines show.
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

double dollars(const QString& text) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toDouble(QString(text).remove('$'));
}
} // namespace

class ZOLJobSummaryTest : public QObject {
    Q_OBJECT

    std::shared_ptr<ZOLWorkbook> workbook;
    std::unique_ptr<ZOLJobSummaryViewController> screen;
    std::shared_ptr<FieldAlertRecorder> alerts;
    std::shared_ptr<ZOLAlertPresenter> previous;

    QTableWidget* table() { return control<QTableWidget>(screen.get(), "summaryTable"); }
    QString names() {
        QStringList shown;
        for (int row = 0; row < table()->rowCount(); ++row)
            shown << table()->item(row, 0)->text();
        return shown.join(", ");
    }
    QString rowText(int row) {
        QStringList cells;
        for (int column = 0; column < table()->columnCount(); ++column)
            cells << table()->item(row, column)->text();
        return cells.join(" | ");
    }
    int select(const QString& name) {
        for (int row = 0; row < table()->rowCount(); ++row)
            if (table()->item(row, 0)->text() == name) {
                table()->selectRow(row);
                return row;
            }
        qFatal("no line %s", qPrintable(name));
    }
    QString totalCost() { return control<QLineEdit>(screen.get(), "totalCost")->text(); }

private slots:
    void init() {
        alerts = std::make_shared<FieldAlertRecorder>();
        previous = ZOLAlerts::setPresenter(alerts);
        workbook = house();
        screen = std::make_unique<ZOLJobSummaryViewController>();
        screen->setWorkbook(workbook);
        screen->loadValues();
        screen->show();
    }
    void cleanup() {
        screen.reset();
        ZOLAlerts::setPresenter(previous);
    }

    void showsTheVisibleLinesAndCountsHiddenOnesInTheTotal() {
        // Rebar and concrete add no lines for a house without them.
        QCOMPARE(names(), QString("Zol Blocks Package, Quarto Tilt Parts, Total Man Hours"));
        QCOMPARE(rowText(1), QString("Quarto Tilt Parts | 760 | Parts | $0.00 | $0.00"));
        QVERIFY(table()->item(0, 1)->textAlignment() & Qt::AlignRight);
        const double before = dollars(totalCost());

        workbook->setCustomItems({ownLine("Crane", 2, 10.0, false), ownLine("Permit", 1.255, 2e3)});
        screen->loadValues();
        QCOMPARE(rowText(1), QString("Permit | 1.25 | Each | $2,000.00 | $2,510.00"));
        QVERIFY(!names().contains("Crane"));
        QCOMPARE(dollars(totalCost()), before + 20.0 + 2510.0);

        // The package in full bundles costs more; the switch is the workbook's.
        QSignalSpy edited(screen.get(), &ZOLJobSummaryViewController::edited);
        QCOMPARE(workbook->customItems()[0]->cost(), 159 * 23.40);
        control<QCheckBox>(screen.get(), "roundToFullBundles")->click();
        QVERIFY(workbook->roundToFullBundles());
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

    void theWallLineIsPricedFromThePriceListOtherLinesInTheForm() {
        int forms = 0;
        whenModalShows([&forms](QWidget* modal) {
            ++forms;
            QTest::keyClick(modal->focusWidget(), Qt::Key_Escape);
        });
        select("Zol Blocks Package");
        screen->editCustomItem();
        QCOMPARE(alerts->last(), QString("To adjust pricing of Wall Parts, please use the Edit "
                                         "Pricing tool from the Workbook menu [Ok] "));
        QCOMPARE(forms, 0);
        select("Total Man Hours");
        screen->editCustomItem();
        QCOMPARE(forms, 1);
    }

    void linesAreAddedAndEditedInTheFormAndCancellingChangesNothing() {
        whenModalShows([](QWidget* form) {
            type(control<QLineEdit>(form, "name"), "Building permit");
            type(control<QLineEdit>(form, "quantity"), "1");
            type(control<QLineEdit>(form, "unit"), "Each");
            type(control<QLineEdit>(form, "pricePerUnit"), "425");
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        screen->createCustomItem();
        const int row = table()->rowCount() - 1;
        QCOMPARE(rowText(row), QString("Building permit | 1 | Each | $425.00 | $425.00"));
        const auto line = workbook->customItems().back();
        QVERIFY(!line->tiedToWorkbook() && line->visible());

        // A double-click edits the row; the form shows the line.
        whenModalShows([](QWidget* form) {
            expectTexts(form, "name=Building permit|quantity=1|unit=Each|pricePerUnit=425.00");
            type(control<QLineEdit>(form, "pricePerUnit"), "450");
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        const QRect cell = table()->visualItemRect(table()->item(row, 0));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(line->cost(), 450.0);

        const std::string before = workbook->getCustomItemTemplateXMLString();
        whenModalShows([](QWidget* form) {
            type(control<QLineEdit>(form, "name"), "Crane");
            QTest::keyClick(form->focusWidget(), Qt::Key_Escape);
        });
        screen->createCustomItem();
        QCOMPARE(workbook->getCustomItemTemplateXMLString(), before);
    }

    void theFormWorksFromTheKeyboard() {
        ZOLCustomItemForm form(nullptr);
        form.show();
        auto* name = control<QLineEdit>(&form, "name");
        QCOMPARE(form.focusWidget(), name);
        // Return does nothing until the line has a name.
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(form.isVisible());
        type(name, "Dumpster");
        const std::tuple<const char*, const char*, const char*> keystrokes[] = {
            {"quantity", "2a", "2"}, {"pricePerUnit", "1x2.5", "12.5"}, {"pricePerUnit", "$", "0"}};
        for (const auto& [field, keys, shown] : keystrokes) {
            type(control<QLineEdit>(&form, field), keys);
            QCOMPARE(control<QLineEdit>(&form, field)->text(), QString(shown));
        }
        type(control<QLineEdit>(&form, "pricePerUnit"), "180");
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(*form.customItem()->name(), std::string("Dumpster"));
        QCOMPARE(form.customItem()->quantity(), 2.0);
        QCOMPARE(form.customItem()->cost(), 180.0);

        // A generated line keeps its name and quantity; Escape leaves it as it was.
        const auto hours = workbook->customItems().back();
        ZOLCustomItemForm edit(hours);
        edit.show();
        QVERIFY(control<QLineEdit>(&edit, "name")->isReadOnly());
        QCOMPARE(edit.focusWidget(), control<QLineEdit>(&edit, "pricePerUnit"));
        type(control<QLineEdit>(&edit, "unit"), "Days");
        QTest::keyClick(edit.focusWidget(), Qt::Key_Escape);
        QCOMPARE(edit.result(), int(QDialog::Rejected));
        QCOMPARE(*hours->unit(), std::string("Hours"));
    }

    void theEstimatesWindowAppliesItsSwitchesHoweverItIsClosed() {
        const std::tuple<const char*, bool, QString> closings[] = {
            {"ok", false, "Quarto Tilt Parts, Total Man Hours"},
            {nullptr, true, "Zol Blocks Package, Quarto Tilt Parts, Total Man Hours"}};
        for (const auto& [button, wall, shown] : closings) {
            whenModalShows([button = button](QWidget* window) {
                auto* box = control<QCheckBox>(window, "summarizeWall");
                box->click();
                if (button)
                    control<QPushButton>(window, button)->click();
                else
                    QTest::keyClick(box, Qt::Key_Escape);
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
        {
            ScriptedPanels panels({path});
            screen->saveTemplate();
            QCOMPARE(panels.requests, QStringList{"Save Template *.zci"});
        }

        auto fresh = std::make_shared<ZOLWorkbook>();
        screen->setWorkbook(fresh);
        screen->loadValues();
        QCOMPARE(names(), QString());
        {
            ScriptedPanels panels({path});
            screen->loadTemplate();
        }
        QVERIFY(alerts->alerts.empty());
        QCOMPARE(names(), QString("Permit, Dumpster"));
        QCOMPARE(rowText(0), QString("Permit | 1 | Each | $425.00 | $425.00"));
        QCOMPARE(fresh->customItems().size(), size_t(5)); // the generated lines came along

        // Something that is no template is reported and changes nothing.
        writeAll(dir.filePath("photo.zci"), QByteArray("\x89PNG\r\n\x1a\n\0\0", 10));
        screen->loadTemplateFile(dir.filePath("photo.zci"));
        QCOMPARE(alerts->last(), QString("There was an error opening the file. The file may be "
                                         "corrupted or of the wrong format. [OK] "));
        QCOMPARE(names(), QString("Permit, Dumpster"));
    }

    void thePrintedJobSummaryShowsTheLinesOfTheTab() {
        workbook->setCustomItems({ownLine("Permit", 1, 425.0), ownLine("Crane", 2, 10.0, false)});
        workbook->setSummarizeTilt(false);
        screen->loadValues();
        const std::string page = ZOLPrintData::getJobSummaryHTML(workbook);
        int printed = 0;
        for (size_t at = page.find("<tr>\n<td>"); at != std::string::npos;
             at = page.find("<tr>\n<td>", at + 1))
            ++printed;
        QCOMPARE(printed, table()->rowCount());
        for (const auto& line : workbook->customItems())
            if (line->visible())
                QVERIFY(page.find(ZOLFormat::format("<td>%@</td>\n<td>%.2f</td>", line->name(),
                                                    line->quantity())) != std::string::npos);
    }
};

QTEST_MAIN(ZOLJobSummaryTest)
#include "ZOLJobSummaryTest.moc"
