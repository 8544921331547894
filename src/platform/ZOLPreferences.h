#pragma once
#include <map>
#include <memory>
#include <string>

// Per-user boolean preferences (the print settings live here). The desktop application backs
// them with QSettings; tests and zolest with memory.
class ZOLPreferences {
public:
    virtual ~ZOLPreferences() = default;
    // A key that was never written reads as false.
    virtual bool boolForKey(const std::string& key) const = 0;
    virtual void setBoolForKey(const std::string& key, bool value) = 0;

    static std::shared_ptr<ZOLPreferences> shared();
    static void setShared(std::shared_ptr<ZOLPreferences> preferences);
};

class ZOLMemoryPreferences : public ZOLPreferences {
public:
    bool boolForKey(const std::string& key) const override;
    void setBoolForKey(const std::string& key, bool value) override;

private:
    std::map<std::string, bool> values_;
};
