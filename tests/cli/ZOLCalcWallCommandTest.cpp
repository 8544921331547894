// zolest calc wall as a user runs it: options named after the wall's fields, openings, JSON
// and text output, and the refusals.
#include "support/CliRunner.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {
std::vector<std::string> calcWall(std::vector<std::string> args) {
    args.insert(args.begin(), {"calc", "wall"});
    return args;
}

nlohmann::json jsonOf(std::vector<std::string> args) {
    args.push_back("--json");
    return nlohmann::json::parse(outputOf(calcWall(args)));
}
} // namespace

// Every field as an option, booleans in each of their spellings; the golden copy holds the
// fields as read, every query and the seventeen part rows. Then the text take-off.
TEST(ZOLCalcWallCommand, EveryFieldIsAnOptionAndTheTakeOffPrintsAsJsonAndText) {
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
    expectGoldenFile("cli/calc-wall-every-field.json", outputOf(calcWall(args)));
    // The text take-off; its columns line up although two part names carry a two-byte degree
    // sign.
    expectGoldenFile("cli/calc-wall.txt",
                     outputOf(calcWall({"--wallLength", "100", "--opening", "2,36,48"})));
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
    for (const auto& [args, message] : cases)
        expectRefusal(calcWall(args), message);
}
