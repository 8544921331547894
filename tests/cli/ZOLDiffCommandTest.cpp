// zolest diff as a contractor runs it on a quoted job and the changed one: exit codes as diff
// gives them, and figures that agree with the two take-offs.
#include "support/ChangedSample.h"
#include "support/CliRunner.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>

namespace {

// The shown job-summary money of a take-off.
double shownMoney(const nlohmann::json& takeoff) {
    double total = 0.0;
    for (const auto& line : takeoff["customItems"])
        if (line["visible"].get<bool>())
            total += line["quantity"].get<double>() * line["cost"].get<double>();
    return total;
}

} // namespace

TEST(ZOLDiffCommand, ExitCodesSayWhetherTheJobsDifferAndTheFiguresAgreeWithTheTakeoffs) {
    TempFolder folder;
    const std::string changed = folder / "changed.zol";
    TempFolder::write(changed, longerBasement(sampleHouseText()));
    const std::string missing = folder / "missing.zol";
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string inOut, inErr;
    };
    for (const Case& c : std::vector<Case>{
             {{"diff", kSample, kSample}, 0, "Worksheet \"Basement\": same", ""},
             {{"diff", kSample, kSample, "--csv"},
              0,
              "worksheet,status,section,record,item,unit,old,new,difference\r\n",
              ""},
             {{"diff", kSample, changed}, 1, "Wall: Wall length", ""},
             {{"diff", missing, kSample}, 2, "", "There was an error opening the file."},
             {{"diff", kSample, missing}, 2, "", missing},
             {{"diff", kSample, changed, "--prices", missing}, 2, "", missing},
             {{"diff", kSample, changed, "--json", "--csv"}, 2, "", "excludes"},
         }) {
        const auto result = runZolest(c.args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args.back() << result.err;
        EXPECT_NE(result.out.find(c.inOut), std::string::npos) << result.out;
        EXPECT_NE(result.err.find(c.inErr), std::string::npos) << result.err;
    }

    // A longer wall and a window agree with the two take-offs.
    const std::string both = folder / "both.zol";
    TempFolder::write(both, longerBasement(basementWindowAdded(sampleHouseText())));
    const auto diff = runZolest({"diff", kSample, both, "--prices", kPrices, "--json"});
    ASSERT_EQ(diff.exitCode, 1) << diff.err;
    const auto order = nlohmann::json::parse(diff.out);
    const auto before =
        nlohmann::json::parse(runZolest({"takeoff", kSample, "--prices", kPrices, "--json"}).out);
    const auto after =
        nlohmann::json::parse(runZolest({"takeoff", both, "--prices", kPrices, "--json"}).out);

    const auto& basement = order["worksheets"][0];
    EXPECT_EQ(basement["status"], "changed");
    EXPECT_EQ(basement["fields"].size(), 4u); // length, openings area, buck, row 1 count
    const auto& oldParts = before["worksheets"][0]["wall"]["parts"];
    const auto& newParts = after["worksheets"][0]["wall"]["parts"];
    std::set<std::string> moved;
    for (const auto& part : basement["parts"]) {
        const int type = part["type"];
        moved.insert(part["name"].get<std::string>());
        EXPECT_EQ(part["difference"].get<int>(),
                  newParts[type]["count"].get<int>() - oldParts[type]["count"].get<int>());
        EXPECT_EQ(part["bundles"]["difference"].get<int>(),
                  newParts[type]["bundles"].get<int>() - oldParts[type]["bundles"].get<int>());
    }
    EXPECT_TRUE(moved.count("Straight Block") && moved.count("Zol Buck")) << basement["parts"];
    EXPECT_EQ(order["worksheets"][1]["status"], "same");
    EXPECT_GT(order["jobSummary"]["difference"].get<double>(), 100.0);
    EXPECT_NEAR(order["jobSummary"]["difference"].get<double>(),
                shownMoney(after) - shownMoney(before), 1e-6);
    EXPECT_NEAR(order["jobSummary"]["weight"]["difference"].get<double>(),
                after["worksheets"][0]["wall"]["getTotalPartsWeight"].get<double>() -
                    before["worksheets"][0]["wall"]["getTotalPartsWeight"].get<double>(),
                1e-6);

    const auto csv = runZolest({"diff", kSample, both, "--csv"}).out;
    EXPECT_NE(csv.find("\r\nBasement,changed,input,Wall,Wall length,,168.00 ft,180.00 ft,\r\n"),
              std::string::npos)
        << csv;
}
