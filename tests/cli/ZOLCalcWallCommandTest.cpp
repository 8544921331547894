// zolest calc wall as a user runs it: options named after the wall's fields, openings, JSON
// and text output, and the refusals.
#include "support/CliRunner.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <sstream>

namespace {
nlohmann::json jsonOf(std::vector<std::string> args) {
    args.insert(args.begin(), {"calc", "wall"});
    args.push_back("--json");
    const CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return nlohmann::json::parse(result.out);
}

std::vector<std::string> words(const std::string& text) {
    std::vector<std::string> list;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        list.push_back(word);
    return list;
}

// Every wall field as an option: the text typed and the value the wall then holds.
struct Field {
    const char* name;
    const char* text;
    nlohmann::json value;
};
const Field kFields[] = {
    {"blockSize", "6", 6},
    {"wallHeight", "9.334", 9.334},
    {"wallLength", "80", 80.0},
    {"insideCornerLocations", "1", 1},
    {"outsideCornerLocations", "2", 2},
    {"angleLocations", "3", 3},
    {"tBlockLocations", "4", 4},
    {"linearFeetCorbel", "5", 5.0},
    {"linearFeetCurb", "6", 6.0},
    {"curbCornerLocations", "7", 7},
    {"linearFeetTapered", "8", 8.0},
    {"linearFeetRadius", "9", 9.0},
    {"radius", "11", 11},
    {"sqftOpenings", "12", 12.0},
    {"linearFeetBuck", "13", 13.0},
    {"straightBlockAdded", "14", 14},
    {"cornerBlockAdded", "15", 15},
    {"caloraStickLayers", "1", 1},
    {"useCutBlock", "yes", true},
    {"useHalfBlock", "on", true},
    {"useExtenders", "1", true},
    {"usePravex", "true", true},
    {"pelmoBrickHeight", "2.5", 2.5},
    {"pelmoBrickLength", "30", 30.0},
    {"pelmoPerBlock", "2", 2},
    {"wastePercentage", "0.05", 0.05},
};
} // namespace

TEST(ZOLCalcWallCommand, JsonHasEveryQueryAndThePartRows) {
    const nlohmann::json j = jsonOf({"--wallLength", "100", "--wallHeight", "8"});
    const std::vector<std::string> queries = words(
        "getTotalWallHeight getRows getLinearFeetOfStraightBlock getLinearFeetOfInsideCorners "
        "getLinearFeetOfOutsideCorners getLinearFeetOfAngles getLinearFeetOfTBlock "
        "getOpeningsInBlockCount getGrossSqFtOfWall getNetSqFtOfWall getStraightBlocks "
        "getStraightHalfBlocks getStraightCutBlocks getCornerBlocks getCornerHalfBlocks "
        "getCornerCutBlocks getAngleBlocks getTBlocks getStraightCurbBlocks getCornerCurbBlocks "
        "getCorbelBlocks getTaperedBlocks getRadiusBlocks getZolBuck getExtenders getHVClips "
        "getCaloraSticks getCaloraStickBundles getCaloraStickWeight getPravexes getPelmos "
        "getTrucks getConcreteMeters getConcreteYards getBracing getLinearFeetRebar "
        "getTotalPartsWeight");
    std::set<std::string> keys;
    for (const auto& item : j.items())
        keys.insert(item.key());
    for (const std::string& q : queries)
        EXPECT_TRUE(keys.count(q)) << q;
    EXPECT_EQ(keys.size(), queries.size() + 2); // plus "fields" and "parts"
    EXPECT_EQ(j["getStraightBlocks"], 153);
    EXPECT_EQ(j["getHVClips"], 500);
    EXPECT_EQ(j["getBracing"], 17);
    EXPECT_EQ(j["fields"]["wastePercentage"], 0.02);
    ASSERT_EQ(j["parts"].size(), 17u);
    EXPECT_EQ(j["parts"][0], nlohmann::json({{"type", 0},
                                             {"name", "Straight Block"},
                                             {"count", 153},
                                             {"perBundle", 12},
                                             {"rounded", 156},
                                             {"bundles", 13},
                                             {"weight", 1147.5},
                                             {"weightRounded", 1170.0}}));
    EXPECT_EQ(j["parts"][13]["bundles"], 2);
    EXPECT_EQ(j["parts"][2]["name"], "90\u00B0 Corner Block");
}

TEST(ZOLCalcWallCommand, EveryFieldIsAnOption) {
    std::vector<std::string> args;
    nlohmann::json expected;
    for (const Field& f : kFields) {
        args.insert(args.end(), {std::string("--") + f.name, f.text});
        expected[f.name] = f.value;
    }
    const nlohmann::json j = jsonOf(args);
    EXPECT_EQ(j["fields"], expected);
    EXPECT_EQ(j["getRows"], 7);
    EXPECT_EQ(j["getPelmos"], 29); // 75 sq ft / 2.6
}

