#include "ui/ZOLRebarEntryViewController.h"
#include "ui_ZOLRebarEntryViewController.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLRebarCalculator.h"
#include "io/ZOLFormat.h"
#include "model/ZOLRebar.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLWallHeightBox.h"

namespace {

std::vector<std::string> sizeList(int32_t measurement) {
    return measurement == 1 ? ZOLRebarCalculator::getMetricRebarSizes()
                            : ZOLRebarCalculator::getImperialRebarSizes();
}

// Sizes are stored counted from 1; the running totals have one slot per Imperial size.
constexpr int32_t kSizeCount = 5;

} // namespace

ZOLRebarEntryViewController::ZOLRebarEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLRebarEntryViewController>()) {
    ui_->setupUi(this);
    ZOLWallHeightBox::fill(ui_->wallHeight,
                           ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches());

    using R = ZOLRebar;
    fields_.addDecimal(ui_->wallLength, &R::wallLength, &R::setWallLength);
    fields_.addCount(ui_->horizontalRows1, &R::horizontalRowCount1, &R::setHorizontalRowCount1);
    fields_.addCount(ui_->horizontalRows2, &R::horizontalRowCount2, &R::setHorizontalRowCount2);
    fields_.addCount(ui_->horizontalLapSplice1, &R::horizontalLap1, &R::setHorizontalLap1);
    fields_.addCount(ui_->horizontalLapSplice2, &R::horizontalLap2, &R::setHorizontalLap2);
    fields_.addCount(ui_->verticalSpacing, &R::verticalSpacing, &R::setVerticalSpacing, false);
    fields_.addCount(ui_->dowelSpacing, &R::dowelSpacing, &R::setDowelSpacing, false);
    fields_.addCount(ui_->dowelLength, &R::dowelLength, &R::setDowelLength, false);
    fields_.connect(
        this, [this]() -> ZOLRebar& { return rebar(); },
        [this](const auto&) {
            loadCalculatedValues();
            emit edited();
        });

    for (QComboBox* box : {ui_->wallHeight, ui_->horizontalSize1, ui_->horizontalSize2,
                           ui_->verticalSize, ui_->dowelSize})
        connect(box, &QComboBox::activated, this,
                [this, box](int index) { comboBoxSelectionDidChange(box, index); });
    connect(ui_->imperial, &QRadioButton::clicked, this, [this] { changeMeasurement(0); });
    connect(ui_->metric, &QRadioButton::clicked, this, [this] { changeMeasurement(1); });
    connect(ui_->pullWallData, &QPushButton::clicked, this, [this] { pullWallData(); });
}

ZOLRebarEntryViewController::~ZOLRebarEntryViewController() {
    // A field that loses focus while the controls are torn down must not call back.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLRebarEntryViewController::setRebarData(std::shared_ptr<ZOLRebar> rebarData) {
    rebarData_ = std::move(rebarData);
}

void ZOLRebarEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

ZOLRebar& ZOLRebarEntryViewController::rebar() {
    if (!rebarData_)
        rebarData_ = std::make_shared<ZOLRebar>();
    return *rebarData_;
}

void ZOLRebarEntryViewController::loadValues() {
    const ZOLRebar& r = rebar();
    fields_.load(r);
    (r.measurement() == 1 ? ui_->metric : ui_->imperial)->setChecked(true);
    ZOLWallHeightBox::select(ui_->wallHeight,
                             ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches(),
                             r.wallHeight());
    for (QComboBox* box :
         {ui_->horizontalSize1, ui_->horizontalSize2, ui_->verticalSize, ui_->dowelSize}) {
        box->clear();
        for (const std::string& name : sizeList(r.measurement()))
            box->addItem(qs(name));
    }
    selectSize(ui_->horizontalSize1, r.horizontalSize1());
    selectSize(ui_->horizontalSize2, r.horizontalSize2());
    selectSize(ui_->verticalSize, r.verticalSize());
    selectSize(ui_->dowelSize, r.dowelSize());
    loadCalculatedValues();
}

QString ZOLRebarEntryViewController::sizeName(int32_t size) {
    // The screen shows the Metric list for measurement 1 only.
    const int32_t measurement = rebar().measurement() == 1 ? 1 : 0;
    if (auto name = ZOLRebarCalculator::getRebarSizeNameWithMeasurement(measurement, size))
        return qs(*name);
    // A Metric record can keep the Imperial "#8" it was given before the switch: the Metric
    // list has no fifth size, so the screen names the bar it was chosen as.
    if (auto imperial = ZOLRebarCalculator::getRebarSizeNameWithMeasurement(0, size))
        return tr("%1 (Imperial)").arg(qs(*imperial));
    return tr("(no size)");
}

void ZOLRebarEntryViewController::selectSize(QComboBox* box, int32_t size) {
    const int index = size >= 1 && size <= box->count() ? size - 1 : -1;
    box->setPlaceholderText(index < 0 ? sizeName(size) : QString());
    box->setCurrentIndex(index);
}

