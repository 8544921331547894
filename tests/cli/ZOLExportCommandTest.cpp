// zolest export: the sample house's spreadsheets on stdout or in a file, and the usage errors.
#include "support/CliRunner.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

const std::string kSample = std::string(ZOL_SOURCE_DIR) + "/examples/sample-house.zol";
const std::string kPrices = std::string(ZOL_SOURCE_DIR) + "/examples/prices.zp";

} // namespace

TEST(ZOLExportCommand, WritesEachSpreadsheetToStdoutOrToTheNamedFile) {
    const std::pair<const char*, const char*> kinds[] = {
        {"--order-list", "Worksheet,Part,Block Size,"},
        {"--workbook-summary", "Part,Quantity,Unit Price,"},
        {"--job-summary", "Item,Quantity,Unit,"},
    };
    TempFolder folder;
    for (const auto& [flag, header] : kinds) {
        const auto out = runZolest({"export", kSample, flag, "--prices", kPrices});
        ASSERT_EQ(out.exitCode, 0) << flag << out.err;
        EXPECT_EQ(out.out.rfind(header, 0), 0u) << flag;
        EXPECT_NE(out.out.find("\r\n"), std::string::npos);
        const std::string path = folder / "out.csv";
        ASSERT_EQ(runZolest({"export", kSample, flag, "--prices", kPrices, "-o", path}).exitCode,
                  0);
        EXPECT_EQ(TempFolder::contents(path), out.out) << flag;
    }
}

TEST(ZOLExportCommand, RefusesAMissingOrDoubleChoiceAndAnUnreadableFile) {
    EXPECT_EQ(runZolest({"export", kSample}).exitCode, 2);
    EXPECT_EQ(runZolest({"export", kSample, "--order-list", "--job-summary"}).exitCode, 2);
    const auto missing = runZolest({"export", "/nonexistent.zol", "--order-list"});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.out.empty());
}
