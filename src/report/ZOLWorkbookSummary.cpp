#include "report/ZOLWorkbookSummary.h"

#include "calc/ZOLWallCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

#include <memory>

namespace {

using WD = ZOLWallData;

double perSquareFoot(double cost, double grossSquareFeet) {
    return grossSquareFeet > 0.0 ? cost / grossSquareFeet : 0.0;
}

} // namespace

ZOLWorkbookSummary::Summary ZOLWorkbookSummary::summarize(const ZOLWorkbook& workbook) {
    Summary summary;
    summary.grossSquareFeet = workbook.getTotalGrossSquareFeet();
    // A worksheet always holds its wall; should one be missing it counts as a new, empty wall.
    std::vector<std::shared_ptr<ZOLWall>> walls;
    for (const auto& sheet : workbook.worksheets())
        if (sheet)
            walls.push_back(sheet->wallData() ? sheet->wallData() : std::make_shared<ZOLWall>());
    const auto& pricing = workbook.pricingData();
    auto add = [&summary, &pricing](std::string name, int32_t type, int32_t size,
                                    int32_t quantity) {
        Row row;
        row.name = std::move(name);
        row.quantity = quantity;
        row.unitPrice = pricing ? pricing->getPriceForItemType(type, size) : 0.0;
        row.totalCost = quantity * row.unitPrice;
        row.squareFootCost = perSquareFoot(row.totalCost, summary.grossSquareFeet);
        row.weight = ZOLWallCalculator::calculateBlockWeightWithBlockSize(size, type, quantity);
        summary.totalQuantity = ZOLNumeric::wrapAdd(summary.totalQuantity, row.quantity);
        summary.totalCost += row.totalCost;
        summary.totalWeight += row.weight;
        summary.rows.push_back(std::move(row));
    };

    // Blocks, size by size (only the sizes some wall uses), each count over the walls of that
    // size.
    for (int32_t size : WD::kBlockSizes) {
        bool used = false;
        for (const auto& wall : walls)
            used = used || wall->blockSize() == size;
        if (!used)
            continue;
        for (int32_t type = 0; type <= WD::kLastSizedPartType; ++type) {
            if (!WD::getValidSizeWithBlockType(type, size))
                continue;
            int32_t quantity = 0;
            for (const auto& wall : walls)
                if (wall->blockSize() == size)
                    quantity = ZOLNumeric::wrapAdd(quantity, wall->getPartCountWithPartType(type));
            if (quantity != 0)
                add(ZOLFormat::format("%d\" %@", size, WD::getPartNameWithBlockType(type)), type,
                    size, quantity);
        }
    }
    // Without a single block there is nothing to price: no accessories, no sign, no totals.
    if (summary.rows.empty())
        return summary;

    // Accessories fit every size: one row each over all walls, priced and weighed at the 4"
    // entry. Clips are counted, priced and weighed in bundles.
    for (int32_t type = WD::kFirstAccessory; type <= WD::kLastAccessory; ++type) {
        int32_t quantity = 0;
        for (const auto& wall : walls)
            quantity = ZOLNumeric::wrapAdd(quantity, type == WD::HVClips
                                                         ? wall->getTotalBundlesWithPartType(type)
                                                         : wall->getPartCountWithPartType(type));
        if (quantity != 0)
            add(ZOLFormat::format("%@", WD::getPartNameWithBlockType(type)), type,
                WD::kBlockSizes.front(), quantity);
    }
    summary.squareFootCost = perSquareFoot(summary.totalCost, summary.grossSquareFeet);
    return summary;
}
