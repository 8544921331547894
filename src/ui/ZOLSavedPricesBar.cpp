#include "ui/ZOLSavedPricesBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

ZOLSavedPricesBar::ZOLSavedPricesBar(QWidget* parent)
    : QFrame(parent), message_(new QLabel(this)), use_(new QPushButton(this)) {
    setObjectName(QStringLiteral("savedPricesBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    // A pale note band, readable on the black header around it whatever the desktop theme.
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0xff, 0xf4, 0xce));
    colours.setColor(QPalette::WindowText, Qt::black);
    setPalette(colours);

    message_->setText(tr("This workbook holds the prices it was saved with, but it is priced "
                         "from the default list until you use them."));
    message_->setWordWrap(true);
    use_->setObjectName(QStringLiteral("useSavedPrices"));
    use_->setText(tr("Use saved prices"));
    use_->setPalette(QPalette());

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(message_, 1);
    layout->addWidget(use_);
    connect(use_, &QPushButton::clicked, this, &ZOLSavedPricesBar::useSavedPrices);
}
