#include "platform/ZOLPreferences.h"

namespace {
std::shared_ptr<ZOLPreferences>& sharedSlot() {
    static std::shared_ptr<ZOLPreferences> preferences = std::make_shared<ZOLMemoryPreferences>();
    return preferences;
}
} // namespace

std::shared_ptr<ZOLPreferences> ZOLPreferences::shared() {
    return sharedSlot();
}

void ZOLPreferences::setShared(std::shared_ptr<ZOLPreferences> preferences) {
    sharedSlot() = preferences ? std::move(preferences) : std::make_shared<ZOLMemoryPreferences>();
}

bool ZOLMemoryPreferences::boolForKey(const std::string& key) const {
    auto it = values_.find(key);
    return it != values_.end() && it->second;
}

void ZOLMemoryPreferences::setBoolForKey(const std::string& key, bool value) {
    values_[key] = value;
}
