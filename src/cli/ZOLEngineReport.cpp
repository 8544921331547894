#include "cli/ZOLEngineReport.h"

#include "calc/ZOLConcreteCalculator.h"
#include "calc/ZOLManHourCalculator.h"
#include "calc/ZOLRebarCalculator.h"
#include "calc/ZOLTiltCalculator.h"
#include "cli/ZOLCliSupport.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"

#include <cmath>
#include <vector>

namespace zolcli {

namespace {

constexpr std::size_t kLabelWidth = 32;

// A double with two (or `decimals`) places and its unit. A spacing under a foot makes the
// rebar lengths infinite; say so in words rather than printing "inf".
std::string amount(double value, const char* unit, int decimals = 2) {
    if (std::isnan(value))
        return "not a number";
    if (std::isinf(value))
        return value > 0 ? "infinite" : "-infinite";
    std::string text = ZOLFormat::format(decimals == 3 ? "%.3f" : "%.2f", value);
    if (unit && *unit)
        text += std::string(" ") + unit;
    return text;
}

std::string money(double value) {
    if (!std::isfinite(value))
        return amount(value, "");
    return ZOLFormat::format("$%.2f", value);
}

std::string count(int32_t value, const char* unit = "") {
    std::string text = ZOLFormat::format("%d", value);
    if (unit && *unit)
        text += std::string(" ") + unit;
    return text;
}

void heading(std::ostream& out, const std::string& title) {
    out << title << "\n";
}

void row(std::ostream& out, const std::string& label, const std::string& value) {
    std::string padded = "  " + label;
    if (padded.size() < kLabelWidth)
        padded.resize(kLabelWidth, ' ');
    else
        padded += ' ';
    out << padded << value << "\n";
}

nlohmann::json optionalText(const std::optional<std::string>& text) {
    return text ? nlohmann::json(*text) : nlohmann::json(nullptr);
}

const char* rebarSystemName(int32_t measurement) {
    return measurement == 0 ? "Imperial" : "Metric";
}

std::string sizeText(int32_t measurement, int32_t size) {
    const auto name = rebarSizeName(measurement, size);
    return count(size) + " (" +
           (name ? *name : std::string("no ") + rebarSystemName(measurement) + " size") + ")";
}

// Volumes are cubic metres only for measurement 1, as the concrete calculator computes them.
const char* volumeUnit(int32_t measurement) {
    return measurement == 1 ? "cu m" : "cu yd";
}

} // namespace

std::optional<std::string> rebarSizeName(int32_t measurement, int32_t size) {
    return ZOLRebarCalculator::getRebarSizeNameWithMeasurement(measurement, size);
}

nlohmann::json rebarJson(const ZOLRebar& rebar) {
    const int32_t m = rebar.measurement();
    nlohmann::json fields{
        {"measurement", m},
        {"wallLength", number(rebar.wallLength())},
        {"wallHeight", number(rebar.wallHeight())},
        {"horizontalSize1", rebar.horizontalSize1()},
        {"horizontalRowCount1", rebar.horizontalRowCount1()},
        {"horizontalLap1", rebar.horizontalLap1()},
        {"horizontalSize2", rebar.horizontalSize2()},
        {"horizontalRowCount2", rebar.horizontalRowCount2()},
        {"horizontalLap2", rebar.horizontalLap2()},
        {"verticalSize", rebar.verticalSize()},
        {"verticalSpacing", rebar.verticalSpacing()},
        {"dowelSize", rebar.dowelSize()},
        {"dowelSpacing", rebar.dowelSpacing()},
        {"dowelLength", rebar.dowelLength()},
    };
    return nlohmann::json{
        {"fields", std::move(fields)},
        {"getHorizontalLength1", number(rebar.getHorizontalLength1())},
        {"getHorizontalLength2", number(rebar.getHorizontalLength2())},
        {"getVerticalLength", number(rebar.getVerticalLength())},
        {"getDowelLength", number(rebar.getDowelLength())},
        {"horizontalSize1Name", optionalText(rebarSizeName(m, rebar.horizontalSize1()))},
        {"horizontalSize2Name", optionalText(rebarSizeName(m, rebar.horizontalSize2()))},
        {"verticalSizeName", optionalText(rebarSizeName(m, rebar.verticalSize()))},
        {"dowelSizeName", optionalText(rebarSizeName(m, rebar.dowelSize()))},
    };
}

nlohmann::json concreteJson(const ZOLConcrete& c) {
    nlohmann::json fields{
        {"measurement", c.measurement()},
        {"footingWidth", c.footingWidth()},
        {"footingLength", number(c.footingLength())},
        {"footingDepth", c.footingDepth()},
        {"pileDepth", number(c.pileDepth())},
        {"pileDiameter", c.pileDiameter()},
        {"pileCount", c.pileCount()},
        {"slabLength", number(c.slabLength())},
        {"slabWidth", number(c.slabWidth())},
        {"slabDepth", c.slabDepth()},
        {"wallLength", number(c.wallLength())},
        {"wallThickness", c.wallThickness()},
        {"wallHeight", number(c.wallHeight())},
        {"removeSqFtOpenings", c.removeSqFtOpenings()},
        {"sqFtOpenings", number(c.sqFtOpenings())},
    };
    return nlohmann::json{
        {"fields", std::move(fields)},
        {"getFootingVolume", number(c.getFootingVolume())},
        {"getFootingWeight", number(c.getFootingWeight())},
        {"getPileVolume", number(c.getPileVolume())},
        {"getPileWeight", number(c.getPileWeight())},
        {"getSlabVolume", number(c.getSlabVolume())},
        {"getSlabWeight", number(c.getSlabWeight())},
        {"getWallVolume", number(c.getWallVolume())},
        {"getWallWeight", number(c.getWallWeight())},
    };
}

nlohmann::json tiltJson(const ZOLTilt& tilt) {
    return nlohmann::json{
        {"fields",
         {{"wallHeight", number(tilt.wallHeight())}, {"wallLength", number(tilt.wallLength())}}},
        {"getPanels", tilt.getPanels()},
        {"getPanelBundles", tilt.getPanelBundles()},
        {"getPanelWeight", number(tilt.getPanelWeight())},
        {"getInserts", tilt.getInserts()},
        {"getInsertBundles", tilt.getInsertBundles()},
        {"getInsertWeight", number(tilt.getInsertWeight())},
    };
}

nlohmann::json manHoursJson(const ZOLManHours& h) {
    nlohmann::json fields{
        {"squareFeetOfWall", number(h.squareFeetOfWall())},
        {"cornersAndTs", h.cornersAndTs()},
        {"squareFeetOfOpenings", number(h.squareFeetOfOpenings())},
        {"linearFeetCorbelCurbTapered", number(h.linearFeetCorbelCurbTapered())},
        {"wallHeight", number(h.wallHeight())},
        {"rebarComplexity", h.rebarComplexity()},
        {"crewExperience", h.crewExperience()},
        {"siteConditions", h.siteConditions()},
        {"otherTurns", h.otherTurns()},
        {"laborCost", number(h.laborCost())},
        {"crewSize", h.crewSize()},
    };
    return nlohmann::json{
        {"fields", std::move(fields)},
        {"getSquareFeetOfWallRating", h.getSquareFeetOfWallRating()},
        {"getCornersAndTsRating", h.getCornersAndTsRating()},
        {"getSquareFeetOfOpeningsRating", h.getSquareFeetOfOpeningsRating()},
        {"getLinearFeetCorbelCurbTaperedRating", h.getLinearFeetCorbelCurbTaperedRating()},
        {"getWallHeightRating", h.getWallHeightRating()},
        {"getOtherTurnsRating", h.getOtherTurnsRating()},
        {"getCrewSizeRating", h.getCrewSizeRating()},
        {"getTotalProjectRating", h.getTotalProjectRating()},
        {"getManHourRate", number(h.getManHourRate())},
        {"getHoursToComplete", number(h.getHoursToComplete())},
        {"getDaysToComplete", number(h.getDaysToComplete())},
        {"rebarComplexityText", ZOLManHourCalculator::getComplexityRatingText(h.rebarComplexity())},
        {"crewExperienceText", ZOLManHourCalculator::getExperienceRatingText(h.crewExperience())},
        {"siteConditionsText", ZOLManHourCalculator::getConditionRatingText(h.siteConditions())},
    };
}

void printRebar(std::ostream& out, const ZOLRebar& r) {
    const int32_t m = r.measurement();
    heading(out, std::string("Rebar (") + rebarSystemName(m) + " bar sizes)");
    row(out, "measurement", count(m) + " (" + rebarSystemName(m) + ")");
    row(out, "wallLength", amount(r.wallLength(), "ft"));
    row(out, "wallHeight", amount(r.wallHeight(), "ft"));
    row(out, "horizontalSize1", sizeText(m, r.horizontalSize1()));
    row(out, "horizontalRowCount1", count(r.horizontalRowCount1(), "rows"));
    row(out, "horizontalLap1", count(r.horizontalLap1(), "in"));
    row(out, "horizontalSize2", sizeText(m, r.horizontalSize2()));
    row(out, "horizontalRowCount2", count(r.horizontalRowCount2(), "rows"));
    row(out, "horizontalLap2", count(r.horizontalLap2(), "in"));
    row(out, "verticalSize", sizeText(m, r.verticalSize()));
    row(out, "verticalSpacing", count(r.verticalSpacing(), "in"));
    row(out, "dowelSize", sizeText(m, r.dowelSize()));
    row(out, "dowelSpacing", count(r.dowelSpacing(), "in"));
    row(out, "dowelLength", count(r.dowelLength(), "in"));
    out << "\n";
    heading(out, "Lengths of steel");
    auto named = [m](const char* label, int32_t size) {
        const auto name = rebarSizeName(m, size);
        return std::string(label) + " (" + (name ? *name : std::string("no size")) + ")";
    };
    row(out, named("Horizontal set 1", r.horizontalSize1()),
        amount(r.getHorizontalLength1(), "linear ft"));
    row(out, named("Horizontal set 2", r.horizontalSize2()),
        amount(r.getHorizontalLength2(), "linear ft"));
    row(out, named("Vertical bars", r.verticalSize()), amount(r.getVerticalLength(), "linear ft"));
    row(out, named("Dowels", r.dowelSize()), amount(r.getDowelLength(), "linear ft"));
}

void printConcrete(std::ostream& out, const ZOLConcrete& c) {
    const int32_t m = c.measurement();
    const char* unit = volumeUnit(m);
    heading(out, std::string("Concrete (volumes in ") + (m == 1 ? "cubic metres" : "cubic yards") +
                     ", weights in pounds)");
    row(out, "measurement", count(m) + " (" + (m == 1 ? "cubic metres" : "cubic yards") + ")");
    row(out, "footingWidth", count(c.footingWidth(), "in"));
    row(out, "footingLength", amount(c.footingLength(), "ft"));
    row(out, "footingDepth", count(c.footingDepth(), "in"));
    row(out, "pileDepth", amount(c.pileDepth(), "ft"));
    row(out, "pileDiameter", count(c.pileDiameter(), "in"));
    row(out, "pileCount", count(c.pileCount(), "piles"));
    row(out, "slabLength", amount(c.slabLength(), "ft"));
    row(out, "slabWidth", amount(c.slabWidth(), "ft"));
    row(out, "slabDepth", count(c.slabDepth(), "in"));
    row(out, "wallLength", amount(c.wallLength(), "ft"));
    row(out, "wallThickness", count(c.wallThickness(), "in"));
    row(out, "wallHeight", amount(c.wallHeight(), "ft"));
    row(out, "removeSqFtOpenings", ZOLText::boolText(c.removeSqFtOpenings()));
    row(out, "sqFtOpenings", amount(c.sqFtOpenings(), "sq ft"));
    out << "\n";
    heading(out, "Pours");
    auto pour = [&](const char* label, double volume, double weight) {
        row(out, label, amount(volume, unit) + ", " + amount(weight, "lbs"));
    };
    pour("Footing", c.getFootingVolume(), c.getFootingWeight());
    pour("Piles", c.getPileVolume(), c.getPileWeight());
    pour("Slab", c.getSlabVolume(), c.getSlabWeight());
    pour("Wall", c.getWallVolume(), c.getWallWeight());
    pour("Total", c.getFootingVolume() + c.getPileVolume() + c.getSlabVolume() + c.getWallVolume(),
         c.getFootingWeight() + c.getPileWeight() + c.getSlabWeight() + c.getWallWeight());
}

void printTilt(std::ostream& out, const ZOLTilt& t) {
    heading(out, "Tilt-up panels (one side of the wall)");
    row(out, "wallLength", amount(t.wallLength(), "ft"));
    row(out, "wallHeight", amount(t.wallHeight(), "ft"));
    row(out, "Wall area", amount(t.wallLength() * t.wallHeight(), "sq ft"));
    out << "\n";
    heading(out, "Panels and inserts");
    row(out, "Panels", count(t.getPanels()));
    row(out, "Panel bundles",
        count(t.getPanelBundles()) +
            ZOLFormat::format(" (%d panels per bundle)", ZOLTiltCalculator::getPanelBundleSize()));
    row(out, "Panel weight", amount(t.getPanelWeight(), "lbs"));
    row(out, "Inserts", count(t.getInserts()) + " (3 per panel)");
    row(out, "Insert bundles",
        count(t.getInsertBundles()) + ZOLFormat::format(" (%d inserts per bundle)",
                                                        ZOLTiltCalculator::getInsertBundleSize()));
    row(out, "Insert weight", amount(t.getInsertWeight(), "lbs"));
}

void printManHours(std::ostream& out, const ZOLManHours& h) {
    heading(out, "Man hours");
    row(out, "squareFeetOfWall", amount(h.squareFeetOfWall(), "sq ft"));
    row(out, "cornersAndTs", count(h.cornersAndTs()));
    row(out, "squareFeetOfOpenings", amount(h.squareFeetOfOpenings(), "sq ft"));
    row(out, "linearFeetCorbelCurbTapered", amount(h.linearFeetCorbelCurbTapered(), "ft"));
    row(out, "wallHeight", amount(h.wallHeight(), "ft"));
    row(out, "rebarComplexity",
        count(h.rebarComplexity()) + " (" +
            ZOLManHourCalculator::getComplexityRatingText(h.rebarComplexity()) + ")");
    row(out, "crewExperience",
        count(h.crewExperience()) + " (" +
            ZOLManHourCalculator::getExperienceRatingText(h.crewExperience()) + ")");
    row(out, "siteConditions",
        count(h.siteConditions()) + " (" +
            ZOLManHourCalculator::getConditionRatingText(h.siteConditions()) + ")");
    row(out, "otherTurns", count(h.otherTurns()));
    row(out, "laborCost", money(h.laborCost()) + " per man hour");
    row(out, "crewSize", count(h.crewSize(), "workers"));
    out << "\n";
    heading(out, "Ratings");
    row(out, "Square feet of wall", count(h.getSquareFeetOfWallRating()));
    row(out, "Corners and Ts", count(h.getCornersAndTsRating()));
    row(out, "Square feet of openings", count(h.getSquareFeetOfOpeningsRating()));
    row(out, "Corbel, curb and tapered", count(h.getLinearFeetCorbelCurbTaperedRating()));
    row(out, "Wall height", count(h.getWallHeightRating()));
    row(out, "Crew size", count(h.getCrewSizeRating()));
    row(out, "Rebar complexity", count(h.rebarComplexity()));
    row(out, "Crew experience", count(h.crewExperience()));
    row(out, "Site conditions", count(h.siteConditions()));
    row(out, "Other turns", count(h.getOtherTurnsRating()));
    row(out, "Total project rating", count(h.getTotalProjectRating()));
    out << "\n";
    heading(out, "Results");
    const double hours = h.getHoursToComplete();
    const double cost = hours * h.laborCost();
    row(out, "Man-hour rate", amount(h.getManHourRate(), "man hours per sq ft", 3));
    row(out, "Hours to complete", amount(hours, "man hours"));
    row(out, "Days to complete", amount(h.getDaysToComplete(), "days of 8.5 hours"));
    row(out, "Labour cost", money(cost));
    row(out, "Labour cost per sq ft",
        money(h.squareFeetOfWall() > 0 ? cost / h.squareFeetOfWall() : 0.0));
}

} // namespace zolcli
