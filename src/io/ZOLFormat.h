#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

// The product's printf-style formats ("%.2f lbs", "%@ WALL DATA", "$%.2f") used verbatim.
// "%@" takes a string; an absent string prints "(null)". Numbers always print with a full
// stop as the decimal separator, whatever the user's locale.
class ZOLFormat {
public:
    ZOLFormat() = delete;

    template <typename... Args> static std::string format(const char* fmt, const Args&... args) {
        const std::string translated = translate(fmt);
        return formatRaw(translated.c_str(), pass(args)...);
    }

private:
    static std::string translate(const char* fmt);
    static std::string formatRaw(const char* fmt, ...);

    static const char* pass(const std::string& s) { return s.c_str(); }
    static const char* pass(const char* s) { return s ? s : "(null)"; }
    static const char* pass(const std::optional<std::string>& s) {
        return s ? s->c_str() : "(null)";
    }
    template <typename T>
    requires std::is_arithmetic_v<T>
    static auto pass(T v) {
        if constexpr (std::is_same_v<T, bool>)
            return static_cast<int>(v);
        else if constexpr (std::is_same_v<T, float>)
            return static_cast<double>(v);
        else
            return v;
    }
};
