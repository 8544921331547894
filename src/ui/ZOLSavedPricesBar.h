#pragma once
#include <QFrame>

class QLabel;
class QPushButton;

// The bar above the tabs that tells the user an opened workbook holds prices of its own behind
// the default list (which opening a file puts in front of them, so the job prices at the
// defaults), with the one click that prices the job as it was saved.
class ZOLSavedPricesBar : public QFrame {
    Q_OBJECT

public:
    explicit ZOLSavedPricesBar(QWidget* parent = nullptr);

    QPushButton* useSavedPricesButton() const { return use_; }

signals:
    void useSavedPrices();

private:
    QLabel* message_;
    QPushButton* use_;
};
