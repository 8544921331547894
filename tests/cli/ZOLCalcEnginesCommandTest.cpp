// zolest calc rebar | concrete | tilt | manhours, run as a script would run them. The golden
// copies under tests/data/cli hold every field, query and size name or judgement word.
#include "support/CliRunner.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace {
nlohmann::json runJson(std::vector<std::string> args) {
    args.insert(args.begin(), "calc");
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
        auto args = run.args;
        args.insert(args.begin(), "calc");
        expectGoldenFile(std::string("cli/calc-") + run.golden + ".txt", outputOf(args));
        args.push_back("--json");
        expectGoldenFile(std::string("cli/calc-") + run.golden + ".json", outputOf(args));
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

TEST(ZOLCalcEnginesCommand, BadInputExitsWithUsageErrorAndHelpExplainsTheUnits) {
    const std::vector<std::pair<std::vector<std::string>, const char*>> bad = {
        {{"calc", "rebar", "--barSize", "4"}, "--barSize"},
        {{"calc", "concrete", "--removeSqFtOpenings", "maybe"}, "--removeSqFtOpenings"},
        {{"calc", "concrete", "--footingLength", "0x10"}, "--footingLength"},
        {{"calc", "tilt", "--wallLength"}, "--wallLength"},
        {{"calc", "manhours", "--rebarComplexity", "Intense"}, "--rebarComplexity"},
        {{"calc", "pour"}, "'pour' is not a command of 'zolest calc'"},
        {{"calc"}, "A subcommand is required"},
    };
    for (const auto& [args, option] : bad)
        expectRefusal(args, option);

    // The help lists the calculators and explains the units.
    EXPECT_TRUE(shows(runZolest({"--help"}).out, "calc"));
    const std::string calc = outputOf({"calc", "--help"});
    for (const char* name : {"wall", "rebar", "concrete", "tilt", "manhours"})
        EXPECT_TRUE(shows(calc, std::string("  ") + name)) << name;
    for (const auto& [command, unit] :
         std::vector<std::pair<const char*, const char*>>{{"rebar", "1=#4"},
                                                          {"concrete", "whole inches"},
                                                          {"manhours", "9 Intense"},
                                                          {"tilt", "feet"}})
        EXPECT_TRUE(shows(runZolest({"calc", command, "--help"}).out, unit)) << command;
}
