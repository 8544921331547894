#pragma once
#include "calc/ZOLWallData.h"
#include "ui/ZOLTableModel.h"

#include <memory>

class ZOLWall;

// The part table of the Block Info tab, read from the wall record: one row per part type,
// radius blocks and accessories included, with its count, bundle size, count in full bundles,
// bundles and weight.
class ZOLBlockInfoTableModel : public ZOLTableModel {
    Q_OBJECT

public:
    enum Column { Part, ActualBlockCount, PerBundle, Rounded, TotalBundles, Weight };

    // One row per part type, radius blocks and accessories included.
    static constexpr int kRowCount = ZOLWallData::kPartTypeCount;

    explicit ZOLBlockInfoTableModel(QObject* parent = nullptr);

    void setWallData(std::shared_ptr<ZOLWall> wallData);
    // Reads every row again from the record.
    void reload();

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString cellText(int row, int column) const;

    std::shared_ptr<ZOLWall> wallData_;
};
