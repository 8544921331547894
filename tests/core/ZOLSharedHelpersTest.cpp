// The shared helpers every reader, screen and calculator leans on.
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace {
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
} // namespace

TEST(ZOLNumeric, DoubleToIntSaturatesAndDivisionByNothingIsNothing) {
    const double values[] = {2.9,       -2.9,  NAN,          INFINITY,
                             -INFINITY, 1e300, 2147483647.5, -2147483648.9};
    const int32_t truncated[] = {2, -2, 0, kMax, kMin, kMax, kMax, kMin};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(ZOLNumeric::toInt(values[i]), truncated[i]) << values[i];
    EXPECT_EQ(ZOLNumeric::ceilToInt(1.0000001), 2);
    EXPECT_EQ(ZOLNumeric::floorToInt(-1.5), -2);
    EXPECT_EQ(ZOLNumeric::ceilToInt(NAN), 0);
    // A division by nothing is no count at all.
    EXPECT_EQ(ZOLNumeric::wrapDiv(7, 0), 0);
}

TEST(ZOLText, LeadingNumbersReadWhatTheTextStartsWithAsTheNearestDouble) {
    const char* texts[] = {"42", "  -17 corners", "+8", "12.9", "abc", "", "- 5"};
    const int32_t ints[] = {42, -17, 8, 12, 0, 0, 0};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(ZOLText::leadingInt(texts[i]), ints[i]) << texts[i];
    EXPECT_EQ(ZOLText::leadingInt("99999999999999999999"), kMax);
    EXPECT_EQ(ZOLText::leadingInt(std::optional<std::string>()), 0);
    // Plain decimals only: no hexadecimal, no "inf" or "nan" words.
    const std::pair<const char*, double> doubles[] = {
        {"12.500000", 12.5}, {" -1.5ft", -1.5},   {".5", 0.5},           {"5.", 5.0},
        {"1.2.3", 1.2},      {"2e3", 2000.0},     {"2e", 2.0},           {"2e+x", 2.0},
        {"0x1p3", 0.0},      {"inf", 0.0},        {"nan", 0.0},          {".", 0.0},
        {"true", 0.0},       {"1e999", INFINITY}, {"-1e999", -INFINITY}, {"1e-999", 0.0}};
    for (const auto& [text, value] : doubles)
        EXPECT_EQ(ZOLText::leadingDouble(text), value) << text;

    // Short decimals take a quicker way than longer ones; on either side of where the two meet,
    // a text reads as the nearest double, the same as the general number parser gives.
    for (const char* text :
         {"0.1", "0.3", "9.334000", "120.500000", "9007199254740991", "9007199254740993",
          "900719925474099.3", "1.0000000000000000000001", "0.00000000000000000000001",
          "123456789.123456789", "4503599627370497.5", "0.000000"}) {
        double expected = 0.0;
        std::from_chars(text, text + std::strlen(text), expected);
        const double read = ZOLText::leadingDouble(text);
        EXPECT_EQ(std::memcmp(&read, &expected, sizeof read), 0) << text;
    }
    EXPECT_TRUE(std::signbit(ZOLText::leadingDouble("-0.000")));
}

TEST(ZOLText, BooleanTextFollowsTheFirstCharacterAndEntryFieldsKeepWhatReadsAsANumber) {
    for (const char* yes : {"true", "True", "YES", "y", "  t", "1", "9", "7 days"})
        EXPECT_TRUE(ZOLText::boolValue(yes)) << yes;
    for (const char* no : {"false", "", "0", "no", "(null)", " ", "-1", "x"})
        EXPECT_FALSE(ZOLText::boolValue(no)) << no;

    // The entry fields' keystroke rule.
    EXPECT_EQ(ZOLText::entryFieldText(""), std::nullopt);
    const std::pair<const char*, const char*> cleaned[] = {
        {"12a", "12"},    {"a", "0"},   {"1.2.3", "1.2.3"}, {"-3", "-3"},
        {"12.5", "12.5"}, {"-3x", "3"}, {" 4", "4"}};
    for (const auto& [typed, kept] : cleaned)
        EXPECT_EQ(ZOLText::entryFieldText(typed), kept) << typed;
    for (const auto& [text, number] : {std::pair{"-", false}, {".", false}, {".5", true}})
        EXPECT_EQ(ZOLText::isNumber(text), number) << text;
}

TEST(ZOLFormat, FormatsLikePrintfWithStringsAndAbsentStrings) {
    EXPECT_EQ(ZOLFormat::format("%.2f lbs", 1170.0), "1170.00 lbs");
    EXPECT_EQ(ZOLFormat::format("%@ WALL DATA", std::string("North")), "North WALL DATA");
    EXPECT_EQ(ZOLFormat::format("%@|%@", std::optional<std::string>(), "x"), "(null)|x");
    EXPECT_EQ(ZOLFormat::format("%d%%", 5), "5%");
    EXPECT_EQ(ZOLFormat::format("%d' %d\"", 8, 0), "8' 0\"");
    EXPECT_EQ(ZOLFormat::format("%f", 12.5), "12.500000");
    EXPECT_EQ(ZOLFormat::format("no args"), "no args");
}

TEST(ZOLFormat, DecimalPointIgnoresTheUserLocale) {
    const char* previous = std::setlocale(LC_NUMERIC, nullptr);
    std::string saved = previous ? previous : "C";
    if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr &&
        std::setlocale(LC_NUMERIC, "fr_FR.UTF-8") == nullptr)
        GTEST_SKIP() << "no comma-decimal locale installed";
    EXPECT_EQ(ZOLFormat::format("%.2f", 1.5), "1.50");
    std::setlocale(LC_NUMERIC, saved.c_str());
}
