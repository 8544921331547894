#pragma once
// Runs a test in a fixed local time zone and puts the previous one back afterwards.
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

class ScopedTimeZone {
public:
    explicit ScopedTimeZone(const char* zone) {
        if (const char* old = std::getenv("TZ"))
            previous_ = std::string(old);
        setenv("TZ", zone, 1);
        tzset();
    }
    ~ScopedTimeZone() {
        if (previous_)
            setenv("TZ", previous_->c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }
    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

    // US Central time written as a POSIX rule, so no zone database is needed.
    static constexpr const char* kCentral = "CST6CDT,M3.2.0,M11.1.0";

private:
    std::optional<std::string> previous_;
};
