#include "ui/ZOLPriceTableModel.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLQtText.h"

namespace {
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

ZOLPriceTableModel::ZOLPriceTableModel(QObject* parent)
    : ZOLTableModel({{tr("Part")}, {tr("Price"), Qt::AlignRight | Qt::AlignVCenter}}, parent) {}

void ZOLPriceTableModel::setPricingData(std::shared_ptr<ZOLPricing> pricingData) {
    pricingData_ = std::move(pricingData);
}

void ZOLPriceTableModel::reload(const QBrush& shadowedText) {
    shadowedText_ = shadowedText;
    shadowedBy_.clear();
    if (pricingData_) {
        const auto& items = pricingData_->priceItems();
        for (size_t i = 0; i < items.size(); ++i)
            shadowedBy_.push_back(shadowedBy(items, i));
    }
    showRows(static_cast<int>(shadowedBy_.size()));
}

bool ZOLPriceTableModel::isListed(const QModelIndex& index) const {
    return isShown(index) && pricingData_ &&
           static_cast<size_t>(index.row()) < pricingData_->priceItems().size() &&
           static_cast<size_t>(index.row()) < shadowedBy_.size();
}

QVariant ZOLPriceTableModel::data(const QModelIndex& index, int role) const {
    if (!isListed(index))
        return {};
    const auto row = static_cast<size_t>(index.row());
    const auto& items = pricingData_->priceItems();
    const std::optional<size_t> by = shadowedBy_[row];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return index.column() == Part ? qs(items[row]->getPartText())
                                      : qs(ZOLFormat::format("%.2f", items[row]->price()));
    case Qt::TextAlignmentRole:
        if (index.column() == Price)
            return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    // A line that a line above overrides would take a price and change nothing.
    case Qt::ForegroundRole:
        return by ? QVariant(shadowedText_) : QVariant();
    case Qt::ToolTipRole:
        if (!by || *by >= items.size())
            return {};
        return tr("Not used: line %1 (%2) sets the price of this part.")
            .arg(*by + 1)
            .arg(qs(items[*by]->getPartText()));
    default:
        return {};
    }
}

Qt::ItemFlags ZOLPriceTableModel::flags(const QModelIndex& index) const {
    if (!isListed(index))
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == Price && !shadowedBy_[static_cast<size_t>(index.row())])
        return flags | Qt::ItemIsEditable;
    return flags;
}

bool ZOLPriceTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!isListed(index) || index.column() != Price || role != Qt::EditRole)
        return false;
    const QString typed = value.toString();
    // Text given back as the cell shows it is no edit.
    if (typed == data(index, role).toString())
        return true;
    const std::string text = typed.toStdString();
    // An emptied cell keeps the price it had.
    if (!text.empty())
        pricingData_->priceItems()[static_cast<size_t>(index.row())]->setPrice(
            ZOLText::leadingDouble(text));
    emit dataChanged(index, index);
    emit priceEdited();
    return true;
}
