#include "io/ZOLFormat.h"

#include <clocale>
#include <cstdarg>
#include <cstdio>
#include <locale.h>
#include <vector>

namespace {

// printf follows LC_NUMERIC; the files and the report must not change with the user's locale.
class CNumericScope {
public:
    CNumericScope() {
        static locale_t cLocale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
        previous_ = cLocale ? uselocale(cLocale) : static_cast<locale_t>(nullptr);
    }
    ~CNumericScope() {
        if (previous_)
            uselocale(previous_);
    }
    CNumericScope(const CNumericScope&) = delete;
    CNumericScope& operator=(const CNumericScope&) = delete;

private:
    locale_t previous_;
};

} // namespace

std::string ZOLFormat::translate(const char* fmt) {
    std::string out;
    for (const char* p = fmt; *p; ++p) {
        if (*p != '%') {
            out.push_back(*p);
            continue;
        }
        if (p[1] == '@') {
            out += "%s";
            ++p;
        } else if (p[1] == '%') {
            out += "%%";
            ++p;
        } else {
            out.push_back('%');
        }
    }
    return out;
}

std::string ZOLFormat::formatRaw(const char* fmt, ...) {
    CNumericScope scope;
    va_list args;
    va_start(args, fmt);
    va_list copy;
    va_copy(copy, args);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int needed = std::vsnprintf(nullptr, 0, fmt, copy);
    va_end(copy);
    std::string out;
    if (needed > 0) {
        std::vector<char> buffer(static_cast<std::size_t>(needed) + 1);
        std::vsnprintf(buffer.data(), buffer.size(), fmt, args);
        out.assign(buffer.data(), static_cast<std::size_t>(needed));
    }
#pragma GCC diagnostic pop
    va_end(args);
    return out;
}
