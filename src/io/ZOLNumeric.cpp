#include "io/ZOLNumeric.h"

#include <limits>

int32_t ZOLNumeric::wrapAdd(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

int32_t ZOLNumeric::wrapSub(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

int32_t ZOLNumeric::wrapMul(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}

int32_t ZOLNumeric::wrapDiv(int32_t a, int32_t b) {
    if (b == 0)
        return 0;
    if (a == std::numeric_limits<int32_t>::min() && b == -1)
        return a;
    return a / b;
}

int32_t ZOLNumeric::wrapMod(int32_t a, int32_t b) {
    if (b == 0 || b == -1)
        return 0;
    return a % b;
}
