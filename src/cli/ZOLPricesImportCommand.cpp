// zolest prices import WORKBOOK FILE.zp -o OUT: opens a price file into a workbook's price list,
// as the price list window's open does, and saves the workbook.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"

#include <memory>

namespace {
struct Options {
    std::string workbook;
    std::string prices;
    std::string output;
};

zolcli::Registrar reg("prices-import", [](CLI::App& root) {
    CLI::App& prices = zolcli::group(root, "prices", "Price files (.zp) of a workbook");
    auto* cmd = prices.add_subcommand(
        "import", "Replace a workbook's price list with a price file's and save the workbook");
    auto options = std::make_shared<Options>();
    cmd->add_option("WORKBOOK", options->workbook, "the workbook file (.zol)")->required();
    cmd->add_option("PRICES", options->prices, "the price file (.zp)")->required();
    cmd->add_option("-o,--output", options->output, "the workbook file to write (.zol)")
        ->required();
    cmd->footer("The workbook file keeps the prices, but opening it puts the default (zero) "
                "prices first and they win every look-up; use 'zolest takeoff --prices' to "
                "price a take-off.");
    cmd->callback([options] {
        auto workbook = zolcli::openWorkbook(options->workbook);
        if (!workbook)
            return;
        if (!zolcli::openPrices(options->prices, *workbook->pricingData()))
            return;
        zolcli::save(options->output, workbook->getXMLString(), ZOLFileKind::Workbook);
    });
});
} // namespace
