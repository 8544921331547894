#include "report/ZOLJobSummary.h"

#include "io/ZOLNumeric.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLWorkbook.h"

ZOLJobSummary::Summary ZOLJobSummary::summarize(ZOLWorkbook& workbook) {
    workbook.generateCustomItems();
    Summary summary;
    for (const auto& item : workbook.customItems()) {
        if (!item || !item->visible())
            continue;
        Line line;
        line.name = item->name();
        line.quantity = item->quantity();
        line.unit = item->unit();
        line.unitPrice = item->cost();
        line.total = item->quantity() * item->cost();
        summary.totalQuantity = ZOLNumeric::toInt(summary.totalQuantity + line.quantity);
        summary.totalCost += line.total;
        summary.lines.push_back(std::move(line));
    }
    return summary;
}
