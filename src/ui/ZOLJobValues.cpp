#include "ui/ZOLJobValues.h"

#include "model/ZOLOpenings.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

#include <algorithm>

namespace {
template <class Record>
std::vector<Record> valuesOf(const std::vector<std::shared_ptr<Record>>& records) {
    std::vector<Record> values;
    values.reserve(records.size());
    for (const auto& record : records)
        values.push_back(record ? *record : Record());
    return values;
}

template <class Record>
std::vector<std::shared_ptr<Record>> recordsOf(const std::vector<Record>& values) {
    std::vector<std::shared_ptr<Record>> records;
    records.reserve(values.size());
    for (const Record& value : values)
        records.push_back(std::make_shared<Record>(value));
    return records;
}

ZOLJobValues::Sheet sheetValues(const ZOLWorksheet& sheet) {
    ZOLJobValues::Sheet values;
    values.wall = *sheet.wallData();
    values.concrete = *sheet.concreteData();
    values.rebar = *sheet.rebarData();
    values.tilt = *sheet.tiltData();
    values.manHours = *sheet.manHourData();
    values.openings = valuesOf(sheet.openingData()->openingList());
    return values;
}

void applySheet(const ZOLJobValues::Sheet& values, ZOLWorksheet& sheet) {
    *sheet.wallData() = values.wall;
    *sheet.concreteData() = values.concrete;
    *sheet.rebarData() = values.rebar;
    *sheet.tiltData() = values.tilt;
    *sheet.manHourData() = values.manHours;
    sheet.openingData()->setOpeningList(recordsOf(values.openings));
}
} // namespace

ZOLJobValues ZOLJobValues::capture(const ZOLWorkbook& workbook) {
    ZOLJobValues values;
    values.sheetList.emplace();
    for (const auto& sheet : workbook.worksheets()) {
        values.sheetList->emplace_back(sheet, sheet->name());
        values.sheets.emplace_back(sheet, sheetValues(*sheet));
    }
    values.header = Header{workbook.projectName(), workbook.clientName(), workbook.projectVersion(),
                           workbook.distributorName(), workbook.projectDate()};
    values.notes = workbook.notes();
    values.prices = workbook.pricingData() ? valuesOf(workbook.pricingData()->priceItems())
                                           : std::vector<ZOLPriceItem>();
    values.summary =
        Summary{valuesOf(workbook.customItems()),
                workbook.roundToFullBundles(),
                {workbook.summarizeWall(), workbook.summarizeRebar(), workbook.summarizeConcrete(),
                 workbook.summarizeTilt(), workbook.summarizeManHours()}};
    return values;
}

void ZOLJobValues::difference(const ZOLJobValues& was, const ZOLJobValues& is, ZOLJobValues& before,
                              ZOLJobValues& after) {
    before = ZOLJobValues();
    after = ZOLJobValues();
    if (was.sheetList != is.sheetList) {
        before.sheetList = was.sheetList;
        after.sheetList = is.sheetList;
    }
    // Worksheets on both sides whose records differ; one added or deleted keeps its records.
    for (size_t i = 0; i < is.sheets.size(); ++i) {
        const auto& [sheet, values] = is.sheets[i];
        // Mostly at the same place in the list; looked for only after an add or a delete.
        auto old = was.sheets.begin() + static_cast<std::ptrdiff_t>(std::min(i, was.sheets.size()));
        if (old == was.sheets.end() || old->first != sheet)
            old = std::find_if(was.sheets.begin(), was.sheets.end(),
                               [&](const auto& entry) { return entry.first == sheet; });
        if (old != was.sheets.end() && !(old->second == values)) {
            before.sheets.emplace_back(sheet, old->second);
            after.sheets.emplace_back(sheet, values);
        }
    }
    const auto part = [](const auto& a, const auto& b, auto& into, auto& out) {
        if (a != b) {
            into = a;
            out = b;
        }
    };
    part(was.header, is.header, before.header, after.header);
    part(was.notes, is.notes, before.notes, after.notes);
    part(was.prices, is.prices, before.prices, after.prices);
    part(was.summary, is.summary, before.summary, after.summary);
}

void ZOLJobValues::applyTo(ZOLWorkbook& workbook) const {
    if (sheetList) {
        ZOLWorkbook::Worksheets list;
        for (const auto& [sheet, name] : *sheetList) {
            sheet->setName(name);
            list.push_back(sheet);
        }
        workbook.setWorksheets(std::move(list));
    }
    for (const auto& [sheet, values] : sheets)
        applySheet(values, *sheet);
    if (header) {
        workbook.setProjectName(header->projectName);
        workbook.setClientName(header->clientName);
        workbook.setProjectVersion(header->projectVersion);
        workbook.setDistributorName(header->distributorName);
        workbook.setProjectDate(header->projectDate);
    }
    if (notes)
        workbook.setNotes(*notes);
    if (prices && workbook.pricingData())
        workbook.pricingData()->setPriceItems(recordsOf(*prices));
    if (summary) {
        workbook.setCustomItems(recordsOf(summary->lines));
        workbook.setRoundToFullBundles(summary->roundToFullBundles);
        const auto& on = summary->switches;
        if (on.size() == 5) {
            workbook.setSummarizeWall(on[0]);
            workbook.setSummarizeRebar(on[1]);
            workbook.setSummarizeConcrete(on[2]);
            workbook.setSummarizeTilt(on[3]);
            workbook.setSummarizeManHours(on[4]);
        }
    }
}

bool ZOLJobValues::isEmpty() const {
    return !sheetList && sheets.empty() && !header && !notes && !prices && !summary;
}

bool ZOLJobValues::sameParts(const ZOLJobValues& other) const {
    if (sheets.size() != other.sheets.size())
        return false;
    for (size_t i = 0; i < sheets.size(); ++i)
        if (sheets[i].first != other.sheets[i].first)
            return false;
    return sheetList.has_value() == other.sheetList.has_value() &&
           header.has_value() == other.header.has_value() &&
           notes.has_value() == other.notes.has_value() &&
           prices.has_value() == other.prices.has_value() &&
           summary.has_value() == other.summary.has_value();
}
