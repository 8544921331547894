#pragma once
#include <cmath>
#include <cstdint>
#include <limits>

// Every double-to-count conversion and every count sum that can overflow goes through here,
// so that no typed or loaded value (NaN, infinity, 1e300, INT_MAX corners) is undefined.
class ZOLNumeric {
public:
    ZOLNumeric() = delete;

    // Truncation toward zero, saturating at the int32 range; NaN gives 0.
    // Inline: the take-off converts a few hundred values per wall.
    static int32_t toInt(double value) {
        if (std::isnan(value))
            return 0;
        if (value >= 2147483647.0)
            return std::numeric_limits<int32_t>::max();
        if (value <= -2147483648.0)
            return std::numeric_limits<int32_t>::min();
        return static_cast<int32_t>(value);
    }
    // ceil, floor and truncation followed by the saturating conversion.
    static int32_t ceilToInt(double value) { return toInt(std::ceil(value)); }
    static int32_t floorToInt(double value) { return toInt(std::floor(value)); }
    static int32_t truncToInt(double value) { return toInt(value); }

    // Two's-complement wrap-around arithmetic on 32-bit counts.
    static int32_t wrapAdd(int32_t a, int32_t b);
    static int32_t wrapSub(int32_t a, int32_t b);
    static int32_t wrapMul(int32_t a, int32_t b);
    // Integer division toward zero that is defined for INT32_MIN / -1 (wraps) and a zero
    // divisor (gives 0; callers that need another value guard before calling).
    static int32_t wrapDiv(int32_t a, int32_t b);
    static int32_t wrapMod(int32_t a, int32_t b);
};
