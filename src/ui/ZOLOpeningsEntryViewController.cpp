#include "ui/ZOLOpeningsEntryViewController.h"
#include "ui_ZOLOpeningsEntryViewController.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <array>

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

constexpr std::array<const char*, 9> kColumns{
    "RowNumber", "NumberOfOpenings", "Width", "Height", "RemoveSill",
    "NetSqFt",   "TotalSqFt",        "NetLF", "TotalLF"};

bool isEditable(const QString& id) {
    return id == QLatin1String("NumberOfOpenings") || id == QLatin1String("Width") ||
           id == QLatin1String("Height");
}

} // namespace

ZOLOpeningsEntryViewController::ZOLOpeningsEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLOpeningsEntryViewController>()) {
    ui_->setupUi(this);
    QTableWidget* table = ui_->openingsTable;
    for (int c = 0; c < table->columnCount(); ++c)
        if (QTableWidgetItem* header = table->horizontalHeaderItem(c))
            header->setData(Qt::UserRole, columnIdentifier(c));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    // The tick box needs no more room than its heading.
    table->horizontalHeader()->setSectionResizeMode(4, QHeaderView::ResizeToContents);

    connect(ui_->addOpening, &QPushButton::clicked, this, [this] { addOpening(); });
    connect(ui_->removeOpening, &QPushButton::clicked, this, [this] { removeOpening(); });
    connect(ui_->sendOpeningDataToWall, &QPushButton::clicked, this,
            [this] { sendOpeningDataToWall(); });
    connect(table, &QTableWidget::itemChanged, this,
            [this](QTableWidgetItem* item) { cellEdited(item); });
}

ZOLOpeningsEntryViewController::~ZOLOpeningsEntryViewController() {
    // The controls outlive this object's members while QWidget tears them down; a field that
    // loses focus then must not call back into a half-destroyed screen.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLOpeningsEntryViewController::setOpeningData(std::shared_ptr<ZOLOpenings> openingData) {
    openingData_ = std::move(openingData);
}

void ZOLOpeningsEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

QString ZOLOpeningsEntryViewController::columnIdentifier(int column) {
    if (column < 0 || static_cast<size_t>(column) >= kColumns.size())
        return {};
    return QLatin1String(kColumns[static_cast<size_t>(column)]);
}

int ZOLOpeningsEntryViewController::numberOfRows() const {
    if (!openingData_)
        return 0;
    return static_cast<int>(openingData_->openingList().size());
}

QString ZOLOpeningsEntryViewController::cellText(int row, const QString& id) const {
    const ZOLOpening& o = *openingData_->openingList()[static_cast<size_t>(row)];
    if (id == QLatin1String("RowNumber"))
        return qs(ZOLFormat::format("%ld", static_cast<long>(row) + 1));
    if (id == QLatin1String("NumberOfOpenings"))
        return qs(ZOLFormat::format("%d", o.numberOfOpenings()));
    if (id == QLatin1String("Width"))
        return qs(ZOLFormat::format("%.2f", o.openingWidth()));
    if (id == QLatin1String("Height"))
        return qs(ZOLFormat::format("%.2f", o.openingHeight()));
    if (id == QLatin1String("NetSqFt"))
        return qs(ZOLFormat::format("%.2f", o.getNetSquareFeet()));
    if (id == QLatin1String("TotalSqFt"))
        return qs(ZOLFormat::format("%.2f", o.getTotalSquareFeet()));
    if (id == QLatin1String("NetLF"))
        return qs(ZOLFormat::format("%.2f", o.getNetLinearFeet()));
    if (id == QLatin1String("TotalLF"))
        return qs(ZOLFormat::format("%.2f", o.getTotalLinearFeet()));
    return {};
}

void ZOLOpeningsEntryViewController::loadValues() {
    QTableWidget* table = ui_->openingsTable;
    // Rewriting the cells must not read back as edits.
    const QSignalBlocker blocker(table);
    const int rows = numberOfRows();
    table->setRowCount(rows);
    for (int r = 0; r < rows; ++r) {
        const ZOLOpening& o = *openingData_->openingList()[static_cast<size_t>(r)];
        for (int c = 0; c < table->columnCount(); ++c) {
            const QTableWidgetItem* header = table->horizontalHeaderItem(c);
            const QString id = header ? header->data(Qt::UserRole).toString() : QString();
            QTableWidgetItem* item = table->item(r, c);
            if (!item) {
                item = new QTableWidgetItem;
                table->setItem(r, c, item);
            }
            if (id == QLatin1String("RemoveSill")) {
                // Worded as removing the sill: ticked when the opening has no sill.
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
                item->setCheckState(o.useSill() ? Qt::Unchecked : Qt::Checked);
                item->setText(QString());
            } else {
                Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
                if (isEditable(id))
                    flags |= Qt::ItemIsEditable;
                item->setFlags(flags);
                item->setText(cellText(r, id));
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
        }
    }
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

void ZOLOpeningsEntryViewController::cellEdited(QTableWidgetItem* item) {
    if (!openingData_ || !item)
        return;
    const int row = item->row();
    const auto& list = openingData_->openingList();
    if (row < 0 || static_cast<size_t>(row) >= list.size())
        return;
    ZOLOpening& o = *list[static_cast<size_t>(row)];
    const QTableWidgetItem* header = ui_->openingsTable->horizontalHeaderItem(item->column());
    const QString id = header ? header->data(Qt::UserRole).toString() : QString();
    // Typed text counts by what it starts with; unreadable text gives 0.
    const std::string text = item->text().toStdString();
    if (id == QLatin1String("NumberOfOpenings"))
        o.setNumberOfOpenings(ZOLText::leadingInt(text));
    else if (id == QLatin1String("Width"))
        o.setOpeningWidth(ZOLText::leadingDouble(text));
    else if (id == QLatin1String("Height"))
        o.setOpeningHeight(ZOLText::leadingDouble(text));
    else if (id == QLatin1String("RemoveSill")) {
        const int v = item->checkState() == Qt::Checked ? 1 : 0;
        o.setUseSill(v == 0);
    }
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
