#include "cli/ZOLCliSupport.h"

#include "io/ZOLText.h"

#include <cmath>
#include <iostream>
#include <map>

namespace zolcli {

namespace {
std::map<std::string, Setup>& registry() {
    static std::map<std::string, Setup> setups;
    return setups;
}
int& exitCodeSlot() {
    static int code = 0;
    return code;
}

// Strict number reading for the command line: the whole text must be a number. "nan" and
// "inf" are accepted on purpose, so scripts can probe the estimator's handling of them.
bool parseDouble(const std::string& text, double& out) {
    if (text == "nan" || text == "NaN") {
        out = std::nan("");
        return true;
    }
    if (text == "inf" || text == "+inf") {
        out = INFINITY;
        return true;
    }
    if (text == "-inf") {
        out = -INFINITY;
        return true;
    }
    try {
        std::size_t used = 0;
        out = std::stod(text, &used);
        return used == text.size() && !text.empty() &&
               text.find_first_of("xXpP") == std::string::npos;
    } catch (const std::out_of_range&) {
        out = text.find('-') == 0 ? -INFINITY : INFINITY;
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool parseInt(const std::string& text, int32_t& out) {
    if (text.empty())
        return false;
    std::size_t i = (text[0] == '-' || text[0] == '+') ? 1 : 0;
    if (i == text.size())
        return false;
    for (std::size_t j = i; j < text.size(); ++j)
        if (text[j] < '0' || text[j] > '9')
            return false;
    out = ZOLText::leadingInt(text); // saturates beyond the int32 range
    return true;
}

bool parseBool(const std::string& text, bool& out) {
    static const std::map<std::string, bool> words = {
        {"true", true}, {"false", false}, {"yes", true}, {"no", false},
        {"on", true},   {"off", false},   {"1", true},   {"0", false}};
    auto it = words.find(text);
    if (it == words.end())
        return false;
    out = it->second;
    return true;
}
} // namespace

Registrar::Registrar(const std::string& key, Setup setup) {
    registry()[key] = std::move(setup);
}

void setupAll(CLI::App& root) {
    for (auto& [key, setup] : registry())
        setup(root);
}

void setExitCode(int code) {
    exitCodeSlot() = code;
}
int exitCode() {
    return exitCodeSlot();
}

CLI::App& group(CLI::App& parent, const std::string& name, const std::string& description) {
    for (CLI::App* sub : parent.get_subcommands([](CLI::App*) { return true; }))
        if (sub->get_name() == name)
            return *sub;
    CLI::App* sub = parent.add_subcommand(name, description);
    sub->require_subcommand(1);
    return *sub;
}

void addIntOption(CLI::App& cmd, const std::string& field, std::function<void(int32_t)> set,
                  const std::string& help) {
    cmd.add_option_function<std::string>(
           "--" + field,
           [field, set](const std::string& text) {
               int32_t value = 0;
               if (!parseInt(text, value))
                   throw CLI::ValidationError("--" + field, "'" + text + "' is not a whole number");
               set(value);
           },
           help.empty() ? "whole number" : help)
        ->type_name("INT");
}

void addDoubleOption(CLI::App& cmd, const std::string& field, std::function<void(double)> set,
                     const std::string& help) {
    cmd.add_option_function<std::string>(
           "--" + field,
           [field, set](const std::string& text) {
               double value = 0;
               if (!parseDouble(text, value))
                   throw CLI::ValidationError("--" + field, "'" + text + "' is not a number");
               set(value);
           },
           help.empty() ? "number" : help)
        ->type_name("NUMBER");
}

void addJobFileOptions(CLI::App& cmd, std::string& prices, std::string& jobTemplate) {
    cmd.add_option("--prices", prices,
                   "Price the job with this price file (.zp), loaded as the price list window "
                   "loads it; the job summary is worked out again with it");
    cmd.add_option("--template", jobTemplate,
                   "Start the job summary from this template (.zci), as the job summary screen "
                   "loads it");
}

void addBoolOption(CLI::App& cmd, const std::string& field, std::function<void(bool)> set,
                   const std::string& help) {
    cmd.add_option_function<std::string>(
           "--" + field,
           [field, set](const std::string& text) {
               bool value = false;
               if (!parseBool(text, value))
                   throw CLI::ValidationError("--" + field, "'" + text + "' is not true or false");
               set(value);
           },
           help.empty() ? "true or false" : help)
        ->type_name("BOOL");
}

nlohmann::json number(double value) {
    if (!std::isfinite(value))
        return nullptr;
    return value;
}

void printJson(const nlohmann::json& value) {
    std::cout << value.dump(2) << "\n";
}

} // namespace zolcli