TEST(ZOLCalcWallCommand, OpeningsReplaceTheWallsOpeningFigures) {
    const nlohmann::json j = jsonOf({"--wallLength", "100", "--sqftOpenings", "500", "--opening",
                                     "2,36,48", "--opening", "1,72,80,nosill"});
    EXPECT_DOUBLE_EQ(j["fields"]["sqftOpenings"].get<double>(), 64.0);
    EXPECT_DOUBLE_EQ(j["fields"]["linearFeetBuck"].get<double>(), 29.34 + 2 * 80 / 12.0 + 6 + 0.67);
    EXPECT_EQ(j["getOpeningsInBlockCount"], 10);
    ASSERT_EQ(j["openings"]["openingList"].size(), 2u);
    EXPECT_EQ(j["openings"]["openingList"][1]["rowNumber"], 1);
    EXPECT_EQ(j["openings"]["openingList"][1]["useSill"], false);
    EXPECT_DOUBLE_EQ(j["openings"]["getTotalSquareFeet"].get<double>(), 64.0);

    const nlohmann::json none = jsonOf({"--sqftOpenings", "50"});
    EXPECT_EQ(none["fields"]["sqftOpenings"], 50.0);
    EXPECT_FALSE(none.contains("openings"));
}

TEST(ZOLCalcWallCommand, NonFiniteValuesPrintAsNull) {
    const nlohmann::json j = jsonOf({"--wallLength", "nan", "--wallHeight", "inf"});
    EXPECT_TRUE(j["getLinearFeetOfStraightBlock"].is_null());
    EXPECT_TRUE(j["fields"]["wallHeight"].is_null());
    EXPECT_EQ(j["getStraightBlocks"], 0);
}

TEST(ZOLCalcWallCommand, TextTakeOff) {
    const CliResult r = runZolest({"calc", "wall", "--wallLength", "100", "--opening", "2,36,48"});
    ASSERT_EQ(r.exitCode, 0) << r.err;
    EXPECT_TRUE(r.err.empty());
    for (const char* text :
         {"Total height", "8' 0\"", "6 rows", "Straight Block", "Zol Buck", "pelmo", "Total weight",
          "Trucks", "Concrete", "Bracing", "Rebar", "Openings", "24.00"})
        EXPECT_NE(r.out.find(text), std::string::npos) << text;
    // Columns line up although two part names carry a two-byte degree sign.
    const auto straight = r.out.find("  Straight Block ");
    const auto corner = r.out.find("  90\u00B0 Corner Block ");
    ASSERT_NE(corner, std::string::npos);
    const auto lineEnd = [&r](std::size_t at) { return r.out.find('\n', at) - at; };
    EXPECT_EQ(lineEnd(straight) + 1, lineEnd(corner)); // one extra byte, same columns
}

TEST(ZOLCalcWallCommand, RefusalsExitWithTwo) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--bogus", "1"}, "--bogus"},
        {{"--wallLength", "ten"}, "--wallLength: 'ten' is not a number"},
        {{"--blockSize", "8.5"}, "--blockSize: '8.5' is not a whole number"},
        {{"--useHalfBlock", "maybe"}, "--useHalfBlock: 'maybe' is not true or false"},
        {{"--opening", "2,36"}, "--opening: '2,36'"},
        {{"--opening", "x,36,48"}, "count 'x'"},
        {{"--opening", "1,36,4a8"}, "height '4a8'"},
        {{"--opening", "1,36,48,noseal"}, "'noseal'"},
    };
    for (const auto& [args, message] : cases) {
        std::vector<std::string> full = {"calc", "wall"};
        full.insert(full.end(), args.begin(), args.end());
        const CliResult r = runZolest(full);
        EXPECT_EQ(r.exitCode, 2) << args[0];
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
        EXPECT_TRUE(r.out.empty());
    }
}

TEST(ZOLCalcWallCommand, HelpListsEveryField) {
    const CliResult r = runZolest({"calc", "wall", "--help"});
    EXPECT_EQ(r.exitCode, 0);
    std::vector<std::string> options = {"opening", "json"};
    for (const Field& f : kFields)
        options.push_back(f.name);
    for (const std::string& field : options)
        EXPECT_NE(r.out.find(std::string("--") + field + " "), std::string::npos) << field;
    EXPECT_NE(runZolest({"--help"}).out.find("calc"), std::string::npos);
    EXPECT_NE(runZolest({"calc", "--help"}).out.find("wall"), std::string::npos);
}
