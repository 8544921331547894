// zolest resave IN -o OUT: opens a workbook and saves it again, exactly as opening and saving it
// in the application would (fields the file does not read back come out at their defaults).
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLWorkbook.h"

#include <memory>

namespace {
struct Options {
    std::string input;
    std::string output;
};

zolcli::Registrar reg("resave", [](CLI::App& root) {
    auto* cmd =
        root.add_subcommand("resave", "Open a workbook and save it again as the application would");
    auto options = std::make_shared<Options>();
    cmd->add_option("IN", options->input, "the workbook file to open (.zol)")->required();
    cmd->add_option("-o,--output", options->output, "the workbook file to write (.zol)")
        ->required();
    cmd->callback([options] {
        if (auto workbook = zolcli::openWorkbook(options->input))
            zolcli::save(options->output, workbook->getXMLString(), ZOLFileKind::Workbook);
    });
});
} // namespace
