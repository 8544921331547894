#include "report/ZOLChangeOrder.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLManHourCalculator.h"
#include "calc/ZOLRebarCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

namespace {

using F = ZOLFormat;
using Status = ZOLChangeOrder::Status;

// An input as the screen shows it, and the stored value that decides whether it changed (a
// length of 100.004 ft shows as 100.00 but still moves the take-off).
struct Shown {
    double raw;
    std::string text;
};

Shown feet(double v) {
    return {v, F::format("%.2f ft", v)};
}
Shown squareFeet(double v) {
    return {v, F::format("%.2f sq ft", v)};
}
Shown inches(double v) {
    return {v, F::format("%.2f in", v)};
}
Shown wholeInches(int32_t v) {
    return {static_cast<double>(v), F::format("%d in", v)};
}
Shown whole(int32_t v) {
    return {static_cast<double>(v), F::format("%d", v)};
}
Shown plain(double v) {
    return {v, F::format("%.2f", v)};
}
Shown onOff(bool v) {
    return {v ? 1.0 : 0.0, v ? "on" : "off"};
}
Shown heightList(double v) {
    return {v, ZOLCalculatorMaster::convertFeetToText(v)};
}
Shown measurement(int32_t v) {
    return {static_cast<double>(v), v == 0 ? "Imperial" : "Metric"};
}

// A bar size by the name the rebar screen lists it under, or its number when the list has none.
Shown barSize(int32_t measurementCode, int32_t size) {
    if (auto name = ZOLRebarCalculator::getRebarSizeNameWithMeasurement(measurementCode, size))
        return {static_cast<double>(size), *name};
    return whole(size);
}

template <class R> struct FieldRow {
    const char* field;
    const char* label;
    Shown (*show)(const R&);
};

template <class R> struct ResultRow {
    const char* name;
    const char* label;
    const char* unit;
    bool whole;
    double (*get)(const R&);
};

const FieldRow<ZOLWall> kWallFields[] = {
    {"blockSize", "Block size",
     [](const ZOLWall& w) {
         return Shown{double(w.blockSize()), F::format("%d\"", w.blockSize())};
     }},
    {"wallHeight", "Wall height", [](const ZOLWall& w) { return heightList(w.wallHeight()); }},
    {"wallLength", "Wall length", [](const ZOLWall& w) { return feet(w.wallLength()); }},
    {"insideCornerLocations", "Inside corners",
     [](const ZOLWall& w) { return whole(w.insideCornerLocations()); }},
    {"outsideCornerLocations", "Outside corners",
     [](const ZOLWall& w) { return whole(w.outsideCornerLocations()); }},
    {"angleLocations", "45\u00B0 angles",
     [](const ZOLWall& w) { return whole(w.angleLocations()); }},
    {"tBlockLocations", "T-intersections",
     [](const ZOLWall& w) { return whole(w.tBlockLocations()); }},
    {"linearFeetCorbel", "Corbel", [](const ZOLWall& w) { return feet(w.linearFeetCorbel()); }},
    {"linearFeetCurb", "Curb", [](const ZOLWall& w) { return feet(w.linearFeetCurb()); }},
    {"curbCornerLocations", "Curb corners",
     [](const ZOLWall& w) { return whole(w.curbCornerLocations()); }},
    {"linearFeetTapered", "Tapered", [](const ZOLWall& w) { return feet(w.linearFeetTapered()); }},
    {"linearFeetRadius", "Radius wall",
     [](const ZOLWall& w) { return feet(w.linearFeetRadius()); }},
    {"radius", "Radius",
     [](const ZOLWall& w) {
         return Shown{double(w.radius()), F::format("%d ft", w.radius())};
     }},
    {"sqftOpenings", "Openings", [](const ZOLWall& w) { return squareFeet(w.sqftOpenings()); }},
    {"linearFeetBuck", "Zol Buck", [](const ZOLWall& w) { return feet(w.linearFeetBuck()); }},
    {"straightBlockAdded", "Added straight blocks",
     [](const ZOLWall& w) { return whole(w.straightBlockAdded()); }},
    {"cornerBlockAdded", "Added corner blocks",
     [](const ZOLWall& w) { return whole(w.cornerBlockAdded()); }},
    {"caloraStickLayers", "Calora stick layers",
     [](const ZOLWall& w) { return whole(w.caloraStickLayers()); }},
    {"useCutBlock", "Cut course", [](const ZOLWall& w) { return onOff(w.useCutBlock()); }},
    {"useHalfBlock", "Half course", [](const ZOLWall& w) { return onOff(w.useHalfBlock()); }},
    {"useExtenders", "Extenders", [](const ZOLWall& w) { return onOff(w.useExtenders()); }},
    {"usePravex", "Pravex", [](const ZOLWall& w) { return onOff(w.usePravex()); }},
    {"pelmoBrickHeight", "Brick height",
     [](const ZOLWall& w) { return plain(w.pelmoBrickHeight()); }},
    {"pelmoBrickLength", "Brick length",
     [](const ZOLWall& w) { return feet(w.pelmoBrickLength()); }},
    {"pelmoPerBlock", "Pelmo per block", [](const ZOLWall& w) { return whole(w.pelmoPerBlock()); }},
    {"wastePercentage", "Waste",
     [](const ZOLWall& w) {
         return Shown{w.wastePercentage(), F::format("%g %%", w.wastePercentage() * 100.0)};
     }},
};

const ResultRow<ZOLWall> kWallResults[] = {
    {"getTotalWallHeight", "Total height", "ft", false,
     [](const ZOLWall& w) { return w.getTotalWallHeight(); }},
    {"getGrossSqFtOfWall", "Gross area", "sq ft", false,
     [](const ZOLWall& w) { return w.getGrossSqFtOfWall(); }},
    {"getNetSqFtOfWall", "Net area", "sq ft", false,
     [](const ZOLWall& w) { return w.getNetSqFtOfWall(); }},
    {"getRadiusBlocks", "Radius blocks", "", true,
     [](const ZOLWall& w) { return double(w.getRadiusBlocks()); }},
    {"getTotalPartsWeight", "Total weight", "lbs", false,
     [](const ZOLWall& w) { return w.getTotalPartsWeight(); }},
    {"getTrucks", "Trucks", "truck loads", false, [](const ZOLWall& w) { return w.getTrucks(); }},
    {"getConcreteYards", "Wall concrete", "cu yd", false,
     [](const ZOLWall& w) { return w.getConcreteYards(); }},
    {"getConcreteMeters", "Wall concrete", "cu m", false,
     [](const ZOLWall& w) { return w.getConcreteMeters(); }},
    {"getBracing", "Bracing", "", true, [](const ZOLWall& w) { return double(w.getBracing()); }},
    {"getLinearFeetRebar", "Rebar", "lin ft", false,
     [](const ZOLWall& w) { return w.getLinearFeetRebar(); }},
};

const ResultRow<ZOLOpenings> kOpeningsResults[] = {
    {"getTotalSquareFeet", "Openings area", "sq ft", false,
     [](const ZOLOpenings& o) { return o.getTotalSquareFeet(); }},
    {"getTotalLinearFeet", "Openings perimeter", "lin ft", false,
     [](const ZOLOpenings& o) { return o.getTotalLinearFeet(); }},
    {"getTotalLinearFeetOfBuck", "Buck", "lin ft", false,
     [](const ZOLOpenings& o) { return o.getTotalLinearFeetOfBuck(); }},
};

const FieldRow<ZOLRebar> kRebarFields[] = {
    {"measurement", "Measurement", [](const ZOLRebar& r) { return measurement(r.measurement()); }},
    {"wallLength", "Wall length", [](const ZOLRebar& r) { return feet(r.wallLength()); }},
    {"wallHeight", "Wall height", [](const ZOLRebar& r) { return feet(r.wallHeight()); }},
    {"horizontalSize1", "Horizontal size 1",
     [](const ZOLRebar& r) { return barSize(r.measurement(), r.horizontalSize1()); }},
    {"horizontalRowCount1", "Horizontal rows 1",
     [](const ZOLRebar& r) { return whole(r.horizontalRowCount1()); }},
    {"horizontalLap1", "Horizontal lap 1",
     [](const ZOLRebar& r) { return wholeInches(r.horizontalLap1()); }},
    {"horizontalSize2", "Horizontal size 2",
     [](const ZOLRebar& r) { return barSize(r.measurement(), r.horizontalSize2()); }},
    {"horizontalRowCount2", "Horizontal rows 2",
     [](const ZOLRebar& r) { return whole(r.horizontalRowCount2()); }},
    {"horizontalLap2", "Horizontal lap 2",
     [](const ZOLRebar& r) { return wholeInches(r.horizontalLap2()); }},
    {"verticalSize", "Vertical size",
     [](const ZOLRebar& r) { return barSize(r.measurement(), r.verticalSize()); }},
    {"verticalSpacing", "Vertical spacing",
     [](const ZOLRebar& r) { return wholeInches(r.verticalSpacing()); }},
    {"dowelSize", "Dowel size",
     [](const ZOLRebar& r) { return barSize(r.measurement(), r.dowelSize()); }},
    {"dowelSpacing", "Dowel spacing",
     [](const ZOLRebar& r) { return wholeInches(r.dowelSpacing()); }},
    {"dowelLength", "Dowel length", [](const ZOLRebar& r) { return wholeInches(r.dowelLength()); }},
};

const ResultRow<ZOLRebar> kRebarResults[] = {
    {"getHorizontalLength1", "Horizontal steel 1", "lin ft", false,
     [](const ZOLRebar& r) { return r.getHorizontalLength1(); }},
    {"getHorizontalLength2", "Horizontal steel 2", "lin ft", false,
     [](const ZOLRebar& r) { return r.getHorizontalLength2(); }},
    {"getVerticalLength", "Vertical steel", "lin ft", false,
     [](const ZOLRebar& r) { return r.getVerticalLength(); }},
    {"getDowelLength", "Dowels", "lin ft", false,
     [](const ZOLRebar& r) { return r.getDowelLength(); }},
};

const FieldRow<ZOLConcrete> kConcreteFields[] = {
    {"measurement", "Measurement",
     [](const ZOLConcrete& c) { return measurement(c.measurement()); }},
    {"footingWidth", "Footing width",
     [](const ZOLConcrete& c) { return wholeInches(c.footingWidth()); }},
    {"footingLength", "Footing length",
     [](const ZOLConcrete& c) { return feet(c.footingLength()); }},
    {"footingDepth", "Footing depth",
     [](const ZOLConcrete& c) { return wholeInches(c.footingDepth()); }},
    {"pileDepth", "Pile depth", [](const ZOLConcrete& c) { return feet(c.pileDepth()); }},
    {"pileDiameter", "Pile diameter",
     [](const ZOLConcrete& c) { return wholeInches(c.pileDiameter()); }},
    {"pileCount", "Piles", [](const ZOLConcrete& c) { return whole(c.pileCount()); }},
    {"slabLength", "Slab length", [](const ZOLConcrete& c) { return feet(c.slabLength()); }},
    {"slabWidth", "Slab width", [](const ZOLConcrete& c) { return feet(c.slabWidth()); }},
    {"slabDepth", "Slab depth", [](const ZOLConcrete& c) { return wholeInches(c.slabDepth()); }},
    {"wallLength", "Wall length", [](const ZOLConcrete& c) { return feet(c.wallLength()); }},
    {"wallThickness", "Wall thickness",
     [](const ZOLConcrete& c) { return wholeInches(c.wallThickness()); }},
    {"wallHeight", "Wall height", [](const ZOLConcrete& c) { return feet(c.wallHeight()); }},
    {"removeSqFtOpenings", "Less openings",
     [](const ZOLConcrete& c) { return onOff(c.removeSqFtOpenings()); }},
    {"sqFtOpenings", "Openings", [](const ZOLConcrete& c) { return squareFeet(c.sqFtOpenings()); }},
};

// Volumes are in the record's own measurement: cubic metres for Metric, cubic yards otherwise.
const ResultRow<ZOLConcrete> kConcreteResults[] = {
    {"getFootingVolume", "Footing", "volume", false,
     [](const ZOLConcrete& c) { return c.getFootingVolume(); }},
    {"getFootingWeight", "Footing weight", "lbs", false,
     [](const ZOLConcrete& c) { return c.getFootingWeight(); }},
    {"getPileVolume", "Piles", "volume", false,
     [](const ZOLConcrete& c) { return c.getPileVolume(); }},
    {"getPileWeight", "Piles weight", "lbs", false,
     [](const ZOLConcrete& c) { return c.getPileWeight(); }},
    {"getSlabVolume", "Slab", "volume", false,
     [](const ZOLConcrete& c) { return c.getSlabVolume(); }},
    {"getSlabWeight", "Slab weight", "lbs", false,
     [](const ZOLConcrete& c) { return c.getSlabWeight(); }},
    {"getWallVolume", "Wall pour", "volume", false,
     [](const ZOLConcrete& c) { return c.getWallVolume(); }},
    {"getWallWeight", "Wall pour weight", "lbs", false,
     [](const ZOLConcrete& c) { return c.getWallWeight(); }},
};

const FieldRow<ZOLTilt> kTiltFields[] = {
    {"wallHeight", "Wall height", [](const ZOLTilt& t) { return feet(t.wallHeight()); }},
    {"wallLength", "Wall length", [](const ZOLTilt& t) { return feet(t.wallLength()); }},
};

const ResultRow<ZOLTilt> kTiltResults[] = {
    {"getPanels", "Panels", "", true, [](const ZOLTilt& t) { return double(t.getPanels()); }},
    {"getPanelBundles", "Panel bundles", "", true,
     [](const ZOLTilt& t) { return double(t.getPanelBundles()); }},
    {"getPanelWeight", "Panel weight", "lbs", false,
     [](const ZOLTilt& t) { return t.getPanelWeight(); }},
    {"getInserts", "Inserts", "", true, [](const ZOLTilt& t) { return double(t.getInserts()); }},
    {"getInsertBundles", "Insert bundles", "", true,
     [](const ZOLTilt& t) { return double(t.getInsertBundles()); }},
    {"getInsertWeight", "Insert weight", "lbs", false,
     [](const ZOLTilt& t) { return t.getInsertWeight(); }},
};

const FieldRow<ZOLManHours> kManHourFields[] = {
    {"squareFeetOfWall", "Square feet of wall",
     [](const ZOLManHours& h) { return squareFeet(h.squareFeetOfWall()); }},
    {"cornersAndTs", "Corners and Ts",
     [](const ZOLManHours& h) { return whole(h.cornersAndTs()); }},
    {"squareFeetOfOpenings", "Square feet of openings",
     [](const ZOLManHours& h) { return squareFeet(h.squareFeetOfOpenings()); }},
    {"linearFeetCorbelCurbTapered", "Corbel, curb and tapered",
     [](const ZOLManHours& h) { return feet(h.linearFeetCorbelCurbTapered()); }},
    {"wallHeight", "Wall height", [](const ZOLManHours& h) { return feet(h.wallHeight()); }},
    {"rebarComplexity", "Rebar complexity",
     [](const ZOLManHours& h) {
         return Shown{double(h.rebarComplexity()),
                      ZOLManHourCalculator::getComplexityRatingText(h.rebarComplexity())};
     }},
    {"crewExperience", "Crew experience",
     [](const ZOLManHours& h) {
         return Shown{double(h.crewExperience()),
                      ZOLManHourCalculator::getExperienceRatingText(h.crewExperience())};
     }},
    {"siteConditions", "Site conditions",
     [](const ZOLManHours& h) {
         return Shown{double(h.siteConditions()),
                      ZOLManHourCalculator::getConditionRatingText(h.siteConditions())};
     }},
    {"otherTurns", "Other turns", [](const ZOLManHours& h) { return whole(h.otherTurns()); }},
    {"laborCost", "Labour cost",
     [](const ZOLManHours& h) {
         return Shown{h.laborCost(), F::format("$%.2f per man hour", h.laborCost())};
     }},
    {"crewSize", "Crew size", [](const ZOLManHours& h) { return whole(h.crewSize()); }},
};

const ResultRow<ZOLManHours> kManHourResults[] = {
    {"getTotalProjectRating", "Project rating", "", true,
     [](const ZOLManHours& h) { return double(h.getTotalProjectRating()); }},
    {"getManHourRate", "Man-hour rate", "man hours per sq ft", false,
     [](const ZOLManHours& h) { return h.getManHourRate(); }},
    {"getHoursToComplete", "Hours to complete", "man hours", false,
     [](const ZOLManHours& h) { return h.getHoursToComplete(); }},
    {"getDaysToComplete", "Days to complete", "days", false,
     [](const ZOLManHours& h) { return h.getDaysToComplete(); }},
    {"laborCost", "Labour cost", "$", false,
     [](const ZOLManHours& h) { return h.getHoursToComplete() * h.laborCost(); }},
};

// A worksheet's record of one kind; a worksheet missing from one version (or a record missing
// from a damaged worksheet) counts as a fresh record, whose take-off is all zeros for the wall.
template <class R>
const R& recordOf(const ZOLWorksheet* sheet,
                  const std::shared_ptr<R>& (ZOLWorksheet::*record)() const) {
    static const R fresh;
    return sheet && (sheet->*record)() ? *(sheet->*record)() : fresh;
}

// The two sides of a worksheet; either may be missing.
struct Pair {
    const ZOLWorksheet* older;
    const ZOLWorksheet* newer;
};

template <class R, std::size_t N>
void compareFields(std::vector<ZOLChangeOrder::Field>& out, const char* recordName,
                   const FieldRow<R> (&rows)[N], const R& older, const R& newer) {
    for (const auto& row : rows) {
        const Shown a = row.show(older);
        const Shown b = row.show(newer);
        if (ZOLChangeOrder::Amount{a.raw, b.raw}.differs() || a.text != b.text)
            out.push_back({recordName, row.field, row.label, a.text, b.text});
    }
}

template <class R, std::size_t N>
void compareResults(std::vector<ZOLChangeOrder::Result>& out, const char* recordName,
                    const ResultRow<R> (&rows)[N], const R* older, const R* newer,
                    const char* volumeUnit = "") {
    for (const auto& row : rows) {
        ZOLChangeOrder::Amount amount{older ? row.get(*older) : 0.0,
                                      newer ? row.get(*newer) : 0.0};
        if (!amount.differs())
            continue;
        const std::string unit = std::string(row.unit) == "volume" ? volumeUnit : row.unit;
        out.push_back({recordName, row.name, row.label, unit, row.whole, amount});
    }
}

// Opening rows are matched by their place in the list: the screen numbers them that way.
void compareOpeningRows(std::vector<ZOLChangeOrder::Field>& out, const ZOLOpenings& older,
                        const ZOLOpenings& newer) {
    const auto& a = older.openingList();
    const auto& b = newer.openingList();
    struct RowField {
        const char* field;
        const char* label;
        Shown (*show)(const ZOLOpening&);
    };
    static const RowField kRowFields[] = {
        {"numberOfOpenings", "number",
         [](const ZOLOpening& o) { return whole(o.numberOfOpenings()); }},
        {"openingWidth", "width", [](const ZOLOpening& o) { return inches(o.openingWidth()); }},
        {"openingHeight", "height", [](const ZOLOpening& o) { return inches(o.openingHeight()); }},
        {"useSill", "sill", [](const ZOLOpening& o) { return onOff(o.useSill()); }},
    };
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        const ZOLOpening* oldRow = i < a.size() ? a[i].get() : nullptr;
        const ZOLOpening* newRow = i < b.size() ? b[i].get() : nullptr;
        for (const auto& row : kRowFields) {
            std::optional<Shown> x, y;
            if (oldRow)
                x = row.show(*oldRow);
            if (newRow)
                y = row.show(*newRow);
            if (x && y && !ZOLChangeOrder::Amount{x->raw, y->raw}.differs())
                continue;
            if (!x && !y)
                continue;
            out.push_back({"Openings", row.field,
                           F::format("Row %d %@", static_cast<int32_t>(i + 1), row.label),
                           x ? std::optional(x->text) : std::nullopt,
                           y ? std::optional(y->text) : std::nullopt});
        }
    }
}

