#include "report/ZOLCsvExport.h"

#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "report/ZOLJobSummary.h"
#include "report/ZOLWorkbookSummary.h"

#include <initializer_list>

namespace {

void appendRow(std::string& csv, std::initializer_list<std::string> fields) {
    bool first = true;
    for (const std::string& text : fields) {
        if (!first)
            csv += ',';
        csv += ZOLCsvExport::field(text);
        first = false;
    }
    csv += "\r\n";
}

std::string count(int32_t value) {
    return ZOLFormat::format("%d", value);
}

std::string decimal(double value) {
    return ZOLFormat::format("%.2f", value);
}

std::string text(const std::optional<std::string>& value) {
    return value.value_or(std::string());
}

} // namespace

std::string ZOLCsvExport::field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    quoted += '"';
    return quoted;
}

std::string ZOLCsvExport::getOrderListCSV(const ZOLWorkbook& workbook) {
    std::string csv;
    appendRow(csv, {"Worksheet", "Part", "Block Size", "Count", "Per Bundle", "Full Bundles",
                    "Bundles", "Weight (lbs)"});
    for (const auto& sheet : workbook.worksheets()) {
        if (!sheet || !sheet->wallData())
            continue;
        const ZOLWall& wall = *sheet->wallData();
        // The columns of the Block Info tab, whose weight is that of the full bundles ordered.
        for (int32_t type = 0; type < ZOLWallData::kPartTypeCount; ++type) {
            const int32_t partCount = wall.getPartCountWithPartType(type);
            if (partCount == 0)
                continue;
            appendRow(csv, {text(sheet->name()), text(ZOLWallData::getPartNameWithBlockType(type)),
                            count(wall.blockSize()), count(partCount),
                            count(ZOLWallData::getBundleSizeWithBlockType(type, wall.blockSize())),
                            count(wall.getPartCountRoundedToFullBundlesWithPartType(type)),
                            count(wall.getTotalBundlesWithPartType(type)),
                            decimal(wall.getApproximateWeightWithPartType(type, true))});
        }
    }
    return csv;
}

std::string ZOLCsvExport::getWorkbookSummaryCSV(const ZOLWorkbook& workbook) {
    std::string csv;
    appendRow(csv, {"Part", "Quantity", "Unit Price", "Total Cost", "Sq Ft Cost", "Weight (lbs)"});
    const ZOLWorkbookSummary::Summary summary = ZOLWorkbookSummary::summarize(workbook);
    if (summary.rows.empty())
        return csv;
    for (const auto& row : summary.rows)
        appendRow(csv, {row.name, count(row.quantity), decimal(row.unitPrice),
                        decimal(row.totalCost), decimal(row.squareFootCost), decimal(row.weight)});
    appendRow(csv, {ZOLWorkbookSummary::kSignName, "1", "0.00", "0.00", "0.00", "0.00"});
    appendRow(csv, {"Totals", count(summary.totalQuantity), "", decimal(summary.totalCost),
                    decimal(summary.squareFootCost), decimal(summary.totalWeight)});
    return csv;
}

std::string ZOLCsvExport::getJobSummaryCSV(ZOLWorkbook& workbook) {
    std::string csv;
    appendRow(csv, {"Item", "Quantity", "Unit", "Unit Price", "Total"});
    const ZOLJobSummary::Summary summary = ZOLJobSummary::summarize(workbook);
    for (const auto& line : summary.lines)
        appendRow(csv, {text(line.name), decimal(line.quantity), text(line.unit),
                        decimal(line.unitPrice), decimal(line.total)});
    appendRow(csv, {"Totals", count(summary.totalQuantity), "", "", decimal(summary.totalCost)});
    return csv;
}

std::string ZOLCsvExport::getCSV(Kind kind, ZOLWorkbook& workbook) {
    switch (kind) {
    case Kind::OrderList:
        return getOrderListCSV(workbook);
    case Kind::WorkbookSummary:
        return getWorkbookSummaryCSV(workbook);
    case Kind::JobSummary:
        return getJobSummaryCSV(workbook);
    }
    return std::string();
}
