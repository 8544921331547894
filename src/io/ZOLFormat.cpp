#include "io/ZOLFormat.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstring>
#include <cstdarg>
#include <cstdio>
#include <locale.h>

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

bool ZOLFormat::translateInto(const char* fmt, char* out, std::size_t size) {
    std::size_t n = 0;
    for (const char* p = fmt; *p; ++p) {
        if (n + 2 >= size)
            return false;
        if (*p == '%' && (p[1] == '@' || p[1] == '%')) {
            out[n++] = '%';
            out[n++] = p[1] == '@' ? 's' : '%';
            ++p;
        } else {
            out[n++] = *p;
        }
    }
    out[n] = '\0';
    return true;
}

bool ZOLFormat::appendPlain(std::string& out, const char* fmt, const Arg* args,
                            std::size_t count) {
    const std::size_t start = out.size();
    const auto giveUp = [&out, start] {
        out.resize(start);
        return false;
    };
    std::size_t next = 0;
    const char* run = fmt;
    for (const char* p = fmt; *p; ++p) {
        if (*p != '%')
            continue;
        out.append(run, static_cast<std::size_t>(p - run));
        int precision = 6;
        char conversion = p[1];
        if (conversion == '.' && p[2] >= '0' && p[2] <= '9' && p[3] == 'f') {
            precision = p[2] - '0';
            conversion = 'f';
            p += 2;
        }
        ++p;
        if (conversion == '%') {
            out += '%';
        } else {
            if (next >= count)
                return giveUp();
            const Arg& a = args[next++];
            char number[400];
            if ((conversion == '@' || conversion == 's') && a.kind == Arg::Kind::Text) {
                out += a.text;
            } else if (conversion == 'd' && a.kind == Arg::Kind::Int) {
                const auto end = std::to_chars(number, number + sizeof number, a.integer).ptr;
                out.append(number, end);
            } else if (conversion == 'f' && a.kind == Arg::Kind::Double && std::isfinite(a.real) &&
                       std::fabs(a.real) < 1e300) {
                // The exact decimal value rounded as printf rounds it, in every locale.
                const auto result = std::to_chars(number, number + sizeof number, a.real,
                                                  std::chars_format::fixed, precision);
                if (result.ec != std::errc())
                    return giveUp();
                out.append(number, result.ptr);
            } else {
                return giveUp();
            }
        }
        run = p + 1;
    }
    out.append(run);
    return next == count || giveUp();
}

void ZOLFormat::vappendRaw(std::string& out, const char* fmt, va_list args) {
    CNumericScope scope;
    va_list copy;
    va_copy(copy, args);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    // A line of a file fits the stack buffer; a longer one (a long name) is formatted again
    // straight into the grown buffer.
    char line[512];
    const int needed = std::vsnprintf(line, sizeof line, fmt, copy);
    va_end(copy);
    if (needed > 0) {
        const auto length = static_cast<std::size_t>(needed);
        if (length < sizeof line) {
            out.append(line, length);
        } else {
            const std::size_t start = out.size();
            out.resize(start + length + 1);
            std::vsnprintf(out.data() + start, length + 1, fmt, args);
            out.resize(start + length);
        }
    }
#pragma GCC diagnostic pop
}

void ZOLFormat::appendRaw(std::string& out, const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    vappendRaw(out, fmt, args);
    va_end(args);
}

std::string ZOLFormat::formatRaw(const char* fmt, ...) {
    std::string out;
    va_list args;
    va_start(args, fmt);
    vappendRaw(out, fmt, args);
    va_end(args);
    return out;
}
