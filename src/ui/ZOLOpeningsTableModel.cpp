#include "ui/ZOLOpeningsTableModel.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "ui/ZOLQtText.h"

ZOLOpeningsTableModel::ZOLOpeningsTableModel(QObject* parent)
    : ZOLTableModel({{tr("#")},
                     {tr("Count")},
                     {tr("Width (in)")},
                     {tr("Height (in)")},
                     {tr("Remove Sill")},
                     {tr("Net Sq Ft")},
                     {tr("Total Sq Ft")},
                     {tr("Net LF")},
                     {tr("Total LF")}},
                    parent) {}

void ZOLOpeningsTableModel::setOpeningData(std::shared_ptr<ZOLOpenings> openingData) {
    openingData_ = std::move(openingData);
}

void ZOLOpeningsTableModel::reload() {
    showRows(openingData_ ? static_cast<int>(openingData_->openingList().size()) : 0);
}

QString ZOLOpeningsTableModel::cellText(int row, int column) const {
    const ZOLOpening& o = *openingData_->openingList()[static_cast<size_t>(row)];
    switch (column) {
    case RowNumber:
        return qs(ZOLFormat::format("%ld", static_cast<long>(row) + 1));
    case NumberOfOpenings:
        return qs(ZOLFormat::format("%d", o.numberOfOpenings()));
    case Width:
        return qs(ZOLFormat::format("%.2f", o.openingWidth()));
    case Height:
        return qs(ZOLFormat::format("%.2f", o.openingHeight()));
    case NetSqFt:
        return qs(ZOLFormat::format("%.2f", o.getNetSquareFeet()));
    case TotalSqFt:
        return qs(ZOLFormat::format("%.2f", o.getTotalSquareFeet()));
    case NetLF:
        return qs(ZOLFormat::format("%.2f", o.getNetLinearFeet()));
    case TotalLF:
        return qs(ZOLFormat::format("%.2f", o.getTotalLinearFeet()));
    default:
        return {};
    }
}

QVariant ZOLOpeningsTableModel::data(const QModelIndex& index, int role) const {
    if (!isShown(index) || !openingData_ ||
        static_cast<size_t>(index.row()) >= openingData_->openingList().size())
        return {};
    if (index.column() == RemoveSill) {
        // Worded as removing the sill: ticked when the opening has no sill.
        if (role == Qt::CheckStateRole) {
            const bool sill =
                openingData_->openingList()[static_cast<size_t>(index.row())]->useSill();
            return static_cast<int>(sill ? Qt::Unchecked : Qt::Checked);
        }
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return cellText(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ZOLOpeningsTableModel::flags(const QModelIndex& index) const {
    if (!isShown(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    switch (index.column()) {
    case RemoveSill:
        return flags | Qt::ItemIsUserCheckable;
    case NumberOfOpenings:
    case Width:
    case Height:
        return flags | Qt::ItemIsEditable;
    default:
        return flags;
    }
}

bool ZOLOpeningsTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!isShown(index) || !openingData_)
        return false;
    const int row = index.row();
    const auto& list = openingData_->openingList();
    if (static_cast<size_t>(row) >= list.size())
        return false;
    ZOLOpening& o = *list[static_cast<size_t>(row)];
    if (index.column() == RemoveSill && role == Qt::CheckStateRole) {
        // A box set to what it shows is no edit.
        if (data(index, role).toInt() == value.toInt())
            return true;
        o.setUseSill(value.toInt() != Qt::Checked);
    } else if (role == Qt::EditRole) {
        // Text given back as the cell shows it is no edit.
        if (data(index, role).toString() == value.toString())
            return true;
        // Typed text counts by what it starts with; unreadable text gives 0.
        const std::string text = value.toString().toStdString();
        if (index.column() == NumberOfOpenings)
            o.setNumberOfOpenings(ZOLText::leadingInt(text));
        else if (index.column() == Width)
            o.setOpeningWidth(ZOLText::leadingDouble(text));
        else if (index.column() == Height)
            o.setOpeningHeight(ZOLText::leadingDouble(text));
        else
            return false;
    } else {
        return false;
    }
    emit dataChanged(this->index(row, 0), this->index(row, TotalLF));
    emit rowEdited(row);
    return true;
}
