#include "io/ZOLDateFormat.h"
#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

namespace {
constexpr int64_t kMay2 = 1399041000;           // 2014-05-02 14:30:00 UTC
constexpr int64_t kNewYearsEveUtc = 1420081200; // 2015-01-01 03:00:00 UTC
} // namespace

// Dates are written in local time with the zone offset; reading takes the offset of the text and
// rejects impossible dates.
TEST(ZOLDateFormat, WrittenInLocalTimeWithTheOffsetAndReadWithTheTextsOffset) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    EXPECT_EQ(ZOLDateFormat::formatFileDate(kMay2), "2014-05-02T09:30:00-0500");
    // Standard time in winter, and the local calendar day rather than the UTC one.
    EXPECT_EQ(ZOLDateFormat::formatFileDate(kNewYearsEveUtc), "2014-12-31T21:00:00-0600");
    EXPECT_EQ(ZOLDateFormat::formatReportDate(kNewYearsEveUtc), "12/31/2014");
    EXPECT_EQ(ZOLDateFormat::parseFileDate(ZOLDateFormat::formatFileDate(kNewYearsEveUtc)),
              kNewYearsEveUtc);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2014-05-02T20:00:00+05:30"), kMay2);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2014-05-02T14:30:00Z"), kMay2);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2000-02-29T00:00:00+0000"), 951782400);
    for (const char* text : {"", "2014-05-02", "2014-05-02T09:30:00", "2014-02-29T09:30:00-0500",
                             "2014-13-02T09:30:00-0500", "2014-05-02T24:00:00-0500",
                             "2014-05-02T09:30:00-0500 ", "2014-05-02T09:30:00-05"})
        EXPECT_FALSE(ZOLDateFormat::parseFileDate(text).has_value()) << text;

    ScopedTimeZone india("IST-5:30");
    EXPECT_EQ(ZOLDateFormat::formatFileDate(kMay2), "2014-05-02T20:00:00+0530");
}
