// The writers append their lines into one buffer; every line must read as the printf-style
// format has always written it.
#include "io/ZOLFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(ZOLFormatAppend, WritesWhatFormatWrites) {
    const double inf = std::numeric_limits<double>::infinity();
    std::string out = "kept ";
    const auto same = [&out](const std::string& expected, auto append) {
        const std::size_t before = out.size();
        append(out);
        EXPECT_EQ(out.substr(before), expected);
    };
    for (const double value : {0.0, -0.0, 0.5, 2.5, 0.125, 1.0 / 3, 9.334, -12.345678949,
                               123456789.9999995, 1e22, 1e300, 1e-7, -inf, inf, std::nan("")}) {
        same(ZOLFormat::format("\t<W>%f</W>\n", value),
             [&](std::string& s) { ZOLFormat::append(s, "\t<W>%f</W>\n", value); });
        same(ZOLFormat::format("%.2f lbs", value),
             [&](std::string& s) { ZOLFormat::append(s, "%.2f lbs", value); });
    }
    const std::optional<std::string> absent;
    const std::string longName(900, 'x');
    same(ZOLFormat::format("%d %d%%%@ %@ %s", -2147483647 - 1, true, absent, "a", longName),
         [&](std::string& s) {
             ZOLFormat::append(s, "%d %d%%%@ %@ %s", -2147483647 - 1, true, absent, "a", longName);
         });
    // Conversions beyond the files' own go through printf as ever.
    same(ZOLFormat::format("%5d|%x|%ld|%e", 42, 255, 7L, 1.5),
         [&](std::string& s) { ZOLFormat::append(s, "%5d|%x|%ld|%e", 42, 255, 7L, 1.5); });
    EXPECT_EQ(out.substr(0, 5), "kept ");
}
