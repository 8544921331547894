#include "ui/ZOLTableModel.h"

#include <algorithm>
#include <utility>

ZOLTableModel::ZOLTableModel(std::vector<Heading> headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(std::move(headings)) {}

int ZOLTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ZOLTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant ZOLTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 ||
        static_cast<size_t>(section) >= headings_.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    const Heading& heading = headings_[static_cast<size_t>(section)];
    if (role == Qt::DisplayRole)
        return heading.text;
    if (role == Qt::TextAlignmentRole && heading.alignment)
        return static_cast<int>(heading.alignment);
    return {};
}

void ZOLTableModel::showRows(int rows) {
    rows = std::max(rows, 0);
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (rows_ > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

bool ZOLTableModel::isShown(const QModelIndex& index) const {
    return index.isValid() && index.row() < rows_ && index.column() < columnCount();
}
