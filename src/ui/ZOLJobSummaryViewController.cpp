#include "ui/ZOLJobSummaryViewController.h"
#include "ui_ZOLJobSummaryViewController.h"

#include "io/ZOLFileSaver.h"
#include "io/ZOLTemplateReader.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLCustomItemForm.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLInfoPopup.h"
#include "ui/ZOLJobSummaryTableModel.h"
#include "ui/ZOLTabToggle.h"

#include <QHeaderView>

namespace {
// Image indexes of the three information buttons.
constexpr int32_t kCustomItemInfo = 28;
constexpr int32_t kAdjustTabInfo = 29;
constexpr int32_t kTemplateInfo = 30;

std::vector<std::shared_ptr<ZOLCustomItem>> visibleLines(const ZOLWorkbook& workbook) {
    std::vector<std::shared_ptr<ZOLCustomItem>> lines;
    for (const auto& item : workbook.customItems())
        if (item && item->visible())
            lines.push_back(item);
    return lines;
}
} // namespace

ZOLJobSummaryViewController::ZOLJobSummaryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLJobSummaryViewController>()),
      linesModel_(new ZOLJobSummaryTableModel(this)) {
    ui_->setupUi(this);
    QTableView* table = ui_->summaryTable;
    table->setModel(linesModel_);
    QHeaderView* header = table->horizontalHeader();
    header->setSectionResizeMode(ZOLJobSummaryTableModel::Name, QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setMinimumSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("$000,000.00")) +
                                  24);
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    for (int column : {ZOLJobSummaryTableModel::Quantity, ZOLJobSummaryTableModel::Unit,
                       ZOLJobSummaryTableModel::UnitPrice, ZOLJobSummaryTableModel::TotalCost})
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);

    connect(ui_->addCustomItem, &QPushButton::clicked, this,
            &ZOLJobSummaryViewController::createCustomItem);
    connect(ui_->editItem, &QPushButton::clicked, this,
            &ZOLJobSummaryViewController::editCustomItem);
    connect(ui_->deleteItem, &QPushButton::clicked, this,
            &ZOLJobSummaryViewController::deleteCustomItem);
    connect(table, &QTableView::doubleClicked, this, &ZOLJobSummaryViewController::editCustomItem);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const bool selected = ui_->summaryTable->selectionModel()->hasSelection();
        ui_->editItem->setEnabled(selected);
        ui_->deleteItem->setEnabled(selected);
    });
    connect(ui_->adjustTabs, &QPushButton::clicked, this, &ZOLJobSummaryViewController::adjustTabs);
    connect(ui_->saveTemplate, &QPushButton::clicked, this,
            &ZOLJobSummaryViewController::saveTemplate);
    connect(ui_->loadTemplate, &QPushButton::clicked, this,
            &ZOLJobSummaryViewController::loadTemplate);
    connect(ui_->roundToFullBundles, &QCheckBox::toggled, this,
            &ZOLJobSummaryViewController::roundToFullBundlesChanged);
    for (const auto& [button, index] : {std::pair{ui_->customItemInfo, kCustomItemInfo},
                                        std::pair{ui_->adjustTabsInfo, kAdjustTabInfo},
                                        std::pair{ui_->templateInfo, kTemplateInfo}}) {
        const int32_t image = index;
        connect(button, &QToolButton::clicked, this, [this, image] { displayInfo(image); });
    }
    ui_->editItem->setEnabled(false);
    ui_->deleteItem->setEnabled(false);
}

ZOLJobSummaryViewController::~ZOLJobSummaryViewController() = default;

void ZOLJobSummaryViewController::setWorkbook(std::shared_ptr<ZOLWorkbook> workbook) {
    workbook_ = std::move(workbook);
}

void ZOLJobSummaryViewController::loadValues() {
    QTableView* table = ui_->summaryTable;
    const int selectedRow =
        table->selectionModel()->hasSelection() ? table->currentIndex().row() : -1;
    std::vector<std::shared_ptr<ZOLCustomItem>> lines;
    if (workbook_) {
        workbook_->generateCustomItems();
        lines = visibleLines(*workbook_);
        const QSignalBlocker blocker(ui_->roundToFullBundles);
        ui_->roundToFullBundles->setChecked(workbook_->roundToFullBundles());
    }

    table->clearSelection();
    linesModel_->showLines(std::move(lines));
    // The row the user worked on stays selected while it is there.
    if (selectedRow >= 0 && selectedRow < linesModel_->rowCount())
        table->selectRow(selectedRow);
    updateTotals();
}

void ZOLJobSummaryViewController::updateTotals() {
    if (!workbook_) {
        for (QLineEdit* field : {ui_->totalCost, ui_->grossSqFt, ui_->netSqFt})
            field->clear();
        return;
    }
    // Hidden lines count too: the total is the cost of every line the job holds.
    double total = 0.0;
    for (const auto& item : workbook_->customItems())
        if (item)
            total += item->cost() * item->quantity();
    ui_->totalCost->setText(ZOLJobSummaryTableModel::money(total));
    ui_->grossSqFt->setText(
        ZOLJobSummaryTableModel::decimal(workbook_->getTotalGrossSquareFeet(), false));
    ui_->netSqFt->setText(
        ZOLJobSummaryTableModel::decimal(workbook_->getTotalNetSquareFeet(), false));
}

