#include "ui/ZOLPricingWindowController.h"

#include "io/ZOLFileSaver.h"
#include "io/ZOLFormat.h"
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLText.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui_ZOLPricing.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include <optional>

namespace {
QString qs(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Price cells take what the entry fields take: typing is cleaned to digits and full stops
// as it happens, and the price is the number the text starts with.
class PriceDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QObject::connect(edit, &QLineEdit::textEdited, edit, [edit](const QString& text) {
            const auto cleaned = ZOLText::entryFieldText(text.toStdString());
            if (cleaned && qs(*cleaned) != text)
                edit->setText(qs(*cleaned));
        });
        return edit;
    }
};
// The earlier line of the list that answers the look-ups of `items[index]` first, if any: a
// workbook file's prices come after the list every workbook starts with, so after reopening a
// priced workbook its prices sit below lines of the same parts.
std::optional<size_t> shadowedBy(const std::vector<std::shared_ptr<ZOLPriceItem>>& items,
                                 size_t index) {
    const auto& item = items[index];
    for (size_t earlier = 0; earlier < index; ++earlier)
        if (items[earlier] &&
            ZOLPricing::itemAnswers(*items[earlier], item->partType(), item->partSize()))
            return earlier;
    return std::nullopt;
}
} // namespace

ZOLPricingWindowController::ZOLPricingWindowController(std::shared_ptr<ZOLPricing> pricingData,
                                                       QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLPricing>()),
      pricingData_(std::move(pricingData)) {
    ui_->setupUi(this);
    QHeaderView* header = ui_->priceTable->horizontalHeader();
    header->setSectionResizeMode(kPartColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(kPriceColumn, QHeaderView::Fixed);
    header->resizeSection(kPriceColumn, 120);
    if (QTableWidgetItem* item = ui_->priceTable->horizontalHeaderItem(kPriceColumn))
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ui_->priceTable->setItemDelegateForColumn(kPriceColumn, new PriceDelegate(ui_->priceTable));
    ui_->priceTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);

    connect(ui_->priceTable, &QTableWidget::itemChanged, this,
            &ZOLPricingWindowController::priceEdited);
    connect(ui_->openPricing, &QPushButton::clicked, this,
            &ZOLPricingWindowController::openPricing);
    connect(ui_->savePricing, &QPushButton::clicked, this,
            &ZOLPricingWindowController::savePricing);
    connect(ui_->useSavedPrices, &QPushButton::clicked, this,
            &ZOLPricingWindowController::useSavedPrices);
    connect(ui_->done, &QPushButton::clicked, this, &QDialog::accept);
    loadData();
    // Typing on an opened window goes into the first price.
    ui_->priceTable->setCurrentCell(0, kPriceColumn);
}

ZOLPricingWindowController::~ZOLPricingWindowController() = default;

void ZOLPricingWindowController::loadData() {
    loading_ = true;
    QTableWidget* table = ui_->priceTable;
    const auto& items =
        pricingData_ ? pricingData_->priceItems() : std::vector<std::shared_ptr<ZOLPriceItem>>{};
    table->setRowCount(static_cast<int>(items.size()));
    for (size_t i = 0; i < items.size(); ++i) {
        const int row = static_cast<int>(i);
        auto* part = new QTableWidgetItem(qs(items[i]->getPartText()));
        part->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        table->setItem(row, kPartColumn, part);
        auto* price = new QTableWidgetItem(qs(ZOLFormat::format("%.2f", items[i]->price())));
        price->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
        price->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table->setItem(row, kPriceColumn, price);
        // A line that a line above overrides would take a price and change nothing: it is
        // shown greyed and cannot be edited, and says which line sets the price.
        if (const auto by = shadowedBy(items, i)) {
            price->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            const QString tip = tr("Not used: line %1 (%2) sets the price of this part.")
                                    .arg(*by + 1)
                                    .arg(qs(items[*by]->getPartText()));
            for (QTableWidgetItem* cell : {part, price}) {
                cell->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
                cell->setToolTip(tip);
            }
        }
    }
    ui_->useSavedPrices->setEnabled(pricingData_ && !pricingData_->savedItems().empty());
    loading_ = false;
}

void ZOLPricingWindowController::priceEdited(QTableWidgetItem* item) {
    if (loading_ || !pricingData_ || item->column() != kPriceColumn)
        return;
    const auto& items = pricingData_->priceItems();
    const auto row = static_cast<size_t>(item->row());
    if (row >= items.size())
        return;
    const std::string text = item->text().toStdString();
    // An emptied cell keeps the price it had.
    if (!text.empty())
        items[row]->setPrice(ZOLText::leadingDouble(text));
    loading_ = true;
    item->setText(qs(ZOLFormat::format("%.2f", items[row]->price())));
    loading_ = false;
}

void ZOLPricingWindowController::openPricing() {
    const QString path = ZOLFilePanels::openFile(this, tr("Open Price List"), "zp");
    if (path.isEmpty()) {
        loadData();
        return;
    }
    openPricingFile(path);
}

void ZOLPricingWindowController::openPricingFile(const QString& path) {
    if (auto bytes = ZOLFileAlerts::readFile(path, ZOLFileKind::PriceList); bytes && pricingData_)
        ZOLFileAlerts::accepted(path, ZOLFileKind::PriceList,
                                ZOLPriceFileReader::readPriceData(*bytes, *pricingData_));
    loadData();
}

void ZOLPricingWindowController::savePricing() {
    const QString path =
        ZOLFilePanels::saveFile(this, tr("Save Price List"), "zp", tr("Price List.zp"));
    if (!path.isEmpty())
        savePricingFile(path);
}

void ZOLPricingWindowController::savePricingFile(const QString& path) {
    if (!pricingData_)
        return;
    ZOLFileAlerts::writeFile(path, pricingData_->getFullXMLString(), ZOLFileKind::PriceList,
                             "The price list could not be saved.");
}

void ZOLPricingWindowController::useSavedPrices() {
    if (pricingData_ && pricingData_->useSavedItems())
        loadData();
}
