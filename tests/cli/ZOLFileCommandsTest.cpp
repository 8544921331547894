// zolest on real files: new, resave, takeoff, prices export and import, run as a user would;
// the files no command can read.
#include "io/ZOLPriceFileReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"
#include "support/ChangedSample.h"
#include "support/CliRunner.h"
#include "support/GoldenFile.h"
#include "support/ScopedTimeZone.h"
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <regex>
#include <set>

namespace {

const std::string kOpenError = "There was an error opening the file.\n";
const std::string kWrongFormat =
    "There was an error opening the file. The file may be corrupted or of the wrong format.\n";

std::set<std::string> keys(const nlohmann::json& object) {
    std::set<std::string> set;
    for (auto it = object.begin(); it != object.end(); ++it)
        set.insert(it.key());
    return set;
}

} // namespace

TEST(ZOLFileCommands, NewAndResaveWriteWhatTheApplicationSaves) {
    // The project date is written in the local time zone, which zolest takes from TZ.
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    TempFolder folder;
    ASSERT_EQ(runZolest({"new", "-o", folder / "job.zol"}).exitCode, 0);
    // Byte for byte the golden new workbook, but for the date, which is now.
    const std::regex date("<ProjectDate>[^<]*</ProjectDate>");
    EXPECT_EQ(
        firstDifference(std::regex_replace(goldenFile("new-workbook.zol"), date, "DATE"),
                        std::regex_replace(TempFolder::contents(folder / "job.zol"), date, "DATE")),
        "");
    EXPECT_EQ(runZolest({"new"}).exitCode, 2); // the output must be named

    // The sample house resaved, here over the file itself when the user names it.
    TempFolder::write(folder / "again.zol", TempFolder::contents(kSample));
    EXPECT_EQ(outputOf({"resave", folder / "again.zol", "-o", folder / "again.zol"}), "");
    EXPECT_EQ(TempFolder::contents(folder / "again.zol"), goldenFile("sample-house-resaved.zol"));
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"again.zol", "job.zol"}));
}

