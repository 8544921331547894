#pragma once
#include "platform/ZOLPreferences.h"

#include <QString>

// The per-user preferences of the desktop application, kept in QSettings so that the print
// choices survive from one session to the next.
class ZOLSettingsPreferences : public ZOLPreferences {
public:
    bool boolForKey(const std::string& key) const override;
    void setBoolForKey(const std::string& key, bool value) override;
};

// The application's QSettings keys and their defaults, in one place.
class ZOLSettingsKeys {
public:
    ZOLSettingsKeys() = delete;
    static QString technicalBulletinsURL();
    static int autosaveDelaySeconds();
    static constexpr const char* kTechnicalBulletins = "TechnicalBulletinsURL";
    static constexpr const char* kAutosaveDelay = "AutosaveDelaySeconds";
    static constexpr const char* kRecentFiles = "RecentFiles";
    static constexpr const char* kLastDirectory = "LastDirectory";
};
