#include "platform/ZOLClock.h"

#include <chrono>

namespace {
std::function<int64_t()>& source() {
    static std::function<int64_t()> fn;
    return fn;
}
} // namespace

int64_t ZOLClock::now() {
    if (source())
        return source()();
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

void ZOLClock::setSource(std::function<int64_t()> fn) {
    source() = std::move(fn);
}
