#pragma once
#include "ui/ZOLTableModel.h"

#include <memory>

class ZOLOpenings;

// The rows of the Openings tab: one opening of the worksheet per row, read from and written to
// the openings record. Count, width and height are typed in place, the remove-sill box is
// ticked in place; the square and linear feet follow.
class ZOLOpeningsTableModel : public ZOLTableModel {
    Q_OBJECT

public:
    enum Column {
        RowNumber,
        NumberOfOpenings,
        Width,
        Height,
        RemoveSill,
        NetSqFt,
        TotalSqFt,
        NetLF,
        TotalLF,
    };

    explicit ZOLOpeningsTableModel(QObject* parent = nullptr);

    void setOpeningData(std::shared_ptr<ZOLOpenings> openingData);
    // Reads every row again from the record.
    void reload();

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    // The user changed the opening of this row.
    void rowEdited(int row);

private:
    QString cellText(int row, int column) const;

    std::shared_ptr<ZOLOpenings> openingData_;
};
