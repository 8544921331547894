#pragma once
#include <cstdint>

// What one read of a workbook, price or template file will hold. A file beyond any of these is
// no job file (a house has a handful of worksheets, a wall a few dozen openings, a price list 44
// items) and is reported like a parse error. Each worksheet, opening and price item is checked
// against its whole list when it is added, so the limits also bound the time a read takes.
struct ZOLReadLimits {
    int32_t worksheets = 2000;
    int32_t openingsPerWorksheet = 1000;
    int32_t priceItems = 2000;
    int32_t customItems = 2000;
    // Every model object a read creates (a worksheet counts with its six records, a price list
    // with its default items).
    int32_t objects = 250000;
};
