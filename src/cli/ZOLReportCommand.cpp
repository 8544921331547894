// zolest report FILE [-o OUT.html|OUT.pdf] [--sections all|LIST] [--worksheet N]
//               [--prices FILE.zp] [--template FILE.zci]: the printed report of a workbook, as
// the desktop application prints it.
//
// A workbook file's own prices sit behind the default list when it is opened, so a reopened job
// prints at the default prices; --prices loads a price file as the price list window does, and
// the job-summary lines are then worked out again, as the job summary screen would show them.
//
// The HTML comes from the core alone. The PDF needs the browser engine, which zolest does not
// link (it stays a small tool without Qt): zolest hands the HTML to the helper zolest-render,
// built with the desktop application and installed beside zolest, and saves what it returns.
// Without the helper (a build without the desktop application) PDF output is refused with a
// message and HTML output still works.
#include "cli/ZOLCliFiles.h"
#include "cli/ZOLCliSupport.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLInstallation.h"
#include "report/ZOLPrintData.h"
#include "report/ZOLPrintSettings.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

struct Options {
    std::string workbook;
    std::string output;
    std::string sections = "all";
    std::string prices;
    std::string jobTemplate;
    int32_t worksheetIndex = 0;
    bool oneWorksheet = false;
};

// The sections as the command line names them, with the settings they turn on.
const std::pair<const char*, const char*> kSections[] = {
    {"wall", ZOLPrintSettings::kPrintWall},
    {"openings", ZOLPrintSettings::kPrintOpenings},
    {"rebar", ZOLPrintSettings::kPrintRebar},
    {"concrete", ZOLPrintSettings::kPrintConcrete},
    {"tilt", ZOLPrintSettings::kPrintTilt},
    {"manhours", ZOLPrintSettings::kPrintManHour},
    {"summary", ZOLPrintSettings::kPrintSummary},
    {"jobsummary", ZOLPrintSettings::kPrintJobSummary},
    {"notes", ZOLPrintSettings::kPrintProjectNotes},
};

std::string sectionNames() {
    std::string names;
    for (const auto& [name, key] : kSections)
        names += (names.empty() ? "" : ", ") + std::string(name);
    return names;
}

// "all" or a comma-separated choice of sections; nothing when a name is not a section.
std::optional<ZOLPrintData::Settings> parseSections(const std::string& text) {
    ZOLPrintData::Settings settings;
    for (const char* key : ZOLPrintSettings::keys())
        settings[key] = false;
    if (text == "all") {
        for (const auto& [name, key] : kSections)
            settings[key] = true;
        return settings;
    }
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t comma = std::min(text.find(',', start), text.size());
        const std::string name = text.substr(start, comma - start);
        bool known = false;
        for (const auto& [section, key] : kSections) {
            if (name == section) {
                settings[key] = true;
                known = true;
            }
        }
        if (!known)
            return std::nullopt;
        start = comma + 1;
    }
    return settings;
}

enum class Format { Html, Pdf, Unknown };

Format formatOf(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    for (char& c : extension)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (extension == ".html" || extension == ".htm")
        return Format::Html;
    if (extension == ".pdf")
        return Format::Pdf;
    return Format::Unknown;
}

