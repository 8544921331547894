#pragma once
#include <string>

class ZOLChangeOrder;
class ZOLWorkbook;

// A change order as people and spreadsheets read it: plain text for a terminal and the
// comparison window, a printable page in the report's style, and CSV with one row per
// difference. zolest diff and the window show the same text.
class ZOLChangeOrderFormat {
public:
    ZOLChangeOrderFormat() = delete;

    // Which versions were compared and with which prices, shown above the changes.
    struct Heading {
        std::string oldVersion;
        std::string newVersion;
        std::string pricedWith;
    };

    // Changed, added and removed worksheets in full; unchanged ones in one line each unless
    // onlyChanges leaves them out.
    static std::string getText(const ZOLChangeOrder& order, const Heading& heading,
                               bool onlyChanges);
    // The change-order pages (one, or more for a long order) as a whole HTML document in the
    // report's style, with the newer job's project block. Every text from the files has its
    // markup characters written as entities, so that a name cannot become markup.
    static std::string getHTML(const ZOLChangeOrder& order, const Heading& heading,
                               const ZOLWorkbook& newer, bool onlyChanges);
    // RFC 4180: a header row, then one row per difference; CRLF line ends.
    static std::string getCSV(const ZOLChangeOrder& order);
};
