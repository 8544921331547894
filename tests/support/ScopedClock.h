#pragma once
// Pins the system clock to one instant for a test's lifetime, so dates written to files and
// shown on screens do not depend on when the test runs.
#include "platform/ZOLClock.h"

#include <cstdint>

class ScopedClock {
public:
    explicit ScopedClock(int64_t seconds) {
        ZOLClock::setSource([seconds] { return seconds; });
    }
    ~ScopedClock() { ZOLClock::setSource({}); }
    ScopedClock(const ScopedClock&) = delete;
    ScopedClock& operator=(const ScopedClock&) = delete;
};
