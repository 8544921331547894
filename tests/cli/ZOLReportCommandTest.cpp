// zolest report: the report of a workbook file as HTML, its options and its refusals.
#include "support/ChangedSample.h"
#include "support/CliRunner.h"
#include "support/GoldenFile.h"
#include "support/ReportPages.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/wait.h>

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

class ZOLReportCommand : public ::testing::Test {
protected:
    // The report shows the project date in the local time zone; zolest inherits this one.
    void SetUp() override { ::setenv("TZ", "UTC", 1); }
    TempFolder dir_;
};

} // namespace

TEST_F(ZOLReportCommand, SampleJobReportMatchesTheGoldenCopy) {
    // Every section of every worksheet, on stdout and in a file alike.
    const std::string out = outputOf({"report", kSample});
    // The background lies in the resources folder beside this build's zolest, wherever it was
    // built: the golden copy has a placeholder there.
    const std::string resources = (fs::canonical(ZOLEST_PATH).parent_path() / "resources").string();
    const std::string placeholder = "@RESOURCES@";
    if (std::getenv("ZOL_UPDATE_GOLDEN")) {
        std::string update = out;
        update.replace(update.find(resources), resources.size(), placeholder);
        expectGoldenFile("report/sample-house.html", update);
    }
    std::string expected = goldenFile("report/sample-house.html");
    ASSERT_NE(expected.find(placeholder), std::string::npos);
    expected.replace(expected.find(placeholder), placeholder.size(), resources);
    EXPECT_EQ(out, expected);

    const std::string file = dir_ / "sample.html";
    EXPECT_EQ(outputOf({"report", kSample, "-o", file}), "");
    EXPECT_EQ(TempFolder::contents(file), out);
}

TEST_F(ZOLReportCommand, SectionsAndWorksheetChooseThePages) {
    EXPECT_THAT(pageClasses(outputOf({"report", kSample, "--sections", "notes,wall,summary"})),
                ElementsAre("wall", "wall", "wall", "wall-summary", "notes"));
    EXPECT_THAT(pageClasses(outputOf(
                    {"report", kSample, "--sections", "openings,jobsummary", "--worksheet", "0"})),
                ElementsAre("openings", "job-summary"));
}

TEST_F(ZOLReportCommand, RefusesWhatItCannotDoAndSaysWhatIsMissingForAPdf) {
    // Usage errors: exit code 2, nothing written.
    const std::string target = dir_ / "report.html";
    for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
             {"report", kSample, "--sections", "wall,roof"},
             {"report", kSample, "--sections", ""},
             {"report", kSample, "--sections", "wall,"},
             {"report", kSample, "--worksheet", "99", "-o", target},
             {"report", kSample, "--worksheet", "-1"},
             {"report", kSample, "--worksheet", "first"},
             {"report", kSample, "-o", dir_ / "report.txt"},
         })
        expectRefusal(args, "");
    EXPECT_FALSE(fs::exists(target));
    // A mistaken option points at the help of the command it was given to.
    expectRefusal({"report", kSample, "--bogus"}, "Run 'zolest report --help' for usage.");
    // A workbook or price file that cannot be read: see zolest's file commands.

    // A PDF without the renderer says what is missing.
    // A zolest on its own, without zolest-render beside it (a build without the desktop
    // application).
    const fs::path lone = dir_ / "zolest";
    fs::copy_file(ZOLEST_PATH, lone);
    fs::permissions(lone, fs::perms::owner_all);
    const std::string pdf = dir_ / "report.pdf";
    const std::string err = dir_ / "stderr.txt";
    const std::string command =
        lone.string() + " report '" + kSample + "' -o '" + pdf + "' 2>'" + err + "'";
    const int status = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_THAT(TempFolder::contents(err), HasSubstr("zolest-render"));
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(ZOLReportCommand, PriceFileReplacesTheShadowedPricesOfTheWorkbook) {
    // Opened as it is, the job's own prices sit behind the default list and print as $0.00 (the
    // golden sample report).
    const std::string straight6 = "<td>6\" Straight Block</td>\n<td>162</td>\n<td>$";
    const std::string priced = outputOf({"report", kSample, "--sections", "summary,jobsummary",
                                         "--prices", kPrices, "--template", kTemplate});
    EXPECT_THAT(priced, HasSubstr(straight6 + "4.35</td>\n"));
    EXPECT_THAT(priced, HasSubstr("Building permit"));
}
