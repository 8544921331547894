// zolest calc rebar | concrete | tilt | manhours, run as a script would run them.
#include "support/CliRunner.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <string>
#include <vector>

namespace {
nlohmann::json runJson(std::vector<std::string> args) {
    args.insert(args.begin(), "calc");
    args.push_back("--json");
    const CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return nlohmann::json::parse(result.out);
}

std::set<std::string> keysOf(const nlohmann::json& object) {
    std::set<std::string> keys;
    for (const auto& item : object.items())
        keys.insert(item.key());
    return keys;
}

bool shows(const CliResult& r, const std::string& text) {
    return r.out.find(text) != std::string::npos;
}
} // namespace

TEST(ZolestCalcRebar, JsonHoldsEveryFieldLengthAndSizeName) {
    const auto j = runJson({"rebar", "--wallLength", "100", "--horizontalRowCount1", "2",
                            "--horizontalLap1", "30", "--verticalSpacing", "24", "--dowelSpacing",
                            "24", "--dowelLength", "30", "--horizontalSize2", "3"});
    EXPECT_EQ(keysOf(j),
              (std::set<std::string>{"fields", "getHorizontalLength1", "getHorizontalLength2",
                                     "getVerticalLength", "getDowelLength", "horizontalSize1Name",
                                     "horizontalSize2Name", "verticalSizeName", "dowelSizeName"}));
    EXPECT_EQ(keysOf(j["fields"]).size(), 14u);
    EXPECT_EQ(j["fields"]["horizontalLap1"], 30);
    EXPECT_EQ(j["getHorizontalLength1"], 220.0);
    EXPECT_EQ(j["getVerticalLength"], 400.0);
    EXPECT_EQ(j["getDowelLength"], 100.0);
    EXPECT_EQ(j["horizontalSize1Name"], "#4");
    EXPECT_EQ(j["horizontalSize2Name"], "#6");

    const auto metric =
        runJson({"rebar", "--measurement", "1", "--wallLength", "100", "--verticalSpacing", "6",
                 "--dowelSize", "5", "--verticalSize", "0"});
    EXPECT_EQ(metric["horizontalSize1Name"], "10M");
    EXPECT_TRUE(metric["dowelSizeName"].is_null()); // an Imperial #8 has no Metric name
    EXPECT_TRUE(metric["verticalSizeName"].is_null());
    EXPECT_TRUE(metric["getVerticalLength"].is_null()); // 6 inches is no whole foot
    EXPECT_TRUE(runJson({"rebar", "--wallLength", "nan"})["fields"]["wallLength"].is_null());
}

TEST(ZolestCalcConcreteAndTilt, JsonHoldsEveryPourAndEveryCount) {
    const auto c = runJson(
        {"concrete", "--footingLength",      "100",  "--footingWidth",  "20", "--footingDepth",
         "10",       "--wallLength",         "100",  "--wallThickness", "6",  "--wallHeight",
         "8",        "--removeSqFtOpenings", "true", "--sqFtOpenings",  "50", "--slabLength",
         "inf",      "--slabWidth",          "10",   "--slabDepth",     "4"});
    EXPECT_EQ(keysOf(c).size(), 9u); // the fields and eight queries
    EXPECT_EQ(keysOf(c["fields"]).size(), 15u);
    EXPECT_EQ(c["fields"]["removeSqFtOpenings"], true);
    EXPECT_TRUE(c["fields"]["slabLength"].is_null());
    EXPECT_NEAR(c["getFootingVolume"].get<double>(), 5.144, 0.0005);
    EXPECT_NEAR(c["getFootingWeight"].get<double>(), 19913.9, 0.05);
    EXPECT_NEAR(c["getWallVolume"].get<double>(), 13.889, 0.0005);
    EXPECT_EQ(c["getPileVolume"], 0.0);
    EXPECT_TRUE(c["getSlabVolume"].is_null());

    const auto t = runJson({"tilt", "--wallLength", "100", "--wallHeight", "10"});
    EXPECT_EQ(keysOf(t["fields"]).size(), 2u); // wall length and height
    EXPECT_EQ(keysOf(t).size(), 7u);           // the fields and six queries
    EXPECT_EQ(t["getPanels"], 190);
    EXPECT_EQ(t["getPanelBundles"], 17);
    EXPECT_EQ(t["getInserts"], 570);
    EXPECT_EQ(t["getInsertBundles"], 3);
}

