#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class ZOLWorkbook;

// The job summary as it prints: the visible job-summary lines, each with its total, and the
// totals line. The printed page and the spreadsheet export both show these numbers.
class ZOLJobSummary {
public:
    ZOLJobSummary() = delete;

    struct Line {
        std::optional<std::string> name;
        double quantity = 0.0;
        std::optional<std::string> unit;
        double unitPrice = 0.0;
        double total = 0.0;
    };
    struct Summary {
        std::vector<Line> lines;
        // Whole units only: the fraction is dropped from the running sum at every line.
        int32_t totalQuantity = 0;
        double totalCost = 0.0;
    };

    // Brings the generated lines up to date with the worksheets first, as printing does.
    static Summary summarize(ZOLWorkbook& workbook);
};
