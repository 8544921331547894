// zolest: Zol Estimator's command-line tool over the same core as the desktop application.
#include "cli/ZOLCliSupport.h"

#include "platform/ZOLAlerts.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace {
// "zolest calc wall" for a mistake inside `zolest calc wall`: where the right options are listed.
std::string commandPath(CLI::App& app) {
    std::string path = app.get_name();
    for (CLI::App* command = &app; !command->get_subcommands().empty();) {
        command = command->get_subcommands().front();
        path += " " + command->get_name();
    }
    return path;
}

// The first word on the command line after the commands that were recognised, if any.
std::string wordAfter(CLI::App& app, int argc, char** argv) {
    std::size_t depth = 0;
    for (CLI::App* command = &app; !command->get_subcommands().empty(); ++depth)
        command = command->get_subcommands().front();
    for (int i = 1; i < argc; ++i) {
        if (argv[i][0] == '-')
            continue;
        if (depth == 0)
            return argv[i];
        --depth;
    }
    return std::string();
}
} // namespace

int main(int argc, char** argv) {
    // Alerts the core raises (a file that cannot be read, a duplicate worksheet) go to stderr.
    ZOLAlerts::setPresenter(std::make_shared<ZOLTextAlertPresenter>(
        [](const std::string& text) { std::cerr << text; }));

    CLI::App app{"zolest: take-offs, reports and files of Zol Estimator workbooks", "zolest"};
    app.require_subcommand(1);
    app.footer("Run 'zolest COMMAND --help' for the options of a command.");
    app.add_flag_callback(
        "--version",
        [] {
            std::cout << "zolest " ZOL_VERSION "\n";
            std::exit(0);
        },
        "Print the version and exit");
    zolcli::setupAll(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        // CLI11 calls a misspelt command a missing one; name the word the user typed instead.
        std::string message = e.what();
        if (dynamic_cast<const CLI::RequiredError*>(&e) &&
            message.find("subcommand") != std::string::npos) {
            const std::string typed = wordAfter(app, argc, argv);
            if (!typed.empty())
                message = "'" + typed + "' is not a command of '" + commandPath(app) + "'";
        }
        std::cerr << "zolest: " << message << "\n";
        std::cerr << "Run '" << commandPath(app) << " --help' for usage.\n";
        return 2;
    }
    return zolcli::exitCode();
}
