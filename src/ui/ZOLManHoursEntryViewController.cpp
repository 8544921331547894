#include "ui/ZOLManHoursEntryViewController.h"
#include "ui_ZOLManHoursEntryViewController.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLManHourCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLManHours.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLInfoPopup.h"
#include "ui/ZOLInfoShortcut.h"
#include "ui/ZOLQtText.h"
#include "ui/ZOLWallHeightBox.h"

#include <array>

namespace {

using Calc = ZOLManHourCalculator;

// The judgement lists run from the best rating to the worst; each has as many items as the
// list position of its highest rating, plus one.
const int kComplexityItems = Calc::getComplexityRatingIndex(9) + 1;
const int kExperienceItems = Calc::getExperienceRatingIndex(2) + 1;
const int kConditionItems = Calc::getConditionRatingIndex(3) + 1;
constexpr int kCrewSizes = 20;
constexpr int kOtherTurns = 17;

struct InfoKey {
    const char* control;
    const char* key;
};
// The corbel and wall-height keys are matched against their fields, not their buttons.
constexpr std::array<InfoKey, 11> kInfoKeys{{
    {"sqftWallInfo", "Square_Feet_Wall_Info"},
    {"cornersAndTsInfo", "Corners_Ts_Info"},
    {"sqftOpeningsInfo", "Square_Feet_Openings_Info"},
    {"lfCorbelCurbTapered", "LF_Corbel_Curb_Taper_Info"},
    {"wallHeight", "MH_Wall_Height_Info"},
    {"crewSizeInfo", "Size_of_Crew_Info"},
    {"rebarComplexityInfo", "Complexity_of_Rebar_Info"},
    {"crewExperienceInfo", "Crew_Experience_Info"},
    {"siteConditionsInfo", "Site_Conditions_Info"},
    {"targetManHoursInfo", "Man_Hour_Rate_Info"},
    {"otherTurnsInfo", "Other_Turns_Info"},
}};

} // namespace

ZOLManHoursEntryViewController::ZOLManHoursEntryViewController(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ZOLManHoursEntryViewController>()) {
    ui_->setupUi(this);

    ZOLWallHeightBox::fill(ui_->wallHeight,
                           ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches());
    for (int i = 0; i < kCrewSizes; ++i)
        ui_->crewSize->addItem(QString::number(i + 1));
    for (int i = 0; i < kComplexityItems; ++i)
        ui_->rebarComplexity->addItem(
            qs(Calc::getComplexityRatingText(Calc::getComplexityRatingForIndex(i))));
    for (int i = 0; i < kExperienceItems; ++i)
        ui_->crewExperience->addItem(
            qs(Calc::getExperienceRatingText(Calc::getExperienceRatingForIndex(i))));
    for (int i = 0; i < kConditionItems; ++i)
        ui_->siteConditions->addItem(
            qs(Calc::getConditionRatingText(Calc::getConditionRatingForIndex(i))));
    for (int i = 0; i < kOtherTurns; ++i)
        ui_->otherTurns->addItem(QString::number(i));

    using M = ZOLManHours;
    fields_.addDecimal(ui_->sqftWall, &M::squareFeetOfWall, &M::setSquareFeetOfWall);
    fields_.addCount(ui_->cornersAndTs, &M::cornersAndTs, &M::setCornersAndTs);
    fields_.addDecimal(ui_->sqftOpenings, &M::squareFeetOfOpenings, &M::setSquareFeetOfOpenings);
    fields_.addDecimal(ui_->lfCorbelCurbTapered, &M::linearFeetCorbelCurbTapered,
                       &M::setLinearFeetCorbelCurbTapered);
    fields_.addDecimal(ui_->costPerHour, &M::laborCost, &M::setLaborCost);
    fields_.connect(
        this, [this]() -> ZOLManHours& { return manHours(); },
        [this](const auto&) {
            loadCalculatedValues();
            emit edited();
        });

    for (QComboBox* box : {ui_->wallHeight, ui_->crewSize, ui_->rebarComplexity,
                           ui_->crewExperience, ui_->siteConditions, ui_->otherTurns})
        connect(box, &QComboBox::activated, this,
                [this, box](int index) { comboBoxSelectionDidChange(box, index); });
    connect(ui_->pullData, &QPushButton::clicked, this, [this] { pullDataFromWall(); });

    // Each button asks for the illustration under its own name. F1 in a field opens the
    // field's illustration: the field's own key where it has one, else its button's.
    const std::array<std::pair<QToolButton*, QWidget*>, 11> buttons{{
        {ui_->sqftWallInfo, ui_->sqftWall},
        {ui_->cornersAndTsInfo, ui_->cornersAndTs},
        {ui_->sqftOpeningsInfo, ui_->sqftOpenings},
        {ui_->lfCorbelCurbTaperedInfo, ui_->lfCorbelCurbTapered},
        {ui_->wallHeightInfo, ui_->wallHeight},
        {ui_->crewSizeInfo, ui_->crewSize},
        {ui_->rebarComplexityInfo, ui_->rebarComplexity},
        {ui_->crewExperienceInfo, ui_->crewExperience},
        {ui_->siteConditionsInfo, ui_->siteConditions},
        {ui_->targetManHoursInfo, ui_->costPerHour},
        {ui_->otherTurnsInfo, ui_->otherTurns},
    }};
    for (const auto& [button, field] : buttons) {
        QToolButton* b = button;
        QWidget* f = field;
        connect(b, &QToolButton::clicked, this, [this, b] { displayInfo(b); });
        const QObject* owner = infoKeyForControl(f->objectName()) ? static_cast<QObject*>(f) : b;
        ZOLInfoShortcut::install(b, {f}, [this, owner] { displayInfo(owner); });
    }
}

