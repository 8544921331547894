#pragma once
#include <string>

class ZOLWorkbook;

// The spreadsheet exports of a workbook: comma-separated text (RFC 4180: a header row, CRLF line
// ends, fields holding a comma, quote or line break quoted, quotes doubled), UTF-8, numbers
// with a full stop and no currency sign or thousands separator so that a spreadsheet reads
// them as numbers. The rows are the ones the Block Info and Workbook Summary tabs and the
// printed job summary show, worked out by the same code.
class ZOLCsvExport {
public:
    ZOLCsvExport() = delete;

    enum class Kind { OrderList, WorkbookSummary, JobSummary };

    // One row per worksheet and part with a non-zero count.
    static std::string getOrderListCSV(const ZOLWorkbook& workbook);
    // The Workbook Summary tab's lines, the free job-site sign, the totals last.
    static std::string getWorkbookSummaryCSV(const ZOLWorkbook& workbook);
    // The visible job-summary lines, the totals last. Brings the generated lines up to date
    // first, as printing does.
    static std::string getJobSummaryCSV(ZOLWorkbook& workbook);
    static std::string getCSV(Kind kind, ZOLWorkbook& workbook);

    // One field as it stands in a row: quoted when it must be.
    static std::string field(const std::string& text);
};
