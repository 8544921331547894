#include "io/ZOLText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t skipBlanks(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    return i;
}

// The exact powers of ten a double holds.
constexpr std::array<double, 23> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                              1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

} // namespace

int32_t ZOLText::leadingInt(std::string_view text) {
    std::size_t i = skipBlanks(text);
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    int64_t value = 0;
    const int64_t limit = negative ? int64_t{1} << 31 : (int64_t{1} << 31) - 1;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > limit) {
            value = limit;
            // Keep consuming digits; the value stays saturated.
        }
    }
    return static_cast<int32_t>(negative ? -value : value);
}

double ZOLText::leadingDouble(std::string_view text) {
    std::size_t i = skipBlanks(text);
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    // Most numbers in a file are short decimals ("120.5", "9.334", "4"). While the digits, stop
    // ignored, make a whole number below 2^53 and at most 22 of them follow the stop, that whole
    // number and the power of ten are both exact doubles and one division rounds the quotient
    // correctly: the same double from_chars gives, at a fraction of its cost, and worked out
    // as the digits are scanned. Anything else (an exponent, more digits) is left to from_chars.
    constexpr uint64_t kExactLimit = uint64_t{1} << 53;
    const std::size_t numberStart = i;
    uint64_t whole = 0;
    bool exact = true;
    std::size_t digits = 0;
    std::size_t fractionDigits = 0;
    const auto take = [&](char digit) {
        if (exact) {
            whole = whole * 10 + static_cast<uint64_t>(digit - '0');
            exact = whole < kExactLimit;
        }
        ++digits;
    };
    while (i < text.size() && isDigit(text[i]))
        take(text[i++]);
    if (i < text.size() && text[i] == '.') {
        ++i;
        for (; i < text.size() && isDigit(text[i]); ++fractionDigits)
            take(text[i++]);
    }
    if (digits == 0)
        return 0.0;
    // An exponent counts only when at least one digit follows it.
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        if (j < text.size() && isDigit(text[j])) {
            while (j < text.size() && isDigit(text[j]))
                ++j;
            i = j;
            exact = false;
        }
    }
    double value = 0.0;
    if (exact && fractionDigits < kPowersOfTen.size()) {
        value = static_cast<double>(whole) / kPowersOfTen[fractionDigits];
        return negative ? -value : value;
    }
    const std::string_view number = text.substr(numberStart, i - numberStart);
    auto result = std::from_chars(number.data(), number.data() + number.size(), value,
                                  std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        // from_chars leaves the value alone; decide between overflow and underflow by the
        // exponent's sign, as strtod would.
        const auto e = number.find_first_of("eE");
        const bool tiny =
            e != std::string_view::npos && e + 1 < number.size() && number[e + 1] == '-';
        value = tiny ? 0.0 : std::numeric_limits<double>::infinity();
    } else if (result.ec != std::errc()) {
        value = 0.0;
    }
    return negative ? -value : value;
}

bool ZOLText::boolValue(std::string_view text) {
    std::size_t i = skipBlanks(text);
    if (i >= text.size())
        return false;
    char c = text[i];
    return c == 't' || c == 'T' || c == 'y' || c == 'Y' || (c >= '1' && c <= '9');
}

int32_t ZOLText::leadingInt(const std::optional<std::string>& text) {
    return text ? leadingInt(std::string_view(*text)) : 0;
}

double ZOLText::leadingDouble(const std::optional<std::string>& text) {
    return text ? leadingDouble(std::string_view(*text)) : 0.0;
}

bool ZOLText::boolValue(const std::optional<std::string>& text) {
    return text ? boolValue(std::string_view(*text)) : false;
}

bool ZOLText::isNumber(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::size_t digits = 0;
    std::size_t stops = 0;
    for (; i < text.size(); ++i) {
        if (isDigit(text[i]))
            ++digits;
        else if (text[i] == '.' && stops == 0)
            ++stops;
        else
            return false;
    }
    return digits > 0;
}

std::optional<std::string> ZOLText::entryFieldText(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    if (isNumber(text))
        return std::string(text);
    std::string cleaned;
    for (char c : text)
        if (isDigit(c) || c == '.')
            cleaned.push_back(c);
    if (cleaned.empty())
        return std::string(1, '0');
    return cleaned;
}
