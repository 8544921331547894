#pragma once
#include "ui/ZOLTableModel.h"

#include <QBrush>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class ZOLPricing;

// The rows of the price list window: each price item of the workbook's price list with its
// price, read from and written to the price list. A line that a line above overrides is shown
// greyed, cannot be edited, and says in its tooltip which line sets the price.
class ZOLPriceTableModel : public ZOLTableModel {
    Q_OBJECT

public:
    enum Column { Part, Price };

    explicit ZOLPriceTableModel(QObject* parent = nullptr);

    void setPricingData(std::shared_ptr<ZOLPricing> pricingData);
    // Reads the list again; overridden lines are painted with `shadowedText`.
    void reload(const QBrush& shadowedText);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    // The user typed a price into a cell (a reload is not an edit).
    void priceEdited();

private:
    bool isListed(const QModelIndex& index) const;

    std::shared_ptr<ZOLPricing> pricingData_;
    // Per row, the earlier line that answers its part's look-ups, as the list was read.
    std::vector<std::optional<size_t>> shadowedBy_;
    QBrush shadowedText_;
};
