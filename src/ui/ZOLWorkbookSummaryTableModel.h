#pragma once
#include "report/ZOLWorkbookSummary.h"
#include "ui/ZOLTableModel.h"

// The lines of the Workbook Summary tab: the summary's block and accessory rows, then the
// job site sign, then the totals in bold; nothing at all when no block is used.
class ZOLWorkbookSummaryTableModel : public ZOLTableModel {
    Q_OBJECT

public:
    enum Column { Part, Quantity, UnitPrice, TotalCost, SquareFootCost, Weight };

    explicit ZOLWorkbookSummaryTableModel(QObject* parent = nullptr);

    void showSummary(ZOLWorkbookSummary::Summary summary);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString cellText(int row, int column) const;

    ZOLWorkbookSummary::Summary summary_;
};
