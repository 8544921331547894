// zolest report: the report of a workbook file as HTML, its options and its refusals.
#include "support/CliRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <sys/wait.h>

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

namespace fs = std::filesystem;

const std::string kSample = std::string(ZOL_SOURCE_DIR) + "/examples/sample-house.zol";

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> pageClasses(const std::string& html) {
    static const std::regex page("<div class=\"page\">\n<div class=\"content ([a-z-]+)\">");
    std::vector<std::string> classes;
    for (std::sregex_iterator it(html.begin(), html.end(), page), end; it != end; ++it)
        classes.push_back((*it)[1]);
    return classes;
}

class ZOLReportCommand : public ::testing::Test {
protected:
    void SetUp() override {
        // The report shows the project date in the local time zone; zolest inherits this one.
        ::setenv("TZ", "UTC", 1);
        dir_ =
            fs::temp_directory_path() /
            ("zolest-report-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(dir_);
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }
    fs::path dir_;
};

} // namespace

TEST_F(ZOLReportCommand, SampleJobReportMatchesTheGoldenCopy) {
    // Every section of every worksheet, on stdout and in a file alike.
    const CliResult out = runZolest({"report", kSample});
    ASSERT_EQ(out.exitCode, 0) << out.err;
    // The background lies in this checkout's resources folder, wherever it was cloned: the
    // golden copy has a placeholder there.
    const std::string goldenPath = std::string(ZOL_TEST_DATA) + "/report/sample-house.html";
    const std::string resources = std::string(ZOL_SOURCE_DIR) + "/resources";
    const std::string placeholder = "@RESOURCES@";
    if (std::getenv("ZOL_UPDATE_GOLDEN")) {
        std::string update = out.out;
        update.replace(update.find(resources), resources.size(), placeholder);
        std::ofstream(goldenPath, std::ios::binary) << update;
    }
    std::string expected = readFile(goldenPath);
    ASSERT_NE(expected.find(placeholder), std::string::npos) << goldenPath;
    expected.replace(expected.find(placeholder), placeholder.size(), resources);
    EXPECT_EQ(out.out, expected);

    const fs::path file = dir_ / "sample.html";
    const CliResult written = runZolest({"report", kSample, "-o", file.string()});
    ASSERT_EQ(written.exitCode, 0) << written.err;
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(readFile(file), out.out);
}

TEST_F(ZOLReportCommand, SectionsAndWorksheetChooseThePages) {
    CliResult out = runZolest({"report", kSample, "--sections", "notes,wall,summary"});
    ASSERT_EQ(out.exitCode, 0) << out.err;
    const auto all = pageClasses(out.out);
    ASSERT_GE(all.size(), 3u);
    EXPECT_EQ(all.back(), "notes");
    EXPECT_EQ(all[all.size() - 2], "wall-summary");
    EXPECT_EQ(std::count(all.begin(), all.end(), "wall"), static_cast<long>(all.size() - 2));

    out = runZolest({"report", kSample, "--sections", "openings,jobsummary", "--worksheet", "0"});
    ASSERT_EQ(out.exitCode, 0) << out.err;
    const auto one = pageClasses(out.out);
    ASSERT_GE(one.size(), 2u);
    EXPECT_EQ(one.back(), "job-summary");
    EXPECT_EQ(std::count(one.begin(), one.end(), "openings"), static_cast<long>(one.size() - 1));
}

TEST_F(ZOLReportCommand, RefusesWhatItCannotDo) {
    // Usage errors: exit code 2, nothing written.
    const fs::path target = dir_ / "report.html";
    for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
             {"report", kSample, "--sections", "wall,roof"},
             {"report", kSample, "--sections", ""},
             {"report", kSample, "--sections", "wall,"},
             {"report", kSample, "--worksheet", "99", "-o", target.string()},
             {"report", kSample, "--worksheet", "-1"},
             {"report", kSample, "--worksheet", "first"},
             {"report", kSample, "-o", (dir_ / "report.txt").string()},
         }) {
        const CliResult out = runZolest(args);
        EXPECT_EQ(out.exitCode, 2) << args[3] << "\n" << out.err;
        EXPECT_FALSE(out.err.empty());
    }
    EXPECT_FALSE(fs::exists(target));
    // A mistaken option points at the help of the command it was given to.
    EXPECT_THAT(runZolest({"report", kSample, "--bogus"}).err,
                HasSubstr("Run 'zolest report --help' for usage."));

    // A file that cannot be read: the alert on stderr, exit code 1.
    const fs::path junk = dir_ / "junk.zol";
    std::ofstream(junk) << "this is not a workbook";
    const CliResult unreadable = runZolest({"report", junk.string(), "-o", target.string()});
    EXPECT_EQ(unreadable.exitCode, 1);
    EXPECT_FALSE(unreadable.err.empty());
    EXPECT_FALSE(fs::exists(target));
    EXPECT_EQ(runZolest({"report", (dir_ / "missing.zol").string()}).exitCode, 1);
}

TEST_F(ZOLReportCommand, PdfWithoutTheRendererSaysWhatIsMissing) {
    // A zolest on its own, without zolest-render beside it (a build without the desktop
    // application).
    const fs::path lone = dir_ / "zolest";
    fs::copy_file(ZOLEST_PATH, lone);
    fs::permissions(lone, fs::perms::owner_all);
    const fs::path pdf = dir_ / "report.pdf";
    const fs::path err = dir_ / "stderr.txt";
    const std::string command = lone.string() + " report '" + kSample + "' -o '" + pdf.string() +
                                "' 2>'" + err.string() + "'";
    const int status = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_THAT(readFile(err), HasSubstr("zolest-render"));
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(ZOLReportCommand, PriceFileReplacesTheShadowedPricesOfTheWorkbook) {
    // Opened as it is, the job's own prices sit behind the default list and print as $0.00.
    const std::string examples = std::string(ZOL_SOURCE_DIR) + "/examples/";
    const std::string straight6 = "<td>6\" Straight Block</td>\n<td>162</td>\n<td>$";
    CliResult out = runZolest({"report", kSample, "--sections", "summary"});
    ASSERT_EQ(out.exitCode, 0) << out.err;
    EXPECT_THAT(out.out, HasSubstr(straight6 + "0.00</td>\n"));

    out = runZolest({"report", kSample, "--sections", "summary,jobsummary", "--prices",
                     examples + "prices.zp", "--template", examples + "job-summary.zci"});
    ASSERT_EQ(out.exitCode, 0) << out.err;
    EXPECT_THAT(out.out, HasSubstr(straight6 + "4.35</td>\n"));
    EXPECT_THAT(out.out, HasSubstr("Building permit"));

    // A price file that cannot be read stops the report with the alert.
    const fs::path target = dir_ / "report.html";
    out = runZolest({"report", kSample, "--prices", kSample + ".missing", "-o", target.string()});
    EXPECT_EQ(out.exitCode, 1);
    EXPECT_THAT(out.err, HasSubstr("There was an error opening the file."));
    EXPECT_FALSE(fs::exists(target));
}
