#include "ui/ZOLPricingWindowController.h"

#include "io/ZOLFileSaver.h"
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLText.h"
#include "model/ZOLPricing.h"
#include "ui/ZOLFileAlerts.h"
#include "ui/ZOLFilePanels.h"
#include "ui/ZOLPriceTableModel.h"
#include "ui_ZOLPricing.h"
#include "ui/ZOLQtText.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace {
// Price cells take what the entry fields take: typing is cleaned to digits and full stops
// as it happens, and the price is the number the text starts with.
class PriceDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QObject::connect(edit, &QLineEdit::textEdited, edit, [edit](const QString& text) {
            const auto cleaned = ZOLText::entryFieldText(text.toStdString());
            if (cleaned && qs(*cleaned) != text)
                edit->setText(qs(*cleaned));
        });
        return edit;
    }
};
} // namespace

ZOLPricingWindowController::ZOLPricingWindowController(std::shared_ptr<ZOLPricing> pricingData,
                                                       QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLPricing>()),
      pricingData_(std::move(pricingData)), priceModel_(new ZOLPriceTableModel(this)) {
    ui_->setupUi(this);
    priceModel_->setPricingData(pricingData_);
    ui_->priceTable->setModel(priceModel_);
    QHeaderView* header = ui_->priceTable->horizontalHeader();
    header->setSectionResizeMode(ZOLPriceTableModel::Part, QHeaderView::Stretch);
    header->setSectionResizeMode(ZOLPriceTableModel::Price, QHeaderView::Fixed);
    header->resizeSection(ZOLPriceTableModel::Price, 120);
    ui_->priceTable->setItemDelegateForColumn(ZOLPriceTableModel::Price,
                                              new PriceDelegate(ui_->priceTable));
    ui_->priceTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);

    connect(ui_->openPricing, &QPushButton::clicked, this,
            &ZOLPricingWindowController::openPricing);
    connect(ui_->savePricing, &QPushButton::clicked, this,
            &ZOLPricingWindowController::savePricing);
    connect(ui_->useSavedPrices, &QPushButton::clicked, this,
            &ZOLPricingWindowController::useSavedPrices);
    connect(ui_->done, &QPushButton::clicked, this, &QDialog::accept);
    // A price typed into the list; a refill after a load or the saved prices is their change.
    connect(priceModel_, &ZOLPriceTableModel::priceEdited, this,
            [this] { emit pricesChanged(tr("Price Change")); });
    loadData();
    // Typing on an opened window goes into the first price.
    ui_->priceTable->setCurrentIndex(priceModel_->index(0, ZOLPriceTableModel::Price));
}

ZOLPricingWindowController::~ZOLPricingWindowController() = default;

void ZOLPricingWindowController::loadData() {
    priceModel_->reload(palette().brush(QPalette::Disabled, QPalette::Text));
    ui_->useSavedPrices->setEnabled(pricingData_ && !pricingData_->savedItems().empty());
}

void ZOLPricingWindowController::openPricing() {
    const QString path = ZOLFilePanels::openFile(this, tr("Open Price List"), "zp");
    if (path.isEmpty()) {
        loadData();
        return;
    }
    openPricingFile(path);
}

void ZOLPricingWindowController::openPricingFile(const QString& path) {
    if (auto bytes = ZOLFileAlerts::readFile(path, ZOLFileKind::PriceList); bytes && pricingData_)
        ZOLFileAlerts::accepted(path, ZOLFileKind::PriceList,
                                ZOLPriceFileReader::readPriceData(*bytes, *pricingData_));
    loadData();
    // A file that could not be read changed nothing, and the change then records nothing.
    emit pricesChanged(tr("Load Price File"));
}

void ZOLPricingWindowController::savePricing() {
    const QString path =
        ZOLFilePanels::saveFile(this, tr("Save Price List"), "zp", tr("Price List.zp"));
    if (!path.isEmpty())
        savePricingFile(path);
}

void ZOLPricingWindowController::savePricingFile(const QString& path) {
    if (!pricingData_)
        return;
    ZOLFileAlerts::writeFile(path, pricingData_->getFullXMLString(), ZOLFileKind::PriceList,
                             "The price list could not be saved.");
}

void ZOLPricingWindowController::useSavedPrices() {
    if (pricingData_ && pricingData_->useSavedItems()) {
        loadData();
        emit pricesChanged(tr("Use Saved Prices"));
    }
}
