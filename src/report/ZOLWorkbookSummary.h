#pragma once
#include <cstdint>
#include <string>
#include <vector>

class ZOLWorkbook;

// The workbook summary: the blocks and accessories of every worksheet, priced from the price
// list. The printed page, the Workbook Summary tab and the spreadsheet export all show these
// lines, so they are worked out here once.
class ZOLWorkbookSummary {
public:
    ZOLWorkbookSummary() = delete;

    // One line of the summary: a block shape of one size, or an accessory.
    struct Row {
        std::string name;
        int32_t quantity = 0;
        double unitPrice = 0.0;
        double totalCost = 0.0;
        double squareFootCost = 0.0;
        double weight = 0.0;
    };
    struct Summary {
        std::vector<Row> rows; // blocks by size, then accessories; empty when no block is used
        int32_t totalQuantity = 0;
        double totalCost = 0.0;
        double squareFootCost = 0.0;
        double totalWeight = 0.0;
        double grossSquareFeet = 0.0;
    };

    // The job-site sign ships free with every order: listed after the rows, in no total.
    static constexpr const char* kSignName = "Zol Blocks Job Site Sign";

    static Summary summarize(const ZOLWorkbook& workbook);
};