std::vector<ZOLChangeOrder::Part> compareParts(const ZOLWall* older, const ZOLWall* newer) {
    std::vector<ZOLChangeOrder::Part> parts;
    auto side = [](const ZOLWall* wall, auto query) { return wall ? query(*wall) : 0.0; };
    for (int32_t t = 0; t < ZOLWallData::kPartTypeCount; ++t) {
        auto amount = [&](auto query) {
            return ZOLChangeOrder::Amount{side(older, query), side(newer, query)};
        };
        ZOLChangeOrder::Part part{
            t,
            ZOLWallData::getPartNameWithBlockType(t).value_or(""),
            amount([t](const ZOLWall& w) { return double(w.getPartCountWithPartType(t)); }),
            amount([t](const ZOLWall& w) {
                return double(w.getPartCountRoundedToFullBundlesWithPartType(t));
            }),
            amount([t](const ZOLWall& w) { return double(w.getTotalBundlesWithPartType(t)); }),
            amount([t](const ZOLWall& w) { return w.getApproximateWeightWithPartType(t, false); }),
        };
        if (part.count.differs() || part.fullBundles.differs() || part.bundles.differs() ||
            part.weight.differs())
            parts.push_back(std::move(part));
    }
    return parts;
}

const char* volumeUnitOf(const ZOLConcrete& concrete) {
    return concrete.measurement() == 1 ? "cu m" : "cu yd";
}