void ZOLRebarEntryViewController::hideTotals() {
    for (QWidget* widget :
         {static_cast<QWidget*>(ui_->horizontalTotal2),
          static_cast<QWidget*>(ui_->horizontalTotalSize2),
          static_cast<QWidget*>(ui_->verticalTotal2),
          static_cast<QWidget*>(ui_->verticalTotalSize2), static_cast<QWidget*>(ui_->total1),
          static_cast<QWidget*>(ui_->totalSize1), static_cast<QWidget*>(ui_->total2),
          static_cast<QWidget*>(ui_->totalSize2), static_cast<QWidget*>(ui_->total3),
          static_cast<QWidget*>(ui_->totalSize3), static_cast<QWidget*>(ui_->total4),
          static_cast<QWidget*>(ui_->totalSize4)})
        widget->hide();
}

void ZOLRebarEntryViewController::loadCalculatedValues() {
    hideTotals();
    const ZOLRebar& r = rebar();
    std::array<double, kSizeCount> totals{};
    auto addTo = [&totals](int32_t size, double length) {
        if (size >= 1 && size <= kSizeCount)
            totals[static_cast<size_t>(size) - 1] += length;
    };
    // Each pair of sets: the first always has its line; the second shares it when both are of
    // one size, and is then not counted again in the totals per size.
    auto showPair = [&](int32_t size1, double length1, int32_t size2, double length2,
                        QLineEdit* total1, QLabel* name1, QLineEdit* total2, QLabel* name2) {
        name1->setText(sizeName(size1));
        addTo(size1, length1);
        if (size2 == size1) {
            total1->setText(qs(ZOLFormat::format("%.2f", length1 + length2)));
            return;
        }
        total1->setText(qs(ZOLFormat::format("%.2f", length1)));
        name2->setText(sizeName(size2));
        total2->setText(qs(ZOLFormat::format("%.2f", length2)));
        total2->show();
        name2->show();
        addTo(size2, length2);
    };
    showPair(r.horizontalSize1(), r.getHorizontalLength1(), r.horizontalSize2(),
             r.getHorizontalLength2(), ui_->horizontalTotal1, ui_->horizontalTotalSize1,
             ui_->horizontalTotal2, ui_->horizontalTotalSize2);
    showPair(r.verticalSize(), r.getVerticalLength(), r.dowelSize(), r.getDowelLength(),
             ui_->verticalTotal1, ui_->verticalTotalSize1, ui_->verticalTotal2,
             ui_->verticalTotalSize2);

    const std::array<std::pair<QLineEdit*, QLabel*>, 4> lines{{{ui_->total1, ui_->totalSize1},
                                                               {ui_->total2, ui_->totalSize2},
                                                               {ui_->total3, ui_->totalSize3},
                                                               {ui_->total4, ui_->totalSize4}}};
    size_t line = 0;
    for (int32_t position = 0; position < kSizeCount && line < lines.size(); ++position) {
        const double total = totals[static_cast<size_t>(position)];
        if (!(total > 0.0))
            continue;
        lines[line].first->setText(qs(ZOLCalculatorMaster::convertFeetToText(total)));
        lines[line].second->setText(sizeName(position + 1));
        totalSizeIndex_[line] = position;
        lines[line].first->show();
        lines[line].second->show();
        ++line;
    }
}

void ZOLRebarEntryViewController::changeMeasurement(int32_t measurement) {
    rebar().setMeasurement(measurement);
    // The size boxes show the other list at the same positions.
    loadValues();
    emit edited();
}

void ZOLRebarEntryViewController::comboBoxSelectionDidChange(QComboBox* box, int index) {
    if (index < 0)
        return;
    ZOLRebar& r = rebar();
    if (box == ui_->wallHeight) {
        const auto height = ZOLWallHeightBox::chosen(
            box, ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches(), index);
        if (!height)
            return;
        r.setWallHeight(*height);
    } else {
        const int32_t size = index + 1;
        if (box == ui_->horizontalSize1)
            r.setHorizontalSize1(size);
        else if (box == ui_->horizontalSize2)
            r.setHorizontalSize2(size);
        else if (box == ui_->verticalSize)
            r.setVerticalSize(size);
        else if (box == ui_->dowelSize)
            r.setDowelSize(size);
        box->setPlaceholderText(QString());
    }
    loadCalculatedValues();
    emit edited();
}

void ZOLRebarEntryViewController::pullWallData() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    ZOLRebar& r = rebar();
    r.setWallHeight(ZOLCalculatorMaster::convertWallHeightToFourInchCompatible(
        wallData_->getTotalWallHeight()));
    r.setWallLength(wallData_->wallLength());
    loadValues();
    emit edited();
    ZOLAlerts::run("Wall data retrieved.", "", {"OK"});
}
