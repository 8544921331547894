#include "support/CliRunner.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

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
    result.out = TempFolder::contents(outPath);
    result.err = TempFolder::contents(errPath);
    unlink(outPath);
    unlink(errPath);
    return result;
}

std::string outputOf(const std::vector<std::string>& args) {
    const CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
}

void expectRefusal(const std::vector<std::string>& args, const std::string& message, int exitCode) {
    const CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, exitCode) << args.back() << "\n" << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("zolest:"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
}
