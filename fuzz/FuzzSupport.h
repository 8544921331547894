#pragma once
// What every reader fuzz target shares: alerts are counted and answered, never shown.
#include "platform/ZOLAlerts.h"

#include <memory>

class FuzzAlertSink : public ZOLAlertPresenter {
public:
    int present(const ZOLAlert&) override { return 0; }

    static void install() {
        static bool installed = false;
        if (!installed) {
            ZOLAlerts::setPresenter(std::make_shared<FuzzAlertSink>());
            installed = true;
        }
    }
};
