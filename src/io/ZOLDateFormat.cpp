#include "io/ZOLDateFormat.h"

#include "io/ZOLFormat.h"

#include <ctime>
#include <limits>

namespace {

// Breaks an instant down in the local zone; false when it does not fit the calendar.
bool localParts(int64_t seconds, std::tm& parts, long& offsetSeconds) {
    if constexpr (sizeof(std::time_t) < sizeof(int64_t)) {
        if (seconds < std::numeric_limits<std::time_t>::min() ||
            seconds > std::numeric_limits<std::time_t>::max())
            return false;
    }
    tzset();
    const std::time_t t = static_cast<std::time_t>(seconds);
    if (localtime_r(&t, &parts) == nullptr)
        return false;
    offsetSeconds = parts.tm_gmtoff;
    return true;
}

bool isLeap(int64_t y) {
    return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
}

int daysInMonth(int64_t y, int m) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return (m == 2 && isLeap(y)) ? 29 : days[m - 1];
}

// Days from 1970-01-01 to the given civil date (proleptic Gregorian calendar).
int64_t daysFromCivil(int64_t y, int m, int d) {
    y -= m <= 2 ? 1 : 0;
    const int64_t era = (y >= 0 ? y : y - 399) / 400;
    const int64_t yoe = y - era * 400;
    const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}
    bool atEnd() const { return pos_ == text_.size(); }
    bool literal(char c) {
        if (pos_ < text_.size() && text_[pos_] == c) {
            ++pos_;
            return true;
        }
        return false;
    }
    // A run of minDigits to maxDigits decimal digits.
    bool number(std::size_t minDigits, std::size_t maxDigits, int64_t& value) {
        std::size_t n = 0;
        value = 0;
        while (pos_ < text_.size() && n < maxDigits && text_[pos_] >= '0' && text_[pos_] <= '9') {
            value = value * 10 + (text_[pos_] - '0');
            ++pos_;
            ++n;
        }
        return n >= minDigits;
    }

private:
    std::string_view text_;
    std::size_t pos_ = 0;
};

bool zoneOffset(Cursor& in, int64_t& offset) {
    if (in.literal('Z')) {
        offset = 0;
        return true;
    }
    int sign = 0;
    if (in.literal('+'))
        sign = 1;
    else if (in.literal('-'))
        sign = -1;
    else
        return false;
    int64_t hours = 0;
    int64_t minutes = 0;
    if (!in.number(2, 2, hours))
        return false;
    in.literal(':');
    if (!in.number(2, 2, minutes))
        return false;
    if (hours > 23 || minutes > 59)
        return false;
    offset = sign * (hours * 3600 + minutes * 60);
    return true;
}

} // namespace

std::string ZOLDateFormat::formatFileDate(int64_t seconds) {
    std::tm parts{};
    long offset = 0;
    if (!localParts(seconds, parts, offset))
        return std::string();
    const long absOffset = offset < 0 ? -offset : offset;
    const long year = static_cast<long>(parts.tm_year) + 1900;
    return ZOLFormat::format("%04ld-%02d-%02dT%02d:%02d:%02d%c%02ld%02ld", year,
                             int32_t{parts.tm_mon + 1}, int32_t{parts.tm_mday},
                             int32_t{parts.tm_hour}, int32_t{parts.tm_min}, int32_t{parts.tm_sec},
                             offset < 0 ? '-' : '+', absOffset / 3600, (absOffset % 3600) / 60);
}

std::optional<int64_t> ZOLDateFormat::parseFileDate(std::string_view text) {
    Cursor in(text);
    int64_t year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, offset = 0;
    if (!in.number(1, 9, year) || !in.literal('-') || !in.number(1, 2, month) || !in.literal('-') ||
        !in.number(1, 2, day) || !in.literal('T') || !in.number(1, 2, hour) || !in.literal(':') ||
        !in.number(1, 2, minute) || !in.literal(':') || !in.number(1, 2, second) ||
        !zoneOffset(in, offset) || !in.atEnd())
        return std::nullopt;
    if (month < 1 || month > 12 || day < 1 || day > daysInMonth(year, static_cast<int>(month)) ||
        hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    const int64_t days = daysFromCivil(year, static_cast<int>(month), static_cast<int>(day));
    return days * 86400 + hour * 3600 + minute * 60 + second - offset;
}

std::string ZOLDateFormat::formatReportDate(int64_t seconds) {
    std::tm parts{};
    long offset = 0;
    if (!localParts(seconds, parts, offset))
        return std::string();
    return ZOLFormat::format("%02d/%02d/%04ld", int32_t{parts.tm_mon + 1}, int32_t{parts.tm_mday},
                             static_cast<long>(parts.tm_year) + 1900);
}