ZOLChangeOrder::Worksheet compareWorksheet(const Pair& pair) {
    ZOLChangeOrder::Worksheet sheet;
    sheet.name = (pair.newer ? pair.newer : pair.older)->name();
    sheet.status = !pair.older ? Status::Added : !pair.newer ? Status::Removed : Status::Same;
    const bool both = pair.older && pair.newer;
    auto records = [&](auto record) {
        return std::pair{pair.older ? &recordOf(pair.older, record) : nullptr,
                         pair.newer ? &recordOf(pair.newer, record) : nullptr};
    };
    const auto walls = records(&ZOLWorksheet::wallData);
    const auto openings = records(&ZOLWorksheet::openingData);
    const auto rebars = records(&ZOLWorksheet::rebarData);
    const auto concretes = records(&ZOLWorksheet::concreteData);
    const auto tilts = records(&ZOLWorksheet::tiltData);
    const auto hours = records(&ZOLWorksheet::manHourData);
    if (both) {
        compareFields(sheet.fields, "Wall", kWallFields, *walls.first, *walls.second);
        compareOpeningRows(sheet.fields, *openings.first, *openings.second);
        compareFields(sheet.fields, "Rebar", kRebarFields, *rebars.first, *rebars.second);
        compareFields(sheet.fields, "Concrete", kConcreteFields, *concretes.first,
                      *concretes.second);
        compareFields(sheet.fields, "Tilt-up", kTiltFields, *tilts.first, *tilts.second);
        compareFields(sheet.fields, "Man hours", kManHourFields, *hours.first, *hours.second);
    }
    sheet.parts = compareParts(walls.first, walls.second);
    compareResults(sheet.results, "Wall", kWallResults, walls.first, walls.second);
    compareResults(sheet.results, "Openings", kOpeningsResults, openings.first, openings.second);
    compareResults(sheet.results, "Rebar", kRebarResults, rebars.first, rebars.second);
    compareResults(sheet.results, "Concrete", kConcreteResults, concretes.first, concretes.second,
                   volumeUnitOf(*(concretes.second ? concretes.second : concretes.first)));
    compareResults(sheet.results, "Tilt-up", kTiltResults, tilts.first, tilts.second);
    compareResults(sheet.results, "Man hours", kManHourResults, hours.first, hours.second);
    if (both && (!sheet.fields.empty() || !sheet.parts.empty() || !sheet.results.empty()))
        sheet.status = Status::Changed;
    return sheet;
}

