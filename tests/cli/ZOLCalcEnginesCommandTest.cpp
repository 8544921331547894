// zolest calc rebar | concrete | tilt | manhours, run as a script would run them. The golden
// copies under tests/data/cli hold every field, query and size name or judgement word.
#include "support/CliRunner.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace {
std::string outputOf(std::vector<std::string> args) {
    args.insert(args.begin(), "calc");
    const CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_TRUE(result.err.empty()) << result.err;
    return result.out;
}

nlohmann::json runJson(std::vector<std::string> args) {
    args.push_back("--json");
    return nlohmann::json::parse(outputOf(args));
}

bool shows(const std::string& out, const std::string& text) {
    return out.find(text) != std::string::npos;
}
} // namespace

TEST(ZOLCalcEnginesCommand, JsonAndTextOfEachCalculator) {
    const struct {
        const char* golden;
        std::vector<std::string> args;
    } runs[] = {
        {"rebar",
         {"rebar", "--wallLength", "100", "--horizontalRowCount1", "2", "--horizontalLap1", "30",
          "--verticalSpacing", "24", "--dowelSpacing", "8", "--dowelLength", "30",
          "--horizontalSize2", "3"}},
        {"concrete",
         {"concrete", "--footingLength",      "100",  "--footingWidth",  "20", "--footingDepth",
          "10",       "--wallLength",         "100",  "--wallThickness", "6",  "--wallHeight",
          "8",        "--removeSqFtOpenings", "true", "--sqFtOpenings",  "50", "--slabLength",
          "inf",      "--slabWidth",          "10",   "--slabDepth",     "4"}},
        {"concrete-metric",
         {"concrete", "--measurement", "1", "--slabLength", "10", "--slabWidth", "10",
          "--slabDepth", "4"}},
        {"tilt", {"tilt", "--wallLength", "100", "--wallHeight", "10"}},
        {"manhours",
         {"manhours", "--squareFeetOfWall", "1000", "--otherTurns", "2", "--rebarComplexity", "6",
          "--crewExperience", "2", "--siteConditions", "4", "--laborCost", "40"}},
    };
    for (const auto& run : runs) {
        SCOPED_TRACE(run.golden);
        expectGoldenFile(std::string("cli/calc-") + run.golden + ".txt", outputOf(run.args));
        auto json = run.args;
        json.push_back("--json");
        expectGoldenFile(std::string("cli/calc-") + run.golden + ".json", outputOf(json));
    }
}

TEST(ZOLCalcEnginesCommand, NamesAndValuesThatDoNotExistPrintAsNull) {
    const auto metric =
        runJson({"rebar", "--measurement", "1", "--wallLength", "100", "--verticalSpacing", "6",
                 "--dowelSize", "5", "--verticalSize", "0"});
    EXPECT_EQ(metric["horizontalSize1Name"], "10M");
    EXPECT_TRUE(metric["dowelSizeName"].is_null()); // an Imperial #8 has no Metric name
    EXPECT_TRUE(metric["verticalSizeName"].is_null());
    EXPECT_TRUE(metric["getVerticalLength"].is_null()); // 6 inches is no whole foot
    const auto broken = runJson({"manhours", "--squareFeetOfWall", "inf", "--wallHeight", "nan"});
    EXPECT_TRUE(broken["getHoursToComplete"].is_null());
    EXPECT_EQ(broken["getWallHeightRating"], 9);
}

TEST(ZOLCalcEnginesCommand, BadInputExitsWithUsageError) {
    const std::vector<std::pair<std::vector<std::string>, const char*>> bad = {
        {{"calc", "rebar", "--barSize", "4"}, "--barSize"},
        {{"calc", "concrete", "--removeSqFtOpenings", "maybe"}, "--removeSqFtOpenings"},
        {{"calc", "concrete", "--footingLength", "0x10"}, "--footingLength"},
        {{"calc", "tilt", "--wallLength"}, "--wallLength"},
        {{"calc", "manhours", "--rebarComplexity", "Intense"}, "--rebarComplexity"},
        {{"calc", "pour"}, "'pour' is not a command of 'zolest calc'"},
        {{"calc"}, "A subcommand is required"},
    };
    for (const auto& [args, option] : bad) {
        const CliResult r = runZolest(args);
        SCOPED_TRACE(args.back());
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.out.empty()) << r.out;
        EXPECT_NE(r.err.find("zolest:"), std::string::npos) << r.err;
        EXPECT_NE(r.err.find(option), std::string::npos) << r.err;
    }
}

TEST(ZOLCalcEnginesCommand, HelpListsTheCalculatorsAndExplainsUnits) {
    EXPECT_TRUE(shows(runZolest({"--help"}).out, "calc"));
    const CliResult calc = runZolest({"calc", "--help"});
    EXPECT_EQ(calc.exitCode, 0);
    for (const char* name : {"wall", "rebar", "concrete", "tilt", "manhours"})
        EXPECT_TRUE(shows(calc.out, std::string("  ") + name)) << name;
    for (const auto& [command, unit] :
         std::vector<std::pair<const char*, const char*>>{{"rebar", "1=#4"},
                                                          {"concrete", "whole inches"},
                                                          {"manhours", "9 Intense"},
                                                          {"tilt", "feet"}})
        EXPECT_TRUE(shows(runZolest({"calc", command, "--help"}).out, unit)) << command;
}
