#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The two ways the product writes a date. The workbook file keeps the project date as
// "yyyy'-'MM'-'dd'T'HH':'mm':'ssZ" in the user's local time zone (2014-05-02T09:30:00-0500);
// the printed report shows it as "MM/dd/yyyy". Dates are seconds since the Unix epoch.
class ZOLDateFormat {
public:
    ZOLDateFormat() = delete;

    // The file form in the local time zone. An instant the calendar cannot show (far beyond
    // any real project date) gives an empty text, which a later open reads as today.
    static std::string formatFileDate(int64_t seconds);
    // Reads the file form back: the date, the time and a zone offset (+hhmm, -hhmm, +hh:mm
    // or Z). Anything else, an impossible date included, gives no date.
    static std::optional<int64_t> parseFileDate(std::string_view text);
    // The report form in the local time zone; empty when the calendar cannot show the date.
    static std::string formatReportDate(int64_t seconds);
};
