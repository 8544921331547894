#pragma once
// Compares two long texts (whole files) and describes only the first line that differs, so
// that a failing golden-file test prints one line instead of two whole files.
#include <sstream>
#include <string>

inline std::string firstDifference(const std::string& expected, const std::string& actual) {
    if (expected == actual)
        return "";
    std::istringstream e(expected);
    std::istringstream a(actual);
    std::string el;
    std::string al;
    for (int line = 1;; ++line) {
        const bool moreE = static_cast<bool>(std::getline(e, el));
        const bool moreA = static_cast<bool>(std::getline(a, al));
        if (!moreE && !moreA)
            return "the texts differ only in their final line break";
        if (!moreE || !moreA || el != al) {
            std::ostringstream out;
            out << "line " << line << ": expected "
                << (moreE ? "\"" + el + "\"" : std::string("the end")) << ", got "
                << (moreA ? "\"" + al + "\"" : std::string("the end"));
            return out.str();
        }
    }
}
