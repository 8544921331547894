#include "platform/ZOLAlerts.h"

namespace {
std::shared_ptr<ZOLAlertPresenter>& installed() {
    static std::shared_ptr<ZOLAlertPresenter> presenter;
    return presenter;
}
} // namespace

int ZOLAlerts::run(const std::string& message, const std::string& informativeText,
                   const std::vector<std::string>& buttons) {
    return run(ZOLAlert{message, informativeText, buttons});
}

int ZOLAlerts::run(const ZOLAlert& alert) {
    auto presenter = installed();
    if (!presenter)
        return 0;
    return presenter->present(alert);
}

std::shared_ptr<ZOLAlertPresenter>
ZOLAlerts::setPresenter(std::shared_ptr<ZOLAlertPresenter> presenter) {
    auto previous = installed();
    installed() = std::move(presenter);
    return previous;
}

std::shared_ptr<ZOLAlertPresenter> ZOLAlerts::presenter() {
    return installed();
}

int ZOLTextAlertPresenter::present(const ZOLAlert& alert) {
    std::string text = alert.message;
    if (!alert.informativeText.empty())
        text += "\n" + alert.informativeText;
    write_(text + "\n");
    return 0;
}