TEST(ZolestCalcManHours, JsonHoldsRatingsResultsAndJudgementWords) {
    const auto j =
        runJson({"manhours", "--squareFeetOfWall", "1000", "--otherTurns", "2", "--rebarComplexity",
                 "6", "--crewExperience", "2", "--siteConditions", "4"});
    EXPECT_EQ(keysOf(j).size(), 15u); // the fields, eleven queries, three words
    EXPECT_EQ(keysOf(j["fields"]).size(), 11u);
    EXPECT_EQ(j["fields"]["rebarComplexity"], 6);
    EXPECT_EQ(j["rebarComplexityText"], "Above Average");
    EXPECT_EQ(j["crewExperienceText"], "High");
    EXPECT_EQ(j["siteConditionsText"], "Average"); // 4 is not in the list
    EXPECT_EQ(j["getCrewSizeRating"], 5);
    EXPECT_EQ(j["getTotalProjectRating"], 29);
    EXPECT_NEAR(j["getHoursToComplete"].get<double>(), 85.0, 1e-9);
    EXPECT_NEAR(j["getDaysToComplete"].get<double>(), 85.0 / 51.0, 1e-9);

    const auto broken = runJson({"manhours", "--squareFeetOfWall", "inf", "--wallHeight", "nan"});
    EXPECT_TRUE(broken["getHoursToComplete"].is_null());
    EXPECT_EQ(broken["getWallHeightRating"], 9);
}

TEST(ZolestCalcEngines, TextShowsInputsAndResultsWithUnits) {
    const CliResult rebar =
        runZolest({"calc", "rebar", "--wallLength", "100", "--verticalSpacing", "8",
                   "--horizontalRowCount1", "2", "--horizontalLap1", "30"});
    for (const char* text : {"30 in", "220.00 linear ft", "infinite"})
        EXPECT_TRUE(shows(rebar, text)) << text;
    const CliResult concrete = runZolest({"calc", "concrete", "--measurement", "1", "--slabLength",
                                          "10", "--slabWidth", "10", "--slabDepth", "4"});
    EXPECT_TRUE(shows(concrete, "0.94 cu m")) << concrete.out;
    const CliResult tilt = runZolest({"calc", "tilt", "--wallLength", "100", "--wallHeight", "10"});
    EXPECT_TRUE(shows(tilt, "17 (12 panels per bundle)"));
    const CliResult hours = runZolest({"calc", "manhours", "--squareFeetOfWall", "1000",
                                       "--otherTurns", "2", "--laborCost", "40"});
    EXPECT_TRUE(shows(hours, "0.090 man hours per sq ft"));
    EXPECT_TRUE(shows(hours, "$3600.00"));
}

TEST(ZolestCalcEngines, BadInputExitsWithUsageError) {
    const std::vector<std::vector<std::string>> bad = {
        {"calc", "rebar", "--verticalSpacing", "24.5"},
        {"calc", "rebar", "--barSize", "4"},
        {"calc", "concrete", "--removeSqFtOpenings", "maybe"},
        {"calc", "concrete", "--footingLength", "0x10"},
        {"calc", "tilt", "--wallLength"},
        {"calc", "manhours", "--crewSize", "4.5"},
        {"calc", "manhours", "--rebarComplexity", "Intense"},
        {"calc", "pour"},
    };
    for (const auto& args : bad) {
        const CliResult r = runZolest(args);
        SCOPED_TRACE(args.back());
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.out.empty()) << r.out;
        EXPECT_NE(r.err.find("zolest:"), std::string::npos) << r.err;
    }
    EXPECT_NE(runZolest({"calc", "manhours", "--crewSize", "4.5"}).err.find("--crewSize"),
              std::string::npos);
}

TEST(ZolestCalcEngines, HelpListsTheCalculatorsAndExplainsUnits) {
    const CliResult calc = runZolest({"calc", "--help"});
    EXPECT_EQ(calc.exitCode, 0);
    for (const char* name : {"rebar", "concrete", "tilt", "manhours"})
        EXPECT_TRUE(shows(calc, std::string("  ") + name)) << name;
    EXPECT_TRUE(shows(runZolest({"calc", "rebar", "--help"}), "1=#4"));
    EXPECT_TRUE(shows(runZolest({"calc", "concrete", "--help"}), "whole inches"));
    EXPECT_TRUE(shows(runZolest({"calc", "manhours", "--help"}), "9 Intense"));
    EXPECT_TRUE(shows(runZolest({"calc", "tilt", "--help"}), "feet"));
}
