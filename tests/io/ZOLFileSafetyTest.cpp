// Reading a file's bytes, the format check before parsing, and the all-or-nothing save.
#include "io/ZOLAtomicFile.h"
#include "io/ZOLFileBytes.h"
#include "io/ZOLReadCheck.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

TEST(ZOLReadCheck, TurnsAwayWhatIsNotTextAndFilesAreReadUpToTheLimit) {
    // Whether the text is the right XML is the reader's business.
    for (const std::string& text :
         {std::string("<Workbook/>"), std::string("\xEF\xBB\xBF<Workbook/>"),
          std::string("plain words"), std::string("\xFF\xFE<\0a\0/\0>\0", 10)})
        EXPECT_TRUE(ZOLReadCheck::acceptsData(text)) << text;
    for (const std::string& bytes : {std::string(), std::string("\xFF\xFE<\0a\0/\0>", 9),
                                     std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
                                     std::string("<Workbook>\0</Workbook>", 22)})
        EXPECT_FALSE(ZOLReadCheck::acceptsData(bytes)) << bytes;

    // Whole files are read, and reading stops past the limit.
    TempFolder folder;
    std::ofstream(folder / "a.zol", std::ios::binary) << "0123456789";
    EXPECT_EQ(ZOLFileBytes::read(folder / "a.zol", 100), "0123456789");
    EXPECT_EQ(ZOLFileBytes::read(folder / "a.zol", 4), "01234");
    // The system's reasons for a missing file or a folder: see zolest's file commands.
}

TEST(ZOLAtomicFile, WritesNewFilesReplacesOldOnesWholeAndAFailedSaveLeavesNoHalfFile) {
    TempFolder folder;
    const std::string path = folder / "job.zol";
    ASSERT_TRUE(ZOLAtomicFile::write(path, "first"));
    EXPECT_EQ(TempFolder::contents(path), "first");
    ::chmod(path.c_str(), 0640);
    ASSERT_TRUE(ZOLAtomicFile::write(path, "second, longer"));
    EXPECT_EQ(TempFolder::contents(path), "second, longer");
    struct stat info {};
    ::stat(path.c_str(), &info);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"job.zol"});

    // Saving through a link replaces the file it points to and keeps the link.
    fs::create_symlink(path, folder / "link.zol");
    ASSERT_TRUE(ZOLAtomicFile::write(folder / "link.zol", "third"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.zol"));
    EXPECT_EQ(TempFolder::contents(path), "third");

    // A failed save leaves no half file and no temporary file.
    TempFolder failed;
    std::string error;
    // A destination that is a folder, or in none: see zolest's file commands.
    // The disk fills up part-way through the write (here: the file size limit is reached).
    std::ofstream(failed / "kept.zol") << "old";
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGXFSZ, SIG_IGN);
        struct rlimit limit {
            16, 16
        };
        setrlimit(RLIMIT_FSIZE, &limit);
        const bool written = ZOLAtomicFile::write(failed / "kept.zol", std::string(4096, 'x'));
        _exit(written ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(TempFolder::contents(failed / "kept.zol"), "old");
    EXPECT_EQ(failed.names(), std::vector<std::string>{"kept.zol"});
    // A folder the user may not write in (the check means nothing when running as root).
    if (::geteuid() != 0) {
        fs::create_directory(failed / "locked");
        std::ofstream(failed / "locked/a.zol") << "old";
        fs::permissions(failed / "locked", fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_FALSE(ZOLAtomicFile::write(failed / "locked/a.zol", "new", &error));
        EXPECT_EQ(error, "Permission denied");
        EXPECT_EQ(TempFolder::contents(failed / "locked/a.zol"), "old");
        fs::permissions(failed / "locked", fs::perms::owner_all);
        EXPECT_EQ(fs::directory_iterator(failed / "locked")->path().filename(), "a.zol");
    }
}
