#include "ui/ZOLBlockInfoViewController.h"
#include "ui_ZOLBlockInfoViewController.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLWall.h"

#include <QHeaderView>

#include <array>

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

constexpr std::array<const char*, 6> kColumns{"partColumn",         "actualBlockCountColumn",
                                              "perBundleColumn",    "roundedColumn",
                                              "totalBundlesColumn", "weightColumn"};

} // namespace

ZOLBlockInfoViewController::ZOLBlockInfoViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLBlockInfoViewController>()) {
    ui_->setupUi(this);
    QTableWidget* table = ui_->partTable;
    table->setRowCount(kRowCount);
    for (int c = 0; c < table->columnCount(); ++c)
        if (QTableWidgetItem* header = table->horizontalHeaderItem(c))
            header->setData(Qt::UserRole, columnIdentifier(c));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (int r = 0; r < kRowCount; ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            auto* item = new QTableWidgetItem;
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (c > 0)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(r, c, item);
        }
    }
    // The table is as tall as its rows, so the page does not show an empty tail.
    table->setFixedHeight(table->horizontalHeader()->sizeHint().height() +
                          kRowCount * table->verticalHeader()->defaultSectionSize() +
                          2 * table->frameWidth());
    layout()->setAlignment(table, Qt::AlignTop);
    connect(ui_->wastePercentage, &QComboBox::activated, this,
            [this](int index) { comboBoxSelectionDidChange(index); });
}

ZOLBlockInfoViewController::~ZOLBlockInfoViewController() {
    // The controls outlive this object's members while QWidget tears them down; a field that
    // loses focus then must not call back into a half-destroyed screen.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLBlockInfoViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

QString ZOLBlockInfoViewController::columnIdentifier(int column) {
    if (column < 0 || static_cast<size_t>(column) >= kColumns.size())
        return {};
    return QLatin1String(kColumns[static_cast<size_t>(column)]);
}

QString ZOLBlockInfoViewController::cellText(int row, const QString& id) const {
    const ZOLWall& w = *wallData_;
    const int32_t type = row;
    if (id == QLatin1String("partColumn"))
        return qs(ZOLWallData::getPartNameWithBlockType(type).value_or(std::string()));
    if (id == QLatin1String("actualBlockCountColumn"))
        return qs(ZOLFormat::format("%d", w.getPartCountWithPartType(type)));
    if (id == QLatin1String("perBundleColumn"))
        return qs(
            ZOLFormat::format("%d", ZOLWallData::getBundleSizeWithBlockType(type, w.blockSize())));
    if (id == QLatin1String("roundedColumn"))
        return qs(ZOLFormat::format("%d", w.getPartCountRoundedToFullBundlesWithPartType(type)));
    if (id == QLatin1String("totalBundlesColumn"))
        return qs(ZOLFormat::format("%d", w.getTotalBundlesWithPartType(type)));
    if (id == QLatin1String("weightColumn"))
        return qs(ZOLFormat::format("%.2f", w.getApproximateWeightWithPartType(type, true)));
    return {};
}

void ZOLBlockInfoViewController::loadValues() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    const ZOLWall& w = *wallData_;
    ui_->blockSize->setText(qs(ZOLFormat::format("%d\"", w.blockSize())));
    // The weight of what is ordered: every part rounded up to full bundles.
    double weight = 0.0;
    for (int32_t type = 0; type < kRowCount; ++type)
        weight += w.getApproximateWeightWithPartType(type, true);
    ui_->totalWeight->setText(qs(ZOLFormat::format("%.2f lbs", weight)));
    ui_->trucks->setText(qs(ZOLFormat::format("%.2f", w.getTrucks())));
    // Items are whole percentages from 0 %; a value past the list selects nothing.
    ui_->wastePercentage->setCurrentIndex(ZOLNumeric::toInt(w.wastePercentage() * 100));
    QTableWidget* table = ui_->partTable;
    for (int r = 0; r < kRowCount; ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            const QTableWidgetItem* header = table->horizontalHeaderItem(c);
            const QString id = header ? header->data(Qt::UserRole).toString() : QString();
            table->item(r, c)->setText(cellText(r, id));
        }
    }
}

void ZOLBlockInfoViewController::comboBoxSelectionDidChange(int index) {
    if (index < 0)
        return;
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    wallData_->setWastePercentage(index / 100.0);
    loadValues();
    emit edited();
}
