// zolest on real files: new, resave, takeoff, prices export and import, run as a user would.
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"
#include "support/CliRunner.h"
#include "support/ScopedTimeZone.h"
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <regex>
#include <set>

namespace {

const std::string kSample = std::string(ZOL_SOURCE_DIR) + "/examples/sample-house.zol";
const std::string kPrices = std::string(ZOL_SOURCE_DIR) + "/examples/prices.zp";
const std::string kTemplate = std::string(ZOL_SOURCE_DIR) + "/examples/job-summary.zci";
const std::string kData = std::string(ZOL_TEST_DATA) + "/";
const std::string kOpenError = "There was an error opening the file.";
const std::string kWrongFormat =
    "There was an error opening the file. The file may be corrupted or of the wrong format.";

std::set<std::string> keys(const nlohmann::json& object) {
    std::set<std::string> set;
    for (auto it = object.begin(); it != object.end(); ++it)
        set.insert(it.key());
    return set;
}

bool startsWith(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

} // namespace

TEST(ZolestFiles, NewWritesTheWorkbookOfANewDocument) {
    TempFolder folder;
    const auto run = runZolest({"new", "-o", folder / "job.zol"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    // Byte for byte the golden new workbook, but for the date, which is now.
    const std::regex date("<ProjectDate>[^<]*</ProjectDate>");
    EXPECT_EQ(
        firstDifference(
            std::regex_replace(TempFolder::contents(kData + "new-workbook.zol"), date, "DATE"),
            std::regex_replace(TempFolder::contents(folder / "job.zol"), date, "DATE")),
        "");
    EXPECT_EQ(runZolest({"new"}).exitCode, 2); // the output must be named
}

TEST(ZolestFiles, ResaveIsOpeningAndSavingInTheApplication) {
    // The project date is written in the local time zone, which zolest takes from TZ.
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    TempFolder folder;
    const auto run = runZolest({"resave", kSample, "-o", folder / "resaved.zol"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(firstDifference(TempFolder::contents(kData + "sample-house-resaved.zol"),
                              TempFolder::contents(folder / "resaved.zol")),
              "");
    // Over the file itself, when the user names it.
    TempFolder::write(folder / "again.zol", TempFolder::contents(kSample));
    ASSERT_EQ(runZolest({"resave", folder / "again.zol", "-o", folder / "again.zol"}).exitCode, 0);
    EXPECT_EQ(firstDifference(TempFolder::contents(kData + "sample-house-resaved.zol"),
                              TempFolder::contents(folder / "again.zol")),
              "");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"again.zol", "resaved.zol"}));
}

TEST(ZolestFiles, AFileThatCannotBeReadGivesTheAlertAndExitCodeOne) {
    TempFolder folder;
    TempFolder::write(folder / "broken.zol", "<?xml version=\"1.0\"?>\n<Workbook>\n\t<Works");
    TempFolder::write(folder / "amp.zol",
                      "<Workbook><ProjectName>Smith & Sons</ProjectName></Workbook>");
    TempFolder::write(folder / "photo.zol", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    for (const auto& [file, message] :
         std::vector<std::pair<std::string, std::string>>{{"missing.zol", kOpenError},
                                                          {"broken.zol", kOpenError},
                                                          {"amp.zol", kOpenError},
                                                          {"photo.zol", kWrongFormat}}) {
        for (const auto& args : std::vector<std::vector<std::string>>{
                 {"resave", folder / file, "-o", folder / "out.zol"},
                 {"takeoff", folder / file},
                 {"prices", "export", folder / file, "-o", folder / "out.zp"}}) {
            const auto run = runZolest(args);
            EXPECT_EQ(run.exitCode, 1) << file << " " << args[0];
            EXPECT_TRUE(startsWith(run.err, message + "\n")) << file << ": " << run.err;
            EXPECT_EQ(run.out, "");
        }
    }
    EXPECT_NE(runZolest({"takeoff", folder / "missing.zol"}).err.find("No such file"),
              std::string::npos);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"amp.zol", "broken.zol", "photo.zol"}));
}

