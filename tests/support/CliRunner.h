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