// Pairs each item of `newer` with the first unpaired item of `older` that `same` accepts;
// then the unpaired items of `older`, each alone.
template <class T, class Same>
std::vector<std::pair<const T*, const T*>> pairUp(const std::vector<std::shared_ptr<T>>& older,
                                                  const std::vector<std::shared_ptr<T>>& newer,
                                                  Same same) {
    std::vector<bool> taken(older.size(), false);
    std::vector<std::pair<const T*, const T*>> pairs;
    for (const auto& item : newer) {
        if (!item)
            continue;
        const T* match = nullptr;
        for (std::size_t i = 0; i < older.size() && !match; ++i) {
            if (!taken[i] && older[i] && same(*older[i], *item)) {
                taken[i] = true;
                match = older[i].get();
            }
        }
        pairs.emplace_back(match, item.get());
    }
    for (std::size_t i = 0; i < older.size(); ++i)
        if (!taken[i] && older[i])
            pairs.emplace_back(older[i].get(), nullptr);
    return pairs;
}

// The workbook with the given price list and its job summary regenerated, its own lines left
// alone: the copy's lines are copies.
ZOLWorkbook pricedCopy(const ZOLWorkbook& workbook, const std::shared_ptr<ZOLPricing>& pricing) {
    ZOLWorkbook copy = workbook;
    ZOLWorkbook::CustomItems items;
    for (const auto& item : workbook.customItems())
        if (item)
            items.push_back(std::make_shared<ZOLCustomItem>(*item));
    copy.setCustomItems(std::move(items));
    copy.setPricingData(pricing ? pricing : std::make_shared<ZOLPricing>());
    copy.generateCustomItems();
    return copy;
}