TEST(ZOLFileCommands, AFileThatCannotBeReadGivesTheAlertThePathAndExitCodeOne) {
    // Where the XML is broken, the path names the line and column where reading stopped.
    TempFolder folder;
    TempFolder::write(folder / "broken.zol", "<?xml version=\"1.0\"?>\n<Workbook>\n\t<Works");
    TempFolder::write(folder / "photo.zol", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    // Bytes that the encoding the file names cannot convert: no word of the XML parser's own.
    TempFolder::write(folder / "encoded.zol", "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>\n"
                                              "<Workbook><ProjectName>\xff\xfe</ProjectName>");
    // A price file is XML but no workbook: the application would show a blank workbook.
    TempFolder::write(folder / "prices.zol", TempFolder::contents(kPrices));
    std::filesystem::create_directory(folder / "folder.zol");
    // The price and template files of a command are named the same way.
    TempFolder::write(folder / "cut.zp", TempFolder::contents(kPrices).substr(0, 500));
    TempFolder::write(folder / "empty.zci", "");
    std::vector<std::pair<std::vector<std::string>, std::string>> runs = {
        {{"prices", "import", kSample, folder / "cut.zp", "-o", folder / "out.zol"},
         kOpenError + folder / "cut.zp:19:12\n"},
        {{"takeoff", kSample, "--prices", folder / "cut.zp"},
         kOpenError + folder / "cut.zp:19:12\n"},
        {{"report", kSample, "--prices", folder / "cut.zp", "-o", folder / "out.html"},
         kOpenError + folder / "cut.zp:19:12\n"},
        {{"takeoff", kSample, "--template", folder / "empty.zci"},
         kWrongFormat + folder / "empty.zci\n"}};
    for (const auto& [file, message] : std::vector<std::pair<std::string, std::string>>{
             {"missing.zol", kOpenError + folder / "missing.zol: No such file or directory\n"},
             {"folder.zol", kOpenError + folder / "folder.zol: Is a directory\n"},
             {"broken.zol", kOpenError + folder / "broken.zol:3:8\n"},
             {"encoded.zol", kOpenError + folder / "encoded.zol:2:24\n"},
             {"prices.zol", kOpenError + folder / "prices.zol\n"},
             {"photo.zol", kWrongFormat + folder / "photo.zol\n"}}) {
        for (const auto& args : std::vector<std::vector<std::string>>{
                 {"resave", folder / file, "-o", folder / "out.zol"},
                 {"takeoff", folder / file},
                 {"report", folder / file, "-o", folder / "out.html"},
                 {"export", folder / file, "--order-list"},
                 {"prices", "export", folder / file, "-o", folder / "out.zp"}})
            runs.emplace_back(args, message);
    }
    for (const auto& [args, message] : runs) {
        const auto run = runZolest(args);
        EXPECT_EQ(run.exitCode, 1) << args[0] << " " << args[1] << " " << args[2];
        EXPECT_EQ(run.err, message);
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(folder.names(),
              (std::vector<std::string>{"broken.zol", "cut.zp", "empty.zci", "encoded.zol",
                                        "folder.zol", "photo.zol", "prices.zol"}));
}

TEST(ZOLFileCommands, ASaveThatFailsLeavesNothingBehind) {
    TempFolder folder;
    const auto run = runZolest({"resave", kSample, "-o", folder / "no/such/folder/out.zol"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "zolest: could not save " + folder / "no/such/folder/out.zol" +
                           ": No such file or directory\n");
    std::filesystem::create_directory(folder / "taken.zol");
    EXPECT_EQ(runZolest({"new", "-o", folder / "taken.zol"}).exitCode, 1);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"taken.zol"});
    EXPECT_TRUE(std::filesystem::is_empty(folder / "taken.zol"));
}

TEST(ZOLFileCommands, TakeoffJsonHoldsEveryWorksheetRecordAndTheJobSummary) {
    const auto json = nlohmann::json::parse(outputOf({"takeoff", kSample, "--json"}));
    EXPECT_EQ(keys(json), (std::set<std::string>{"worksheets", "getTotalGrossSquareFeet",
                                                 "getTotalNetSquareFeet", "customItems"}));
    ASSERT_EQ(json["worksheets"].size(), 3u);
    EXPECT_EQ(json["worksheets"].at(2).at("name"), "Garage");
    EXPECT_EQ(json["worksheets"].at(1).at("openings")["openingList"].size(), 4u);
    // Each record object has the keys of the matching `zolest calc` command.
    for (const auto& [key, command] :
         std::vector<std::pair<std::string, std::string>>{{"wall", "wall"},
                                                          {"rebar", "rebar"},
                                                          {"concrete", "concrete"},
                                                          {"tilt", "tilt"},
                                                          {"manHours", "manhours"}}) {
        const auto single = nlohmann::json::parse(runZolest({"calc", command, "--json"}).out);
        for (const auto& sheet : json["worksheets"])
            EXPECT_EQ(keys(sheet[key]), keys(single)) << key;
    }
    // The generated lines, wall package first, each with its seven fields.
    ASSERT_FALSE(json["customItems"].empty());
    EXPECT_EQ(json["customItems"].at(0).at("name"), "Zol Blocks Package");
    for (const auto& item : json["customItems"])
        EXPECT_EQ(keys(item),
                  (std::set<std::string>{"name", "quantity", "unit", "cost", "tiedToWorkbook",
                                         "calculatorType", "visible"}));
}

TEST(ZOLFileCommands, PricesMoveAsThePriceWindowMovesThem) {
    // The shadowed workbook prices and the template's lines: see zolest report's tests.
    const std::string text =
        outputOf({"takeoff", kSample, "--prices", kPrices, "--template", kTemplate});
    for (const std::string expected :
         {"==== Worksheet: Basement ====", "==== Worksheet: Garage ====",
          "Total gross square feet of wall", "Zol Blocks Package", "Building permit"})
        EXPECT_NE(text.find(expected), std::string::npos) << expected;

    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    TempFolder folder;
    ASSERT_EQ(runZolest({"prices", "export", kSample, "-o", folder / "out.zp"}).exitCode, 0);
    ASSERT_EQ(
        runZolest({"prices", "import", kSample, kPrices, "-o", folder / "priced.zol"}).exitCode, 0);
    ScopedAlertRecorder alerts;
    const auto opened = openedWorkbook(sampleHouseText());
    // Exported as opened: the defaults, then the prices the file holds.
    EXPECT_EQ(firstDifference(opened->pricingData()->getFullXMLString(),
                              TempFolder::contents(folder / "out.zp")),
              "");
    // Imported: exactly the price file's items.
    ZOLPriceFileReader::readPriceData(TempFolder::contents(kPrices), *opened->pricingData());
    EXPECT_EQ(firstDifference(opened->getXMLString(), TempFolder::contents(folder / "priced.zol")),
              "");
}
