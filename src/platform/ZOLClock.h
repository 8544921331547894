#pragma once
#include <cstdint>
#include <functional>

// The current date and time, as seconds since the Unix epoch. A new workbook is dated with it;
// tests fix it so that dates in files and reports are repeatable.
class ZOLClock {
public:
    ZOLClock() = delete;
    static int64_t now();
    // Replaces the clock; an empty function restores the system clock.
    static void setSource(std::function<int64_t()> source);
};
