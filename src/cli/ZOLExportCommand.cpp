// zolest export FILE --order-list|--workbook-summary|--job-summary [-o OUT.csv]
//               [--prices FILE.zp] [--template FILE.zci]: a workbook's order list, workbook
// summary or job summary as a spreadsheet (CSV) file, the same rows as the application's
// File > Export writes; on stdout without -o.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLWorkbook.h"
#include "report/ZOLCsvExport.h"

#include <iostream>

namespace {

struct Options {
    std::string workbook;
    std::string output;
    std::string prices;
    std::string jobTemplate;
    bool orderList = false;
    bool workbookSummary = false;
    bool jobSummary = false;
};

void run(const Options& options, ZOLCsvExport::Kind kind) {
    const auto workbook = zolcli::openWorkbook(options.workbook);
    if (!workbook)
        return; // the alert is on stderr and the exit code set
    if (!zolcli::loadJobFiles(*workbook, options.prices, options.jobTemplate))
        return;
    const std::string csv = ZOLCsvExport::getCSV(kind, *workbook);
    if (options.output.empty())
        std::cout << csv;
    else
        zolcli::save(options.output, csv);
}

zolcli::Registrar reg("export", [](CLI::App& root) {
    auto options = std::make_shared<Options>();
    CLI::App* cmd = root.add_subcommand(
        "export", "Write a workbook's order list, workbook summary or job summary as CSV for a "
                  "spreadsheet (on stdout without -o)");
    cmd->add_option("FILE", options->workbook, "The workbook (.zol)")->required();
    cmd->add_flag("--order-list", options->orderList,
                  "One row per worksheet and part: counts, bundles and weights");
    cmd->add_flag("--workbook-summary", options->workbookSummary,
                  "The Workbook Summary tab: every part priced, totals last");
    cmd->add_flag("--job-summary", options->jobSummary,
                  "The job summary's visible lines, totals last");
    cmd->add_option("-o,--output", options->output, "Where to write it (OUT.csv)");
    zolcli::addJobFileOptions(*cmd, options->prices, options->jobTemplate);
    cmd->callback([options] {
        if (options->orderList + options->workbookSummary + options->jobSummary != 1) {
            std::cerr << "zolest: export needs exactly one of --order-list, --workbook-summary, "
                         "--job-summary\n";
            zolcli::setExitCode(2);
            return;
        }
        run(*options, options->orderList         ? ZOLCsvExport::Kind::OrderList
                      : options->workbookSummary ? ZOLCsvExport::Kind::WorkbookSummary
                                                 : ZOLCsvExport::Kind::JobSummary);
    });
});

} // namespace
