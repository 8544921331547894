#pragma once
#include "ui/ZOLFieldAlerts.h"

class QWidget;

// Shows the program's alerts as modal message boxes over the active window. The first button is
// the default (Return), a "Cancel" button answers Escape.
class ZOLQtAlertPresenter : public ZOLAlertPresenter, public ZOLFieldAlertPresenter {
public:
    int present(const ZOLAlert& alert) override;
    int presentWithField(const ZOLAlert& alert, std::string& text, Field field) override;

private:
    static QWidget* parentWindow();
};
