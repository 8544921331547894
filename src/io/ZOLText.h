#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The lenient text-to-value readers shared by the file readers, the entry screens and the
// command line: a field or an element's text is never rejected, it yields what it starts with.
class ZOLText {
public:
    ZOLText() = delete;

    // Leading blanks, optional sign, digits; anything after is ignored. No digits gives 0.
    // Saturates at the int32 range.
    static int32_t leadingInt(std::string_view text);
    // Leading blanks, then plain decimal notation with an optional exponent ("12", "-1.5",
    // ".5", "2e3"); no hex, inf or nan. No number gives 0.0; overflow gives an infinity.
    static double leadingDouble(std::string_view text);
    // True when, after leading blanks, the text starts with t, T, y, Y or a digit 1 to 9.
    static bool boolValue(std::string_view text);
    // The absent-aware forms used by setValue:forProperty: (an absent text reads as empty).
    static int32_t leadingInt(const std::optional<std::string>& text);
    static double leadingDouble(const std::optional<std::string>& text);
    static bool boolValue(const std::optional<std::string>& text);
    static int32_t leadingInt(const std::string& t) { return leadingInt(std::string_view(t)); }
    static int32_t leadingInt(const char* t) { return leadingInt(std::string_view(t)); }
    static double leadingDouble(const std::string& t) { return leadingDouble(std::string_view(t)); }
    static double leadingDouble(const char* t) { return leadingDouble(std::string_view(t)); }
    static bool boolValue(const std::string& t) { return boolValue(std::string_view(t)); }
    static bool boolValue(const char* t) { return boolValue(std::string_view(t)); }

    // Whether the entry fields' number parser reads the whole text as a number: an optional
    // sign, digits with at most one full stop, at least one digit, nothing else.
    static bool isNumber(std::string_view text);

    // The keystroke rule of every entry field. Returns the text the field must show after
    // the keystroke, or nothing when the field is empty (an empty field changes nothing).
    // A text that is not a number is cleaned to its digits and full stops, "0" if none.
    static std::optional<std::string> entryFieldText(std::string_view text);

    // "true"/"false" as the files write a BOOL.
    static const char* boolText(bool value) { return value ? "true" : "false"; }
};
