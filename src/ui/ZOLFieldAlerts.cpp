#include "ui/ZOLFieldAlerts.h"

int ZOLFieldAlerts::run(const ZOLAlert& alert, std::string& text,
                        ZOLFieldAlertPresenter::Field field) {
    auto presenter = ZOLAlerts::presenter();
    if (auto* withField = dynamic_cast<ZOLFieldAlertPresenter*>(presenter.get()))
        return withField->presentWithField(alert, text, field);
    return ZOLAlerts::run(alert);
}
