#pragma once
// Runs the zolest binary the way a user or a script would and captures what it printed.
#include <string>
#include <vector>

struct CliResult {
    int exitCode = -1;
    std::string out;
    std::string err;
};

// Arguments are passed without a shell; stdout and stderr are captured separately.
CliResult runZolest(const std::vector<std::string>& args);

// A run that must succeed quietly: exit code 0, nothing on stderr. Returns what it printed.
std::string outputOf(const std::vector<std::string>& args);

// A run that must be refused with the exit code, printing nothing and saying on stderr, after
// "zolest:", the message.
void expectRefusal(const std::vector<std::string>& args, const std::string& message,
                   int exitCode = 2);
