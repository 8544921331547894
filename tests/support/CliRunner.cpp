#include "support/CliRunner.h"

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {
std::string slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}
} // namespace

CliResult runZolest(const std::vector<std::string>& args) {
    char outPath[] = "/tmp/zolest-out-XXXXXX";
    char errPath[] = "/tmp/zolest-err-XXXXXX";
    int outFd = mkstemp(outPath);
    int errFd = mkstemp(errPath);
    CliResult result;
    pid_t pid = fork();
    if (pid == 0) {
        dup2(outFd, 1);
        dup2(errFd, 2);
        std::vector<char*> argv;
        std::string program = ZOLEST_PATH;
        argv.push_back(program.data());
        std::vector<std::string> copies = args;
        for (auto& a : copies)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    close(outFd);
    close(errFd);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.out = slurp(outPath);
    result.err = slurp(errPath);
    unlink(outPath);
    unlink(errPath);
    return result;
}