std::shared_ptr<ZOLCustomItem> ZOLJobSummaryViewController::selectedLine() const {
    const QTableView* table = ui_->summaryTable;
    if (!workbook_ || !table->selectionModel()->hasSelection())
        return nullptr;
    const auto lines = visibleLines(*workbook_);
    const int row = table->currentIndex().row();
    if (row < 0 || static_cast<size_t>(row) >= lines.size())
        return nullptr;
    return lines[static_cast<size_t>(row)];
}

void ZOLJobSummaryViewController::createCustomItem() {
    currentlyEditingItem_.reset();
    displayCustomItemForm();
}

void ZOLJobSummaryViewController::editCustomItem() {
    currentlyEditingItem_ = selectedLine();
    if (!currentlyEditingItem_)
        return;
    if (currentlyEditingItem_->tiedToWorkbook() &&
        currentlyEditingItem_->calculatorType() == "Wall") {
        // The package's price is the sum of its parts' prices.
        currentlyEditingItem_.reset();
        ZOLAlerts::run("To adjust pricing of Wall Parts, please use the Edit Pricing tool from "
                       "the Workbook menu",
                       "", {"Ok"});
        return;
    }
    displayCustomItemForm();
}

void ZOLJobSummaryViewController::displayCustomItemForm() {
    if (!workbook_)
        return;
    ZOLCustomItemForm form(currentlyEditingItem_, window());
    if (form.exec() == QDialog::Accepted) {
        if (currentlyEditingItem_) {
            currentlyEditingItem_->setCost(form.pricePerUnit());
        } else {
            auto items = workbook_->customItems();
            items.push_back(form.customItem());
            workbook_->setCustomItems(std::move(items));
        }
        emit edited();
    }
    currentlyEditingItem_.reset();
    loadValues();
}

void ZOLJobSummaryViewController::deleteCustomItem() {
    const std::shared_ptr<ZOLCustomItem> line = selectedLine();
    if (!line)
        return;
    const std::string kind = line->calculatorType().value_or(std::string());
    const std::string message =
        line->tiedToWorkbook()
            ? "Deleting this item will set all " + kind + " items to hide. Continue?"
            : "Are you sure you want to delete this item?";
    if (ZOLAlerts::run(message, "", {"Yes", "No"}) != 0)
        return;

    if (line->tiedToWorkbook()) {
        // A generated line comes back with every regeneration: its kind is switched off.
        ZOLWorkbook& book = *workbook_;
        if (kind == "Wall")
            book.setSummarizeWall(false);
        else if (kind == "Rebar")
            book.setSummarizeRebar(false);
        else if (kind == "Concrete")
            book.setSummarizeConcrete(false);
        else if (kind == "Tilt")
            book.setSummarizeTilt(false);
        else if (kind == "ManHours")
            book.setSummarizeManHours(false);
        else
            line->setVisible(false);
    } else {
        auto items = workbook_->customItems();
        std::erase(items, line);
        workbook_->setCustomItems(std::move(items));
    }
    ui_->summaryTable->clearSelection();
    loadValues();
    emit edited();
}

void ZOLJobSummaryViewController::adjustTabs() {
    if (!workbook_)
        return;
    ZOLTabToggle window(this->window());
    ZOLWorkbook& book = *workbook_;
    window.setSwitches({book.summarizeWall(), book.summarizeRebar(), book.summarizeConcrete(),
                        book.summarizeTilt(), book.summarizeManHours()});
    window.exec();
    // Whatever closed the window, the switches stand as the user left them.
    const ZOLTabToggle::Switches switches = window.switches();
    book.setSummarizeWall(switches.wall);
    book.setSummarizeRebar(switches.rebar);
    book.setSummarizeConcrete(switches.concrete);
    book.setSummarizeTilt(switches.tilt);
    book.setSummarizeManHours(switches.manHours);
    loadValues();
    emit edited();
}

void ZOLJobSummaryViewController::roundToFullBundlesChanged(bool checked) {
    if (!workbook_ || workbook_->roundToFullBundles() == checked)
        return;
    workbook_->setRoundToFullBundles(checked);
    loadValues();
    emit edited();
}

void ZOLJobSummaryViewController::saveTemplate() {
    const QString path = ZOLFilePanels::saveFile(window(), tr("Save Template"), "zci",
                                                 tr("Job Summary Template.zci"));
    if (!path.isEmpty())
        saveTemplateFile(path);
    loadValues();
}

void ZOLJobSummaryViewController::saveTemplateFile(const QString& path) {
    if (!workbook_)
        return;
    ZOLFileAlerts::writeFile(path, workbook_->getCustomItemTemplateXMLString(),
                             ZOLFileKind::Template, "The template could not be saved.");
}

void ZOLJobSummaryViewController::loadTemplate() {
    const QString path = ZOLFilePanels::openFile(window(), tr("Load Template"), "zci");
    if (path.isEmpty()) {
        loadValues();
        return;
    }
    loadTemplateFile(path);
}

void ZOLJobSummaryViewController::loadTemplateFile(const QString& path) {
    const auto bytes = ZOLFileAlerts::readFile(path, ZOLFileKind::Template);
    if (bytes && workbook_ &&
        ZOLFileAlerts::accepted(path, ZOLFileKind::Template,
                                ZOLTemplateReader::readTemplateData(*bytes, *workbook_)))
        emit edited();
    loadValues();
}

void ZOLJobSummaryViewController::displayInfo(int32_t imageIndex) {
    ZOLInfoPopup::display(window(), imageIndex);
}
