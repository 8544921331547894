#include "ui/ZOLWorkbookSummaryViewController.h"

#include "io/ZOLFormat.h"
#include "model/ZOLWorkbook.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLWorkbookSummaryTableModel.h"
#include "ui_ZOLWorkbookSummaryViewController.h"

#include <QHeaderView>

ZOLWorkbookSummaryViewController::ZOLWorkbookSummaryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLWorkbookSummaryViewController>()),
      summaryModel_(new ZOLWorkbookSummaryTableModel(this)) {
    ui_->setupUi(this);
    ui_->summaryTable->setModel(summaryModel_);
    QHeaderView* header = ui_->summaryTable->horizontalHeader();
    header->setSectionResizeMode(ZOLWorkbookSummaryTableModel::Part, QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Room for five-figure money and weights, so the numbers do not crowd against each other.
    header->setMinimumSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("00000.00 lbs")) +
                                  24);
    ui_->summaryTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    for (int column = ZOLWorkbookSummaryTableModel::Quantity;
         column <= ZOLWorkbookSummaryTableModel::Weight; ++column)
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    connect(ui_->editPricing, &QPushButton::clicked, this,
            &ZOLWorkbookSummaryViewController::editPricingRequested);
}

ZOLWorkbookSummaryViewController::~ZOLWorkbookSummaryViewController() = default;

void ZOLWorkbookSummaryViewController::setWorkbook(std::shared_ptr<ZOLWorkbook> workbook) {
    workbook_ = std::move(workbook);
}

void ZOLWorkbookSummaryViewController::loadValues() {
    if (!workbook_) {
        summaryModel_->showSummary({});
        return;
    }
    Summary summary = summarize(*workbook_);
    ui_->grossSquareFeet->setText(qs(ZOLFormat::format("%.2f", summary.grossSquareFeet)));
    ui_->worksheetCount->setText(
        QString::number(static_cast<qlonglong>(workbook_->worksheets().size())));
    ui_->emptyNote->setVisible(summary.rows.empty());
    summaryModel_->showSummary(std::move(summary));
}
