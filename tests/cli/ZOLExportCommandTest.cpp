// zolest export: the sample house's spreadsheets on stdout or in a file, and the usage errors.
#include "support/ChangedSample.h"
#include "support/CliRunner.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

TEST(ZOLExportCommand, WritesEachSpreadsheetToStdoutOrAFileAndRefusesWhatItCannotDo) {
    const std::pair<const char*, const char*> kinds[] = {
        {"--order-list", "Worksheet,Part,Block Size,"},
        {"--workbook-summary", "Part,Quantity,Unit Price,"},
        {"--job-summary", "Item,Quantity,Unit,"},
    };
    TempFolder folder;
    for (const auto& [flag, header] : kinds) {
        SCOPED_TRACE(flag);
        const std::string out = outputOf({"export", kSample, flag, "--prices", kPrices});
        EXPECT_EQ(out.rfind(header, 0), 0u);
        EXPECT_NE(out.find("\r\n"), std::string::npos);
        const std::string path = folder / "out.csv";
        EXPECT_EQ(outputOf({"export", kSample, flag, "--prices", kPrices, "-o", path}), "");
        EXPECT_EQ(TempFolder::contents(path), out);
    }

    // A missing or double choice is refused; an unreadable file: see zolest's file commands.
    expectRefusal({"export", kSample}, "");
    expectRefusal({"export", kSample, "--order-list", "--job-summary"}, "");
}
