#include "ui/ZOLBlockInfoViewController.h"
#include "ui_ZOLBlockInfoViewController.h"

#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLWall.h"
#include "ui/ZOLBlockInfoTableModel.h"
#include "ui/ZOLQtText.h"

#include <QHeaderView>

ZOLBlockInfoViewController::ZOLBlockInfoViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLBlockInfoViewController>()),
      partModel_(new ZOLBlockInfoTableModel(this)) {
    ui_->setupUi(this);
    QTableView* table = ui_->partTable;
    table->setModel(partModel_);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(ZOLBlockInfoTableModel::Part,
                                                    QHeaderView::ResizeToContents);
    // The table is as tall as its rows, so the page does not show an empty tail.
    table->setFixedHeight(table->horizontalHeader()->sizeHint().height() +
                          ZOLBlockInfoTableModel::kRowCount *
                              table->verticalHeader()->defaultSectionSize() +
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
    partModel_->setWallData(wallData_);
}

void ZOLBlockInfoViewController::loadValues() {
    if (!wallData_)
        setWallData(std::make_shared<ZOLWall>());
    const ZOLWall& w = *wallData_;
    ui_->blockSize->setText(qs(ZOLFormat::format("%d\"", w.blockSize())));
    // The weight of what is ordered: every part rounded up to full bundles.
    double weight = 0.0;
    for (int32_t type = 0; type < ZOLBlockInfoTableModel::kRowCount; ++type)
        weight += w.getApproximateWeightWithPartType(type, true);
    ui_->totalWeight->setText(qs(ZOLFormat::format("%.2f lbs", weight)));
    ui_->trucks->setText(qs(ZOLFormat::format("%.2f", w.getTrucks())));
    // Items are whole percentages from 0 %; a value past the list selects nothing.
    ui_->wastePercentage->setCurrentIndex(ZOLNumeric::toInt(w.wastePercentage() * 100));
    partModel_->reload();
}

void ZOLBlockInfoViewController::comboBoxSelectionDidChange(int index) {
    if (index < 0)
        return;
    if (!wallData_)
        setWallData(std::make_shared<ZOLWall>());
    wallData_->setWastePercentage(index / 100.0);
    loadValues();
    emit edited();
}