bool writeAll(int fd, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// Runs zolest-render: the HTML in on its standard input, the PDF back on its standard output
// (the helper reads all its input before it writes anything, so one pipe at a time suffices).
// Its messages go straight to zolest's stderr.
std::optional<std::string> renderPdf(const std::string& helper, const std::string& html) {
    int in[2];
    int out[2];
    if (::pipe2(in, O_CLOEXEC) != 0)
        return std::nullopt;
    if (::pipe2(out, O_CLOEXEC) != 0) {
        ::close(in[0]);
        ::close(in[1]);
        return std::nullopt;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    const std::string resources = ZOLPrintData::resourcesDirectory();
    std::vector<std::string> args = {helper, "--resources", resources, "-", "-"};
    std::vector<char*> argv;
    for (auto& arg : args)
        argv.push_back(arg.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, helper.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(in[0]);
    ::close(out[1]);
    if (spawned != 0) {
        ::close(in[1]);
        ::close(out[0]);
        return std::nullopt;
    }
    // A helper that dies early must not take zolest with it through a broken pipe.
    auto previous = std::signal(SIGPIPE, SIG_IGN);
    const bool sent = writeAll(in[1], html);
    ::close(in[1]);
    std::signal(SIGPIPE, previous);

    // On a terminal, a render that takes more than a second says what is going on.
    if (::isatty(STDERR_FILENO)) {
        pollfd ready{out[0], POLLIN, 0};
        int polled = 0;
        while ((polled = ::poll(&ready, 1, 1000)) < 0 && errno == EINTR) {
        }
        if (polled == 0)
            std::cerr << "zolest: laying out and printing "
                      << ZOLPrintData::getPageCountWithHTML(html) << " pages to PDF...\n";
    }
    std::string pdf;
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(out[0], buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        pdf.append(buffer, static_cast<std::size_t>(n));
    }
    ::close(out[0]);
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (!sent || !WIFEXITED(status) || WEXITSTATUS(status) != 0 || pdf.rfind("%PDF", 0) != 0)
        return std::nullopt;
    return pdf;
}

void run(const Options& options) {
    const Format format = options.output.empty() ? Format::Html : formatOf(options.output);
    if (format == Format::Unknown) {
        std::cerr << "zolest: the report is written as HTML or PDF: give an output file ending "
                     "in .html or .pdf\n";
        zolcli::setExitCode(2);
        return;
    }
    auto settings = parseSections(options.sections);
    if (!settings) {
        std::cerr << "zolest: --sections takes 'all' or a comma-separated list of: "
                  << sectionNames() << "\n";
        zolcli::setExitCode(2);
        return;
    }
    std::string helper;
    if (format == Format::Pdf) {
        helper = ZOLInstallation::helperPath("zolest-render");
        if (helper.empty()) {
            std::cerr << "zolest: PDF output needs zolest-render, installed with the desktop "
                         "application (beside zolest or in its libexec folder). Write .html "
                         "instead.\n";
            zolcli::setExitCode(1);
            return;
        }
    }

    const auto workbook = zolcli::openWorkbook(options.workbook);
    if (!workbook)
        return; // the alert is on stderr and the exit code set
    if (!options.prices.empty() || !options.jobTemplate.empty()) {
        if (!zolcli::loadJobFiles(*workbook, options.prices, options.jobTemplate))
            return;
        workbook->generateCustomItems();
    }

    std::string html;
    if (options.oneWorksheet) {
        const int32_t index = options.worksheetIndex;
        const auto count = workbook->worksheets().size();
        if (index < 0 || static_cast<std::size_t>(index) >= count) {
            std::cerr << "zolest: --worksheet " << index << " is not a worksheet of "
                      << options.workbook << " (it has " << count
                      << (count == 1 ? " worksheet, index 0)\n"
                                     : " worksheets, indexes 0 to " +
                                           std::to_string(count == 0 ? 0 : count - 1) + ")\n");
            zolcli::setExitCode(2);
            return;
        }
        (*settings)[ZOLPrintSettings::kPrintAllWorksheets] = false;
        html = ZOLPrintData::getHTMLWithWorkbook(workbook, index, *settings);
    } else {
        (*settings)[ZOLPrintSettings::kPrintAllWorksheets] = true;
        html = ZOLPrintData::getHTMLWithWorkbook(workbook, *settings);
    }

    if (options.output.empty()) {
        std::cout << html;
        return;
    }
    if (format == Format::Html) {
        zolcli::save(options.output, html);
        return;
    }
    const auto pdf = renderPdf(helper, html);
    if (!pdf) {
        std::cerr << "zolest: the PDF could not be made; " << options.output
                  << " was not written\n";
        zolcli::setExitCode(1);
        return;
    }
    zolcli::save(options.output, *pdf);
}

zolcli::Registrar reg("report", [](CLI::App& root) {
    auto options = std::make_shared<Options>();
    CLI::App* cmd = root.add_subcommand(
        "report", "Write the printed report of a workbook as HTML (the default, on stdout) or PDF");
    cmd->add_option("FILE", options->workbook, "The workbook (.zol)")->required();
    cmd->add_option("-o,--output", options->output,
                    "Where to write it: OUT.html or OUT.pdf (HTML on stdout without it)");
    cmd->add_option("--sections", options->sections,
                    "'all' (the default) or a comma-separated list of: " + sectionNames());
    CLI::Option* worksheet =
        cmd->add_option("--worksheet", options->worksheetIndex,
                        "Only the worksheet at this index (0 is the first); without it every "
                        "worksheet prints");
    zolcli::addJobFileOptions(*cmd, options->prices, options->jobTemplate);
    cmd->callback([options, worksheet] {
        options->oneWorksheet = worksheet->count() > 0;
        run(*options);
    });
});

} // namespace
