#pragma once
#include <QDialog>

#include <memory>

class ZOLPriceTableModel;
class ZOLPricing;
namespace Ui {
class ZOLPricing;
}

// The price list window (layout "ZOLPricing"): every price item of the workbook's price list
// with its price, edited in place, and the price files (.zp) that carry a price list from one
// estimate to the next.
class ZOLPricingWindowController : public QDialog {
    Q_OBJECT

public:
    explicit ZOLPricingWindowController(std::shared_ptr<ZOLPricing> pricingData,
                                        QWidget* parent = nullptr);
    ~ZOLPricingWindowController() override;

    const std::shared_ptr<ZOLPricing>& pricingData() const { return pricingData_; }
    // Refills the table from the price list.
    void loadData();

    // The price file commands; each asks for a file with the panel.
    void openPricing();
    void savePricing();
    // The same with the file already chosen (the panels call these).
    void openPricingFile(const QString& path);
    void savePricingFile(const QString& path);
    // Makes the prices the workbook was saved with the whole list (see ZOLPricing).
    void useSavedPrices();

signals:
    // The list may have changed, named as the user would name the change ("Load Price File",
    // "Use Saved Prices", "Price Change"), so that it can be undone as one.
    void pricesChanged(const QString& change);

private:
    std::unique_ptr<Ui::ZOLPricing> ui_;
    std::shared_ptr<ZOLPricing> pricingData_;
    ZOLPriceTableModel* priceModel_;
};
