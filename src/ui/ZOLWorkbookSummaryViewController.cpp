#include "ui/ZOLWorkbookSummaryViewController.h"

#include "calc/ZOLWallCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "ui_ZOLWorkbookSummaryViewController.h"

#include <QHeaderView>
#include <QTableWidgetItem>

namespace {
constexpr int32_t kBlockSizes[] = {4, 6, 8, 10, 12};
constexpr int32_t kLastBlockType = 11;
constexpr int32_t kFirstAccessory = 12;
constexpr int32_t kLastAccessory = 16;
constexpr int32_t kClips = 13;

QString qs(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

double perSquareFoot(double cost, double grossSquareFeet) {
    return grossSquareFeet > 0.0 ? cost / grossSquareFeet : 0.0;
}
} // namespace

ZOLWorkbookSummaryViewController::Summary
ZOLWorkbookSummaryViewController::summarize(const ZOLWorkbook& workbook) {
    Summary summary;
    summary.grossSquareFeet = workbook.getTotalGrossSquareFeet();
    std::vector<std::shared_ptr<ZOLWall>> walls;
    for (const auto& sheet : workbook.worksheets())
        if (sheet && sheet->wallData())
            walls.push_back(sheet->wallData());
    const auto pricing = workbook.pricingData();
    auto price = [&pricing](int32_t type, int32_t size) {
        return pricing ? pricing->getPriceForItemType(type, size) : 0.0;
    };
    auto add = [&summary](Row row) {
        summary.totalQuantity = ZOLNumeric::wrapAdd(summary.totalQuantity, row.quantity);
        summary.totalCost += row.totalCost;
        summary.totalWeight += row.weight;
        summary.rows.push_back(std::move(row));
    };

    // Blocks, size by size, each summed over the walls of that size only.
    for (int32_t size : kBlockSizes) {
        bool used = false;
        for (const auto& wall : walls)
            used = used || wall->blockSize() == size;
        if (!used)
            continue;
        for (int32_t type = 0; type <= kLastBlockType; ++type) {
            if (!ZOLWallData::getValidSizeWithBlockType(type, size))
                continue;
            int32_t quantity = 0;
            for (const auto& wall : walls)
                if (wall->blockSize() == size)
                    quantity = ZOLNumeric::wrapAdd(quantity, wall->getPartCountWithPartType(type));
            if (quantity == 0)
                continue;
            Row row;
            row.name =
                ZOLFormat::format("%d\" %@", size, ZOLWallData::getPartNameWithBlockType(type));
            row.quantity = quantity;
            row.unitPrice = price(type, size);
            row.totalCost = quantity * row.unitPrice;
            row.squareFootCost = perSquareFoot(row.totalCost, summary.grossSquareFeet);
            row.weight = ZOLWallCalculator::calculateBlockWeightWithBlockSize(size, type, quantity);
            add(std::move(row));
        }
    }
    // Without a single block there is nothing to price: no accessories, no sign, no totals.
    if (summary.rows.empty())
        return summary;

    // Accessories from every wall whatever its size; the clips go by the bundle.
    for (int32_t type = kFirstAccessory; type <= kLastAccessory; ++type) {
        int32_t quantity = 0;
        for (const auto& wall : walls)
            quantity = ZOLNumeric::wrapAdd(quantity, type == kClips
                                                         ? wall->getTotalBundlesWithPartType(kClips)
                                                         : wall->getPartCountWithPartType(type));
        if (quantity == 0)
            continue;
        Row row;
        row.name = ZOLWallData::getPartNameWithBlockType(type).value_or(std::string());
        row.quantity = quantity;
        row.unitPrice = price(type, 4);
        row.totalCost = quantity * row.unitPrice;
        row.squareFootCost = perSquareFoot(row.totalCost, summary.grossSquareFeet);
        row.weight = ZOLWallCalculator::calculateBlockWeightWithBlockSize(4, type, quantity);
        add(std::move(row));
    }
    summary.squareFootCost = perSquareFoot(summary.totalCost, summary.grossSquareFeet);
    return summary;
}

ZOLWorkbookSummaryViewController::ZOLWorkbookSummaryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLWorkbookSummaryViewController>()) {
    ui_->setupUi(this);
    QHeaderView* header = ui_->summaryTable->horizontalHeader();
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Room for five-figure money and weights, so the numbers do not crowd against each other.
    header->setMinimumSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("00000.00 lbs")) +
                                  24);
    ui_->summaryTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    for (int column = 1; column < ui_->summaryTable->columnCount(); ++column) {
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        if (QTableWidgetItem* item = ui_->summaryTable->horizontalHeaderItem(column))
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    connect(ui_->editPricing, &QPushButton::clicked, this,
            &ZOLWorkbookSummaryViewController::editPricingRequested);
}

ZOLWorkbookSummaryViewController::~ZOLWorkbookSummaryViewController() = default;

void ZOLWorkbookSummaryViewController::setWorkbook(std::shared_ptr<ZOLWorkbook> workbook) {
    workbook_ = std::move(workbook);
}

void ZOLWorkbookSummaryViewController::loadValues() {
    QTableWidget* table = ui_->summaryTable;
    if (!workbook_) {
        table->setRowCount(0);
        return;
    }
    const Summary summary = summarize(*workbook_);
    ui_->grossSquareFeet->setText(qs(ZOLFormat::format("%.2f", summary.grossSquareFeet)));
    ui_->worksheetCount->setText(
        QString::number(static_cast<qlonglong>(workbook_->worksheets().size())));

    const bool empty = summary.rows.empty();
    ui_->emptyNote->setVisible(empty);
    const int lines = empty ? 0 : static_cast<int>(summary.rows.size()) + 2; // sign and totals
    table->setRowCount(lines);

    auto cell = [table](int row, int column, const QString& text, bool bold = false) {
        auto* item = new QTableWidgetItem(text);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setTextAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter
                                           : Qt::AlignRight | Qt::AlignVCenter);
        if (bold) {
            QFont font = item->font();
            font.setBold(true);
            item->setFont(font);
        }
        table->setItem(row, column, item);
    };
    auto money = [](double value) { return qs(ZOLFormat::format("$%.2f", value)); };
    auto pounds = [](double value) { return qs(ZOLFormat::format("%.2f lbs", value)); };

    int row = 0;
    for (const Row& line : summary.rows) {
        cell(row, 0, qs(line.name));
        cell(row, 1, qs(ZOLFormat::format("%d", line.quantity)));
        cell(row, 2, money(line.unitPrice));
        cell(row, 3, money(line.totalCost));
        cell(row, 4, money(line.squareFootCost));
        cell(row, 5, pounds(line.weight));
        ++row;
    }
    if (!empty) {
        // The job site sign comes free with every order and counts in no total.
        cell(row, 0, QString::fromLatin1(kSignName));
        cell(row, 1, QStringLiteral("1"));
        cell(row, 2, money(0.0));
        cell(row, 3, money(0.0));
        cell(row, 4, money(0.0));
        cell(row, 5, pounds(0.0));
        ++row;
        cell(row, 0, tr("Totals"), true);
        cell(row, 1, qs(ZOLFormat::format("%d", summary.totalQuantity)), true);
        cell(row, 2, QString());
        cell(row, 3, money(summary.totalCost), true);
        cell(row, 4, money(summary.squareFootCost), true);
        cell(row, 5, pounds(summary.totalWeight), true);
    }
}
