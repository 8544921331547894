#pragma once
#include "ui/ZOLTableModel.h"

#include <memory>
#include <vector>

class ZOLCustomItem;

// The lines of the Job Summary tab, read from the job's line records: name, quantity, unit,
// unit price and total cost of each visible line. The lines are changed through the line form,
// never in the table.
class ZOLJobSummaryTableModel : public ZOLTableModel {
    Q_OBJECT

public:
    enum Column { Name, Quantity, Unit, UnitPrice, TotalCost };

    explicit ZOLJobSummaryTableModel(QObject* parent = nullptr);

    void showLines(std::vector<std::shared_ptr<ZOLCustomItem>> lines);
    // The lines shown, row by row.
    const std::vector<std::shared_ptr<ZOLCustomItem>>& lines() const { return lines_; }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // How the tab writes money and quantities, in dollars wherever the program runs.
    static QString money(double value);
    // At most two decimals (1, 1.5, 12.25), the zeros after the point dropped if asked.
    static QString decimal(double value, bool trimZeros);

private:
    std::vector<std::shared_ptr<ZOLCustomItem>> lines_;
};
