// zolest prices export WORKBOOK -o FILE.zp: saves a workbook's price list as a price file, as
// the price list window's save does.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"

#include <memory>

namespace {
struct Options {
    std::string workbook;
    std::string output;
};

zolcli::Registrar reg("prices-export", [](CLI::App& root) {
    CLI::App& prices = zolcli::group(root, "prices", "Price files (.zp) of a workbook");
    auto* cmd = prices.add_subcommand("export", "Save a workbook's price list as a price file");
    auto options = std::make_shared<Options>();
    cmd->add_option("WORKBOOK", options->workbook, "the workbook file (.zol)")->required();
    cmd->add_option("-o,--output", options->output, "the price file to write (.zp)")->required();
    cmd->callback([options] {
        if (auto workbook = zolcli::openWorkbook(options->workbook))
            zolcli::save(options->output, workbook->pricingData()->getFullXMLString(), ZOLFileKind::PriceList);
    });
});
} // namespace
