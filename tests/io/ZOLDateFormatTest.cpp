#include "io/ZOLDateFormat.h"
#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

namespace {
constexpr int64_t kMay2Morning = 1399041000;    // 2014-05-02 14:30:00 UTC
constexpr int64_t kNewYearsEveUtc = 1420081200; // 2015-01-01 03:00:00 UTC
} // namespace

TEST(ZOLDateFormatTest, FileDateIsLocalTimeWithItsOffset) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    EXPECT_EQ(ZOLDateFormat::formatFileDate(kMay2Morning), "2014-05-02T09:30:00-0500");
    // Standard time in winter, and the local calendar day rather than the UTC one.
    EXPECT_EQ(ZOLDateFormat::formatFileDate(kNewYearsEveUtc), "2014-12-31T21:00:00-0600");
    EXPECT_EQ(ZOLDateFormat::formatReportDate(kNewYearsEveUtc), "12/31/2014");
    EXPECT_EQ(ZOLDateFormat::formatReportDate(kMay2Morning), "05/02/2014");
    EXPECT_EQ(ZOLDateFormat::formatFileDate(0), "1969-12-31T18:00:00-0600");
}

TEST(ZOLDateFormatTest, FileDateInUtcAndOtherZones) {
    {
        ScopedTimeZone zone("UTC0");
        EXPECT_EQ(ZOLDateFormat::formatFileDate(kMay2Morning), "2014-05-02T14:30:00+0000");
    }
    {
        ScopedTimeZone zone("IST-5:30");
        EXPECT_EQ(ZOLDateFormat::formatFileDate(kMay2Morning), "2014-05-02T20:00:00+0530");
    }
}

TEST(ZOLDateFormatTest, ParsesTheFileFormBackToTheSameInstant) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    for (int64_t t : {kMay2Morning, kNewYearsEveUtc, int64_t{0}, int64_t{951782400}}) {
        EXPECT_EQ(ZOLDateFormat::parseFileDate(ZOLDateFormat::formatFileDate(t)), t) << t;
    }
    // The offset in the text decides, not the zone of the reader.
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2014-05-02T14:30:00+0000"), kMay2Morning);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2014-05-02T20:00:00+05:30"), kMay2Morning);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2014-05-02T14:30:00Z"), kMay2Morning);
    EXPECT_EQ(ZOLDateFormat::parseFileDate("2000-02-29T00:00:00+0000"), 951782400);
}

TEST(ZOLDateFormatTest, UnreadableTextGivesNoDate) {
    for (const char* text :
         {"", "today", "2014-05-02", "2014-05-02T09:30:00", "2014-05-02 09:30:00-0500",
          "2014-13-02T09:30:00-0500", "2014-02-29T09:30:00-0500", "2014-05-02T24:00:00-0500",
          "2014-05-02T09:60:00-0500", "2014-05-02T09:30:00-0500 ", "2014-05-02T09:30:00-05",
          "2014-05-00T09:30:00-0500"}) {
        EXPECT_FALSE(ZOLDateFormat::parseFileDate(text).has_value()) << text;
    }
}

TEST(ZOLDateFormatTest, InstantsBeyondTheCalendarGiveEmptyText) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    EXPECT_EQ(ZOLDateFormat::formatFileDate(INT64_MAX), "");
    EXPECT_EQ(ZOLDateFormat::formatReportDate(INT64_MIN), "");
}