TEST(ZolestFiles, XMLThatIsNoWorkbookOpensAsANewWorkbookAfterTheAlert) {
    TempFolder folder;
    TempFolder::write(folder / "prices.zol", TempFolder::contents(kPrices));
    const auto run = runZolest({"takeoff", folder / "prices.zol", "--json"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, kOpenError + "\n");
    const auto json = nlohmann::json::parse(run.out);
    ASSERT_EQ(json["worksheets"].size(), 1u);
    EXPECT_EQ(json["worksheets"].at(0).at("name"), "Worksheet 1");
}

TEST(ZolestFiles, ASaveThatFailsLeavesNothingBehind) {
    TempFolder folder;
    const auto run = runZolest({"resave", kSample, "-o", folder / "no/such/folder/out.zol"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(startsWith(run.err, "zolest: could not save ")) << run.err;
    std::filesystem::create_directory(folder / "taken.zol");
    EXPECT_EQ(runZolest({"new", "-o", folder / "taken.zol"}).exitCode, 1);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"taken.zol"});
    EXPECT_TRUE(std::filesystem::is_empty(folder / "taken.zol"));
}

TEST(ZolestFiles, TakeoffJsonHoldsEveryWorksheetRecordAndTheJobSummary) {
    const auto run = runZolest({"takeoff", kSample, "--json"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(keys(json), (std::set<std::string>{"worksheets", "getTotalGrossSquareFeet",
                                                 "getTotalNetSquareFeet", "customItems"}));
    ASSERT_EQ(json["worksheets"].size(), 3u);
    EXPECT_EQ(json["worksheets"].at(0).at("name"), "Basement");
    EXPECT_EQ(json["worksheets"].at(1).at("name"), "Main Floor");
    EXPECT_EQ(json["worksheets"].at(2).at("name"), "Garage");

    // Each record object has the keys of the matching `zolest calc` command.
    const std::vector<std::pair<std::string, std::string>> records = {{"wall", "wall"},
                                                                      {"rebar", "rebar"},
                                                                      {"concrete", "concrete"},
                                                                      {"tilt", "tilt"},
                                                                      {"manHours", "manhours"}};
    for (const auto& [key, command] : records) {
        const auto calc = runZolest({"calc", command, "--json"});
        ASSERT_EQ(calc.exitCode, 0) << command << calc.err;
        const auto single = nlohmann::json::parse(calc.out);
        for (const auto& sheet : json["worksheets"])
            EXPECT_EQ(keys(sheet[key]), keys(single)) << key;
    }
    const auto& openings = json["worksheets"].at(1).at("openings");
    EXPECT_EQ(openings["openingList"].size(), 4u);

    // The workbook totals are the sums over the worksheets' walls.
    double gross = 0.0;
    double net = 0.0;
    for (const auto& sheet : json["worksheets"]) {
        gross += sheet.at("wall").at("getGrossSqFtOfWall").get<double>();
        net += sheet.at("wall").at("getNetSqFtOfWall").get<double>();
    }
    EXPECT_DOUBLE_EQ(json["getTotalGrossSquareFeet"].get<double>(), gross);
    EXPECT_DOUBLE_EQ(json["getTotalNetSquareFeet"].get<double>(), net);

    // The generated lines, wall package first, each with its seven fields.
    ASSERT_FALSE(json["customItems"].empty());
    EXPECT_EQ(json["customItems"].at(0).at("name"), "Zol Blocks Package");
    for (const auto& item : json["customItems"])
        EXPECT_EQ(keys(item),
                  (std::set<std::string>{"name", "quantity", "unit", "cost", "tiedToWorkbook",
                                         "calculatorType", "visible"}));
}

TEST(ZolestFiles, TakeoffPricesTheJobWithAPriceFileAndATemplate) {
    // The prices saved in the workbook sit behind the default (zero) prices once it is opened;
    // a price file replaces the list.
    const auto plain = nlohmann::json::parse(runZolest({"takeoff", kSample, "--json"}).out);
    EXPECT_DOUBLE_EQ(plain["customItems"].at(0).at("cost").get<double>(), 0.0);
    const auto priced =
        runZolest({"takeoff", kSample, "--prices", kPrices, "--template", kTemplate, "--json"});
    ASSERT_EQ(priced.exitCode, 0) << priced.err;
    const auto json = nlohmann::json::parse(priced.out);
    EXPECT_GT(json["customItems"].at(0).at("cost").get<double>(), 1000.0);
    bool permit = false;
    for (const auto& item : json["customItems"])
        permit = permit || item["name"] == "Building permit";
    EXPECT_TRUE(permit);

    const auto text = runZolest({"takeoff", kSample, "--prices", kPrices, "--template", kTemplate});
    ASSERT_EQ(text.exitCode, 0) << text.err;
    for (const std::string expected :
         {"==== Worksheet: Basement ====", "==== Worksheet: Main Floor ====",
          "==== Worksheet: Garage ====", "Total gross square feet of wall", "Job summary",
          "Zol Blocks Package", "Building permit", "Total of the shown lines"})
        EXPECT_NE(text.out.find(expected), std::string::npos) << expected;

    TempFolder folder;
    TempFolder::write(folder / "bad.zp", "<Pricing><PriceItems>");
    const auto bad = runZolest({"takeoff", kSample, "--prices", folder / "bad.zp"});
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_EQ(bad.err, kOpenError + "\n");
    EXPECT_EQ(bad.out, "");
}

TEST(ZolestFiles, PricesExportAndImportMoveTheListAsThePriceWindowDoes) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    TempFolder folder;
    ASSERT_EQ(runZolest({"prices", "export", kSample, "-o", folder / "out.zp"}).exitCode, 0);
    ScopedAlertRecorder alerts;
    const auto opened = ZOLWorkbookReader::readWorkbookData(TempFolder::contents(kSample));
    ASSERT_TRUE(opened.ok());
    // As opened: the defaults, then the prices the file holds.
    EXPECT_EQ(firstDifference(opened.workbook->pricingData()->getFullXMLString(),
                              TempFolder::contents(folder / "out.zp")),
              "");

    ASSERT_EQ(
        runZolest({"prices", "import", kSample, kPrices, "-o", folder / "priced.zol"}).exitCode, 0);
    ZOLPriceFileReader::readPriceData(TempFolder::contents(kPrices),
                                      *opened.workbook->pricingData());
    EXPECT_EQ(firstDifference(opened.workbook->getXMLString(),
                              TempFolder::contents(folder / "priced.zol")),
              "");
    EXPECT_EQ(firstDifference(TempFolder::contents(kPrices),
                              opened.workbook->pricingData()->getFullXMLString()),
              "");

    TempFolder::write(folder / "cut.zp", TempFolder::contents(kPrices).substr(0, 500));
    const auto broken =
        runZolest({"prices", "import", kSample, folder / "cut.zp", "-o", folder / "x.zol"});
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_EQ(broken.err, kOpenError + "\n");
    TempFolder::write(folder / "empty.zp", "");
    const auto empty =
        runZolest({"prices", "import", kSample, folder / "empty.zp", "-o", folder / "x.zol"});
    EXPECT_EQ(empty.exitCode, 1);
    EXPECT_EQ(empty.err, kWrongFormat + "\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "x.zol"));
}