ZOLManHoursEntryViewController::~ZOLManHoursEntryViewController() {
    // A field that loses focus while the controls are torn down must not call back.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
}

void ZOLManHoursEntryViewController::setManHourData(std::shared_ptr<ZOLManHours> manHourData) {
    manHourData_ = std::move(manHourData);
}

void ZOLManHoursEntryViewController::setWallData(std::shared_ptr<ZOLWall> wallData) {
    wallData_ = std::move(wallData);
}

ZOLManHours& ZOLManHoursEntryViewController::manHours() {
    if (!manHourData_)
        manHourData_ = std::make_shared<ZOLManHours>();
    return *manHourData_;
}

std::optional<std::string>
ZOLManHoursEntryViewController::infoKeyForControl(const QString& objectName) {
    for (const InfoKey& entry : kInfoKeys)
        if (objectName == QLatin1String(entry.control))
            return std::string(entry.key);
    return std::nullopt;
}

void ZOLManHoursEntryViewController::loadValues() {
    const ZOLManHours& m = manHours();
    fields_.load(m);
    ZOLWallHeightBox::select(ui_->wallHeight,
                             ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches(),
                             m.wallHeight());
    // A value that is on no item (a crew of 0, a damaged file) shows as it is, unselected.
    auto select = [](QComboBox* box, int index, const QString& text) {
        const bool onList = index >= 0 && index < box->count();
        box->setPlaceholderText(onList ? QString() : text);
        box->setCurrentIndex(onList ? index : -1);
    };
    select(ui_->crewSize, ZOLNumeric::wrapSub(m.crewSize(), 1), QString::number(m.crewSize()));
    select(ui_->rebarComplexity, Calc::getComplexityRatingIndex(m.rebarComplexity()),
           qs(Calc::getComplexityRatingText(m.rebarComplexity())));
    select(ui_->crewExperience, Calc::getExperienceRatingIndex(m.crewExperience()),
           qs(Calc::getExperienceRatingText(m.crewExperience())));
    select(ui_->siteConditions, Calc::getConditionRatingIndex(m.siteConditions()),
           qs(Calc::getConditionRatingText(m.siteConditions())));
    select(ui_->otherTurns, m.otherTurns(), QString::number(m.otherTurns()));
    loadCalculatedValues();
}

