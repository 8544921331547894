#pragma once
#include <cstdarg>
#include <cstddef>
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

    // The same text appended to `out`: the writers build a whole file in one buffer, and a
    // string per element would be copied into it once more.
    template <typename... Args>
    static void append(std::string& out, const char* fmt, const Args&... args) {
        // The files' formats hold only %d, %f, %.2f and %@: those are written straight into
        // the buffer, and any other format goes through printf as before.
        const Arg list[sizeof...(Args) + 1] = {arg(args)..., Arg{}};
        if (appendPlain(out, fmt, list, sizeof...(Args)))
            return;
        // "%@" becomes "%s" and nothing else changes length, so the translated format of the
        // files' short lines fits on the stack.
        char translated[kShortFormat];
        if (translateInto(fmt, translated, sizeof translated)) {
            appendRaw(out, translated, pass(args)...);
        } else {
            const std::string long_ = translate(fmt);
            appendRaw(out, long_.c_str(), pass(args)...);
        }
    }

private:
    static constexpr std::size_t kShortFormat = 1024;

    // One argument of append's plain path.
    struct Arg {
        enum class Kind { None, Int, Double, Text } kind = Kind::None;
        long long integer = 0;
        double real = 0.0;
        const char* text = nullptr;
    };
    static Arg arg(const std::string& s) { return {Arg::Kind::Text, 0, 0.0, s.c_str()}; }
    static Arg arg(const char* s) { return {Arg::Kind::Text, 0, 0.0, s ? s : "(null)"}; }
    static Arg arg(const std::optional<std::string>& s) {
        return {Arg::Kind::Text, 0, 0.0, s ? s->c_str() : "(null)"};
    }
    template <typename T>
    requires std::is_arithmetic_v<T>
    static Arg arg(T v) {
        if constexpr (std::is_floating_point_v<T>)
            return {Arg::Kind::Double, 0, static_cast<double>(v), nullptr};
        else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, int>)
            return {Arg::Kind::Int, static_cast<long long>(v), 0.0, nullptr};
        else
            return {}; // other integer types keep printf's own conversions
    }
    // Appends the format with %d, %f, %.Nf (N a digit), %@, %s and %% taken from `args`;
    // false, with `out` as it was, for anything else (printf then writes the line).
    static bool appendPlain(std::string& out, const char* fmt, const Arg* args, std::size_t count);

    static std::string translate(const char* fmt);
    static bool translateInto(const char* fmt, char* out, std::size_t size);
    static std::string formatRaw(const char* fmt, ...);
    static void appendRaw(std::string& out, const char* fmt, ...);
    static void vappendRaw(std::string& out, const char* fmt, va_list args);

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
