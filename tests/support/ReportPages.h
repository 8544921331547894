#pragma once
// The pages of a printed report, told apart by their content class.
#include <regex>
#include <string>
#include <vector>

// The content class of every page, in order ("wall", "openings", "wall-summary", ...).
inline std::vector<std::string> pageClasses(const std::string& html) {
    static const std::regex page("<div class=\"page\">\n<div class=\"content ([a-z-]+)\">");
    std::vector<std::string> classes;
    for (std::sregex_iterator it(html.begin(), html.end(), page), end; it != end; ++it)
        classes.push_back((*it)[1]);
    return classes;
}
