#include "ui/ZOLJobSummaryTableModel.h"

#include "model/ZOLCustomItem.h"
#include "ui/ZOLQtText.h"

#include <QLocale>

namespace {

// Prices are in dollars wherever the program runs, as on the printed pages.
const QLocale& dollars() {
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

} // namespace

ZOLJobSummaryTableModel::ZOLJobSummaryTableModel(QObject* parent)
    : ZOLTableModel({{tr("Item")},
                     {tr("Quantity"), Qt::AlignRight | Qt::AlignVCenter},
                     {tr("Unit")},
                     {tr("Unit Price"), Qt::AlignRight | Qt::AlignVCenter},
                     {tr("Total Cost"), Qt::AlignRight | Qt::AlignVCenter}},
                    parent) {}

QString ZOLJobSummaryTableModel::money(double value) {
    return dollars().toCurrencyString(value, QStringLiteral("$"), 2);
}

QString ZOLJobSummaryTableModel::decimal(double value, bool trimZeros) {
    QString text = dollars().toString(value, 'f', 2);
    if (trimZeros) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

void ZOLJobSummaryTableModel::showLines(std::vector<std::shared_ptr<ZOLCustomItem>> lines) {
    lines_ = std::move(lines);
    showRows(static_cast<int>(lines_.size()));
}

QVariant ZOLJobSummaryTableModel::data(const QModelIndex& index, int role) const {
    if (!isShown(index) || static_cast<size_t>(index.row()) >= lines_.size() ||
        !lines_[static_cast<size_t>(index.row())])
        return {};
    const ZOLCustomItem& line = *lines_[static_cast<size_t>(index.row())];
    const int column = index.column();
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(column == Name || column == Unit
                                    ? Qt::AlignLeft | Qt::AlignVCenter
                                    : Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    switch (column) {
    case Name:
        return qs(line.name());
    case Quantity:
        return decimal(line.quantity(), true);
    case Unit:
        return qs(line.unit());
    case UnitPrice:
        return money(line.cost());
    default:
        return money(line.quantity() * line.cost());
    }
}

Qt::ItemFlags ZOLJobSummaryTableModel::flags(const QModelIndex& index) const {
    return isShown(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
