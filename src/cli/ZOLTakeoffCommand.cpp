// zolest takeoff FILE [--json]: opens a workbook, regenerates its job summary and prints every
// worksheet's take-off (wall, openings, rebar, concrete, tilt-up, man hours), the workbook's
// wall areas and the job-summary lines.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "cli/ZOLEngineReport.h"
#include "cli/ZOLWallReport.h"
#include "io/ZOLFormat.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"

#include <iostream>
#include <memory>

namespace {

struct Options {
    std::string workbook;
    std::string prices;
    std::string jobTemplate;
    bool json = false;
};

nlohmann::json text(const std::optional<std::string>& value) {
    return value ? nlohmann::json(*value) : nlohmann::json(nullptr);
}

nlohmann::json customItemJson(const ZOLCustomItem& item) {
    return {
        {"name", text(item.name())},
        {"quantity", zolcli::number(item.quantity())},
        {"unit", text(item.unit())},
        {"cost", zolcli::number(item.cost())},
        {"tiedToWorkbook", item.tiedToWorkbook()},
        {"calculatorType", text(item.calculatorType())},
        {"visible", item.visible()},
    };
}

nlohmann::json takeoffJson(const ZOLWorkbook& workbook) {
    nlohmann::json worksheets = nlohmann::json::array();
    for (const auto& sheet : workbook.worksheets()) {
        worksheets.push_back({
            {"name", text(sheet->name())},
            {"wall", zolcli::wallJson(*sheet->wallData())},
            {"openings", zolcli::openingsJson(*sheet->openingData())},
            {"rebar", zolcli::rebarJson(*sheet->rebarData())},
            {"concrete", zolcli::concreteJson(*sheet->concreteData())},
            {"tilt", zolcli::tiltJson(*sheet->tiltData())},
            {"manHours", zolcli::manHoursJson(*sheet->manHourData())},
        });
    }
    nlohmann::json items = nlohmann::json::array();
    for (const auto& item : workbook.customItems())
        items.push_back(customItemJson(*item));
    return {
        {"worksheets", worksheets},
        {"getTotalGrossSquareFeet", zolcli::number(workbook.getTotalGrossSquareFeet())},
        {"getTotalNetSquareFeet", zolcli::number(workbook.getTotalNetSquareFeet())},
        {"customItems", items},
    };
}

void printTakeoff(std::ostream& out, const ZOLWorkbook& workbook) {
    for (const auto& sheet : workbook.worksheets()) {
        out << ZOLFormat::format("==== Worksheet: %@ ====\n\n", sheet->name());
        zolcli::printWallTakeoff(out, *sheet->wallData());
        out << "\n";
        zolcli::printOpenings(out, *sheet->openingData());
        out << "\n";
        zolcli::printRebar(out, *sheet->rebarData());
        out << "\n";
        zolcli::printConcrete(out, *sheet->concreteData());
        out << "\n";
        zolcli::printTilt(out, *sheet->tiltData());
        out << "\n";
        zolcli::printManHours(out, *sheet->manHourData());
        out << "\n";
    }
    out << "==== Workbook ====\n\n";
    out << ZOLFormat::format("Total gross square feet of wall  %.2f\n",
                             workbook.getTotalGrossSquareFeet());
    out << ZOLFormat::format("Total net square feet of wall    %.2f\n\n",
                             workbook.getTotalNetSquareFeet());
    out << "Job summary\n";
    out << ZOLFormat::format("  %-32s %12s %-12s %12s %14s\n", "Item", "Quantity", "Unit",
                             "Unit price", "Total");
    double total = 0.0;
    for (const auto& item : workbook.customItems()) {
        const double line = item->quantity() * item->cost();
        if (item->visible())
            total += line;
        out << ZOLFormat::format(
            "  %-32s %12.2f %-12s %12s %14s%s\n", item->name(), item->quantity(), item->unit(),
            ZOLFormat::format("$%.2f", item->cost()), ZOLFormat::format("$%.2f", line),
            std::string(item->visible() ? "" : "  (hidden)"));
    }
    out << ZOLFormat::format("  %-32s %54s\n", "Total of the shown lines",
                             ZOLFormat::format("$%.2f", total));
}

zolcli::Registrar reg("takeoff", [](CLI::App& root) {
    auto* cmd = root.add_subcommand(
        "takeoff", "Print the take-off of every worksheet of a workbook and its job summary");
    auto options = std::make_shared<Options>();
    cmd->add_option("FILE", options->workbook, "the workbook file (.zol)")->required();
    zolcli::addJobFileOptions(*cmd, options->prices, options->jobTemplate);
    cmd->add_flag("--json", options->json, "print one JSON object instead of text");
    cmd->callback([options] {
        auto workbook = zolcli::openWorkbook(options->workbook);
        if (!workbook)
            return;
        if (!zolcli::loadJobFiles(*workbook, options->prices, options->jobTemplate))
            return;
        workbook->generateCustomItems();
        if (options->json)
            zolcli::printJson(takeoffJson(*workbook));
        else
            printTakeoff(std::cout, *workbook);
    });
});

} // namespace
