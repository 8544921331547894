#include "io/ZOLText.h"

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
    const std::size_t numberStart = i;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) {
            ++i;
            ++digits;
        }
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
        }
    }
    std::string_view number = text.substr(numberStart, i - numberStart);
    double value = 0.0;
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
