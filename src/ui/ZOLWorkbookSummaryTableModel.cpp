#include "ui/ZOLWorkbookSummaryTableModel.h"

#include "io/ZOLFormat.h"
#include "ui/ZOLQtText.h"

#include <QFont>

namespace {

QString money(double value) {
    return qs(ZOLFormat::format("$%.2f", value));
}

QString pounds(double value) {
    return qs(ZOLFormat::format("%.2f lbs", value));
}

constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;

} // namespace

ZOLWorkbookSummaryTableModel::ZOLWorkbookSummaryTableModel(QObject* parent)
    : ZOLTableModel({{tr("Part")},
                     {tr("Quantity"), kRight},
                     {tr("Unit Price"), kRight},
                     {tr("Total Cost"), kRight},
                     {tr("Sq Ft Cost"), kRight},
                     {tr("Approx. Weight"), kRight}},
                    parent) {}

void ZOLWorkbookSummaryTableModel::showSummary(ZOLWorkbookSummary::Summary summary) {
    summary_ = std::move(summary);
    // The sign and the totals follow the lines.
    showRows(summary_.rows.empty() ? 0 : static_cast<int>(summary_.rows.size()) + 2);
}

QString ZOLWorkbookSummaryTableModel::cellText(int row, int column) const {
    const auto lines = static_cast<int>(summary_.rows.size());
    if (row < lines) {
        const ZOLWorkbookSummary::Row& line = summary_.rows[static_cast<size_t>(row)];
        switch (column) {
        case Part:
            return qs(line.name);
        case Quantity:
            return qs(ZOLFormat::format("%d", line.quantity));
        case UnitPrice:
            return money(line.unitPrice);
        case TotalCost:
            return money(line.totalCost);
        case SquareFootCost:
            return money(line.squareFootCost);
        default:
            return pounds(line.weight);
        }
    }
    if (row == lines) {
        // The job site sign comes free with every order and counts in no total.
        switch (column) {
        case Part:
            return QString::fromLatin1(ZOLWorkbookSummary::kSignName);
        case Quantity:
            return QStringLiteral("1");
        case Weight:
            return pounds(0.0);
        default:
            return money(0.0);
        }
    }
    switch (column) {
    case Part:
        return tr("Totals");
    case Quantity:
        return qs(ZOLFormat::format("%d", summary_.totalQuantity));
    case UnitPrice:
        return {};
    case TotalCost:
        return money(summary_.totalCost);
    case SquareFootCost:
        return money(summary_.squareFootCost);
    default:
        return pounds(summary_.totalWeight);
    }
}

QVariant ZOLWorkbookSummaryTableModel::data(const QModelIndex& index, int role) const {
    if (!isShown(index))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return static_cast<int>(index.column() == Part ? Qt::AlignLeft | Qt::AlignVCenter
                                                       : Qt::AlignRight | Qt::AlignVCenter);
    case Qt::FontRole:
        // The totals line is bold, but for its empty unit price.
        if (index.row() == rowCount() - 1 && index.column() != UnitPrice) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags ZOLWorkbookSummaryTableModel::flags(const QModelIndex& index) const {
    return isShown(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
