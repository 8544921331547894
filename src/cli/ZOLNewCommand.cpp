// zolest new -o FILE: saves a new workbook, as a new document saved without edits.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLWorkbook.h"

#include <memory>

namespace {
zolcli::Registrar reg("new", [](CLI::App& root) {
    auto* cmd = root.add_subcommand(
        "new", "Save a new workbook: one worksheet \"Worksheet 1\" with default records, the "
               "default price list and today's date");
    auto output = std::make_shared<std::string>();
    cmd->add_option("-o,--output", *output, "the workbook file to write (.zol)")->required();
    cmd->callback([output] {
        ZOLWorkbook workbook;
        zolcli::save(*output, workbook.getXMLString(), ZOLFileKind::Workbook);
    });
});
} // namespace
