#include "ui/ZOLBlockInfoTableModel.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "model/ZOLWall.h"
#include "ui/ZOLQtText.h"

ZOLBlockInfoTableModel::ZOLBlockInfoTableModel(QObject* parent)
    : ZOLTableModel({{tr("Part")},
                     {tr("Count")},
                     {tr("Per Bundle")},
                     {tr("Full Bundles")},
                     {tr("Bundles")},
                     {tr("Weight (lbs)")}},
                    parent) {
    // The rows are the part types, there before any wall is read.
    showRows(kRowCount);
}

void ZOLBlockInfoTableModel::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

void ZOLBlockInfoTableModel::reload() {
    showRows(kRowCount);
}

QString ZOLBlockInfoTableModel::cellText(int row, int column) const {
    const ZOLWall& w = *wallData_;
    const int32_t type = row;
    switch (column) {
    case Part:
        return qs(ZOLWallData::getPartNameWithBlockType(type).value_or(std::string()));
    case ActualBlockCount:
        return qs(ZOLFormat::format("%d", w.getPartCountWithPartType(type)));
    case PerBundle:
        return qs(
            ZOLFormat::format("%d", ZOLWallData::getBundleSizeWithBlockType(type, w.blockSize())));
    case Rounded:
        return qs(ZOLFormat::format("%d", w.getPartCountRoundedToFullBundlesWithPartType(type)));
    case TotalBundles:
        return qs(ZOLFormat::format("%d", w.getTotalBundlesWithPartType(type)));
    case Weight:
        return qs(ZOLFormat::format("%.2f", w.getApproximateWeightWithPartType(type, true)));
    default:
        return {};
    }
}

QVariant ZOLBlockInfoTableModel::data(const QModelIndex& index, int role) const {
    if (!isShown(index))
        return {};
    if (role == Qt::TextAlignmentRole && index.column() != Part)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    // Until a wall is read the cells are blank.
    if ((role == Qt::DisplayRole || role == Qt::EditRole) && wallData_)
        return cellText(index.row(), index.column());
    return {};
}

Qt::ItemFlags ZOLBlockInfoTableModel::flags(const QModelIndex& index) const {
    return isShown(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
