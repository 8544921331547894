#pragma once
// Shared plumbing of zolest's subcommands: registration, typed record options, JSON numbers.
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

namespace zolcli {

// A subcommand file registers a setup function at static-initialisation time; main() runs them
// all against the root application in registration-independent (sorted by key) order.
using Setup = std::function<void(CLI::App& root)>;
struct Registrar {
    Registrar(const std::string& key, Setup setup);
};
void setupAll(CLI::App& root);

// The exit code the command that ran wants zolest to end with.
void setExitCode(int code);
int exitCode();

// Finds or creates the subcommand `name` of `parent` ("calc", "prices").
CLI::App& group(CLI::App& parent, const std::string& name, const std::string& description);

// A record option named after the field (--wallLength 100). The value is parsed strictly (an
// unreadable value is a usage error, exit code 2) and handed to `set` when given.
void addIntOption(CLI::App& cmd, const std::string& field, std::function<void(int32_t)> set,
                  const std::string& help = "");
void addDoubleOption(CLI::App& cmd, const std::string& field, std::function<void(double)> set,
                     const std::string& help = "");
void addBoolOption(CLI::App& cmd, const std::string& field, std::function<void(bool)> set,
                   const std::string& help = "");

// --prices FILE.zp and --template FILE.zci of the commands that work on a job's prices and
// job-summary lines (loaded with loadJobFiles).
void addJobFileOptions(CLI::App& cmd, std::string& prices, std::string& jobTemplate);

// A double as JSON: shortest round-trip form, or null when it is not finite.
nlohmann::json number(double value);
void printJson(const nlohmann::json& value);

} // namespace zolcli
