#pragma once
#include <cstdint>

// Every double-to-count conversion and every count sum that can overflow goes through here,
// so that no typed or loaded value (NaN, infinity, 1e300, INT_MAX corners) is undefined.
class ZOLNumeric {
public:
    ZOLNumeric() = delete;

    // Truncation toward zero, saturating at the int32 range; NaN gives 0.
    static int32_t toInt(double value);
    // ceil, floor and truncation followed by the saturating conversion.
    static int32_t ceilToInt(double value);
    static int32_t floorToInt(double value);
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
