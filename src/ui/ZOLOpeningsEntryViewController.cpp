#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui_ZOLOpeningsEntryViewController.h"

#include "io/ZOLFormat.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLOpeningsTableModel.h"
#include "ui/ZOLQtText.h"

#include <QHeaderView>

ZOLOpeningsEntryViewController::ZOLOpeningsEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLOpeningsEntryViewController>()),
      openingsModel_(new ZOLOpeningsTableModel(this)) {
    ui_->setupUi(this);
    QTableView* table = ui_->openingsTable;
    table->setModel(openingsModel_);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(ZOLOpeningsTableModel::RowNumber,
                                                    QHeaderView::ResizeToContents);
    // The tick box needs no more room than its heading.
    table->horizontalHeader()->setSectionResizeMode(ZOLOpeningsTableModel::RemoveSill,
                                                    QHeaderView::ResizeToContents);

    connect(ui_->addOpening, &QPushButton::clicked, this, [this] { addOpening(); });
    connect(ui_->removeOpening, &QPushButton::clicked, this, [this] { removeOpening(); });
    connect(ui_->sendOpeningDataToWall, &QPushButton::clicked, this,
            [this] { sendOpeningDataToWall(); });
    // An edited row changes the totals and the record the document saves.
    connect(openingsModel_, &ZOLOpeningsTableModel::rowEdited, this, [this] {
        loadValues();
        emit edited();
    });
}

ZOLOpeningsEntryViewController::~ZOLOpeningsEntryViewController() {
    // The controls outlive this object's members while QWidget tears them down; a field that
    // loses focus then must not call back into a half-destroyed screen.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLOpeningsEntryViewController::setOpeningData(std::shared_ptr<ZOLOpenings> openingData) {
    openingData_ = std::move(openingData);
    openingsModel_->setOpeningData(openingData_);
}

void ZOLOpeningsEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

void ZOLOpeningsEntryViewController::loadValues() {
    openingsModel_->reload();
    if (openingData_) {
        ui_->totalLF->setText(qs(ZOLFormat::format("%.2f LF", openingData_->getTotalLinearFeet())));
        ui_->totalSqFt->setText(
            qs(ZOLFormat::format("%.2f Sq Ft", openingData_->getTotalSquareFeet())));
    } else {
        ui_->totalLF->setText(qs(ZOLFormat::format("%.2f LF", 0.0)));
        ui_->totalSqFt->setText(qs(ZOLFormat::format("%.2f Sq Ft", 0.0)));
    }
}

void ZOLOpeningsEntryViewController::addOpening() {
    if (!openingData_)
        return;
    std::vector<std::shared_ptr<ZOLOpening>> list = openingData_->openingList();
    auto opening = std::make_shared<ZOLOpening>();
    // New rows are numbered by the count before them (the first row gets 0).
    opening->setRowNumber(static_cast<int32_t>(list.size()));
    opening->setNumberOfOpenings(0);
    opening->setOpeningWidth(0.0);
    opening->setOpeningHeight(0.0);
    opening->setUseSill(true);
    list.push_back(std::move(opening));
    openingData_->setOpeningList(std::move(list));
    loadValues();
    emit edited();
}

void ZOLOpeningsEntryViewController::removeOpening() {
    if (!openingData_)
        return;
    const QModelIndexList selected = ui_->openingsTable->selectionModel()->selectedRows();
    if (selected.isEmpty())
        return;
    const int row = selected.front().row();
    std::vector<std::shared_ptr<ZOLOpening>> list = openingData_->openingList();
    if (row < 0 || static_cast<size_t>(row) >= list.size())
        return;
    list.erase(list.begin() + row);
    // After a removal the rows are numbered from 1.
    for (size_t i = 0; i < list.size(); ++i)
        list[i]->setRowNumber(static_cast<int32_t>(i) + 1);
    openingData_->setOpeningList(std::move(list));
    ui_->openingsTable->clearSelection();
    loadValues();
    emit edited();
}

void ZOLOpeningsEntryViewController::sendOpeningDataToWall() {
    if (!openingData_ || openingData_->openingList().empty()) {
        ZOLAlerts::run("Nothing to send", "", {"OK"});
        return;
    }
    if (!wallData_) {
        ZOLAlerts::run("There was an error accessing the Wall page", "", {"OK"});
        return;
    }
    wallData_->setLinearFeetBuck(openingData_->getTotalLinearFeetOfBuck());
    wallData_->setSqftOpenings(openingData_->getTotalSquareFeet());
    emit edited();
    ZOLAlerts::run("Opening data sent to the Wall page", "", {"OK"});
}
