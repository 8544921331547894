// zolest calc wall as a user runs it: options named after the wall's fields, openings, JSON
// and text output, and the refusals.
#include "support/CliRunner.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {
CliResult calcWall(std::vector<std::string> args) {
    args.insert(args.begin(), {"calc", "wall"});
    CliResult result = runZolest(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_TRUE(result.err.empty()) << result.err;
    return result;
}

nlohmann::json jsonOf(std::vector<std::string> args) {
    args.push_back("--json");
    return nlohmann::json::parse(calcWall(args).out);
}
} // namespace

// Every field as an option, booleans in each of their spellings; the golden copy holds the
// fields as read, every query and the seventeen part rows.
TEST(ZOLCalcWallCommand, EveryFieldIsAnOptionAndEveryQueryIsPrinted) {
    std::istringstream fields(
        "--blockSize 6 --wallHeight 9.334 --wallLength 80 --insideCornerLocations 1 "
        "--outsideCornerLocations 2 --angleLocations 3 --tBlockLocations 4 "
        "--linearFeetCorbel 5 --linearFeetCurb 6 --curbCornerLocations 7 "
        "--linearFeetTapered 8 --linearFeetRadius 9 --radius 11 --sqftOpenings 12 "
        "--linearFeetBuck 13 --straightBlockAdded 14 --cornerBlockAdded 15 "
        "--caloraStickLayers 1 --useCutBlock yes --useHalfBlock on --useExtenders 1 "
        "--usePravex true --pelmoBrickHeight 2.5 --pelmoBrickLength 30 --pelmoPerBlock 2 "
        "--wastePercentage 0.05");
    std::vector<std::string> args = {"--json"};
    for (std::string word; fields >> word;)
        args.push_back(word);
    expectGoldenFile("cli/calc-wall-every-field.json", calcWall(args).out);
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

    const nlohmann::json none = jsonOf({"--sqftOpenings", "50", "--wallLength", "nan"});
    EXPECT_EQ(none["fields"]["sqftOpenings"], 50.0);
    EXPECT_FALSE(none.contains("openings"));
    // Values that are not numbers print as null.
    EXPECT_TRUE(none["fields"]["wallLength"].is_null());
    EXPECT_TRUE(none["getLinearFeetOfStraightBlock"].is_null());
    EXPECT_EQ(none["getStraightBlocks"], 0);
}

// The text take-off; its columns line up although two part names carry a two-byte degree sign.
TEST(ZOLCalcWallCommand, TextTakeOff) {
    expectGoldenFile("cli/calc-wall.txt",
                     calcWall({"--wallLength", "100", "--opening", "2,36,48"}).out);
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