void ZOLManHoursEntryViewController::loadCalculatedValues() {
    const ZOLManHours& m = manHours();
    auto grade = [](QLabel* label, int32_t rating) {
        label->setText(qs(ZOLFormat::format("%d", rating)));
    };
    grade(ui_->sqftWallGrade, m.getSquareFeetOfWallRating());
    grade(ui_->cornersAndTsGrade, m.getCornersAndTsRating());
    grade(ui_->sqftOpeningsGrade, m.getSquareFeetOfOpeningsRating());
    grade(ui_->lfCorbelCurbTaperedGrade, m.getLinearFeetCorbelCurbTaperedRating());
    grade(ui_->wallHeightGrade, m.getWallHeightRating());
    grade(ui_->crewSizeGrade, m.getCrewSizeRating());
    grade(ui_->rebarComplexityGrade, m.rebarComplexity());
    grade(ui_->crewExperienceGrade, m.crewExperience());
    grade(ui_->siteConditionsGrade, m.siteConditions());
    grade(ui_->otherTurnsGrade, m.otherTurns());
    ui_->totalGrade->setText(qs(ZOLFormat::format("%d", m.getTotalProjectRating())));
    ui_->targetManHours->setText(qs(ZOLFormat::format("%.3f", m.getManHourRate())));
    const double hours = m.getHoursToComplete();
    ui_->hoursToComplete->setText(qs(ZOLFormat::format("%.2f", hours)));
    ui_->daysToComplete->setText(qs(ZOLFormat::format("%.2f", m.getDaysToComplete())));
    const double cost = hours * m.laborCost();
    ui_->costOfLabor->setText(qs(ZOLFormat::format("$%.2f", cost)));
    const double perSqFt = m.squareFeetOfWall() > 0.0 ? cost / m.squareFeetOfWall() : 0.0;
    ui_->costPerSqFt->setText(qs(ZOLFormat::format("$%.2f", perSqFt)));
}

void ZOLManHoursEntryViewController::comboBoxSelectionDidChange(QComboBox* box, int index) {
    if (index < 0)
        return;
    ZOLManHours& m = manHours();
    const auto i = static_cast<uint64_t>(index);
    if (box == ui_->wallHeight) {
        const auto height = ZOLWallHeightBox::chosen(
            box, ZOLCalculatorMaster::getAvailableWallHeightsAtFourInches(), index);
        if (!height)
            return;
        m.setWallHeight(*height);
    } else if (box == ui_->crewSize) {
        m.setCrewSize(index + 1);
    } else if (box == ui_->rebarComplexity) {
        m.setRebarComplexity(Calc::getComplexityRatingForIndex(i));
    } else if (box == ui_->crewExperience) {
        m.setCrewExperience(Calc::getExperienceRatingForIndex(i));
    } else if (box == ui_->siteConditions) {
        m.setSiteConditions(Calc::getConditionRatingForIndex(i));
    } else if (box == ui_->otherTurns) {
        m.setOtherTurns(index);
    }
    box->setPlaceholderText(QString());
    loadCalculatedValues();
    emit edited();
}

void ZOLManHoursEntryViewController::pullDataFromWall() {
    if (!wallData_)
        wallData_ = std::make_shared<ZOLWall>();
    const ZOLWall& w = *wallData_;
    ZOLManHours& m = manHours();
    m.setCornersAndTs(ZOLNumeric::wrapAdd(
        ZOLNumeric::wrapAdd(w.insideCornerLocations(), w.outsideCornerLocations()),
        ZOLNumeric::wrapAdd(w.tBlockLocations(), w.angleLocations())));
    m.setLinearFeetCorbelCurbTapered(w.linearFeetCorbel() + w.linearFeetCurb() +
                                     w.linearFeetTapered());
    m.setSquareFeetOfOpenings(w.sqftOpenings());
    m.setSquareFeetOfWall(w.getGrossSqFtOfWall());
    m.setWallHeight(w.wallHeight());
    loadValues();
    emit edited();
    ZOLAlerts::run("Wall data retrieved.", "", {"OK"});
}

void ZOLManHoursEntryViewController::displayInfo(const QObject* sender) {
    ZOLInfoPopup::displayNamed(this, infoKeyForControl(sender ? sender->objectName() : QString()));
}