double shownTotal(const ZOLCustomItem* item) {
    return item && item->visible() ? item->quantity() * item->cost() : 0.0;
}

} // namespace

ZOLChangeOrder::ZOLChangeOrder(const ZOLWorkbook& older, const ZOLWorkbook& newer,
                               std::shared_ptr<ZOLPricing> pricing) {
    if (!pricing)
        pricing = newer.pricingData();
    for (const auto& [a, b] :
         pairUp(older.worksheets(), newer.worksheets(),
                [](const ZOLWorksheet&x, const ZOLWorksheet&y) { return x.name() == y.name(); }))
        worksheets_.push_back(compareWorksheet({a, b}));

    auto addWalls = [](Amount& weight, Amount& trucks, const ZOLWorkbook& book, bool isNew) {
        for (const auto& sheet : book.worksheets()) {
            if (!sheet || !sheet->wallData())
                continue;
            (isNew ? weight.newValue : weight.oldValue) += sheet->wallData()->getTotalPartsWeight();
            (isNew ? trucks.newValue : trucks.oldValue) += sheet->wallData()->getTrucks();
        }
    };
    addWalls(weight_, trucks_, older, false);
    addWalls(weight_, trucks_, newer, true);

    const ZOLWorkbook oldPriced = pricedCopy(older, pricing);
    const ZOLWorkbook newPriced = pricedCopy(newer, pricing);
    const auto lines =
        pairUp(oldPriced.customItems(), newPriced.customItems(),
               [](const ZOLCustomItem& x, const ZOLCustomItem& y) {
                   return x.name() == y.name() && x.calculatorType() == y.calculatorType();
               });
    for (const auto& [a, b] : lines) {
        const ZOLCustomItem& shown = b ? *b : *a;
        SummaryLine line{shown.name().value_or(""),
                         shown.unit().value_or(""),
                         !a   ? Status::Added
                         : !b ? Status::Removed
                              : Status::Changed,
                         {a ? a->quantity() : 0.0, b ? b->quantity() : 0.0},
                         {a ? a->cost() : 0.0, b ? b->cost() : 0.0},
                         {shownTotal(a), shownTotal(b)}};
        money_.oldValue += line.total.oldValue;
        money_.newValue += line.total.newValue;
        const bool same = a && b && a->visible() == b->visible() && a->unit() == b->unit() &&
                          !line.quantity.differs() && !line.cost.differs();
        // A line hidden in both versions (or hidden in one and missing from the other) is on
        // neither job summary: nothing the client sees changed.
        const bool onSummary = (a && a->visible()) || (b && b->visible());
        if (!same && onSummary)
            jobSummary_.push_back(std::move(line));
    }
}

bool ZOLChangeOrder::isSame() const {
    for (const auto& sheet : worksheets_)
        if (sheet.status != Status::Same)
            return false;
    return jobSummary_.empty() && !money_.differs() && !weight_.differs() && !trucks_.differs();
}

const char* ZOLChangeOrder::statusText(Status status) {
    switch (status) {
    case Status::Same:
        return "same";
    case Status::Changed:
        return "changed";
    case Status::Added:
        return "added";
    case Status::Removed:
        return "removed";
    }
    return "same";
}
