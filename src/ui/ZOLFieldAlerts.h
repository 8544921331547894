#pragma once
#include "platform/ZOLAlerts.h"

#include <string>

// An alert with an editable text under its message: a one-line field (worksheet names) or a
// several-line text view (project notes). Presenters that can show such a field implement this
// interface beside ZOLAlertPresenter; the one installed through ZOLAlerts is asked first.
class ZOLFieldAlertPresenter {
public:
    enum class Field { Line, Text };
    virtual ~ZOLFieldAlertPresenter() = default;
    // Shows the alert with the field holding `text`; on return `text` holds what the user left
    // in the field. Returns the index of the button chosen.
    virtual int presentWithField(const ZOLAlert& alert, std::string& text, Field field) = 0;
};

class ZOLFieldAlerts {
public:
    ZOLFieldAlerts() = delete;
    // Runs the alert through the installed presenter. A presenter that cannot show a field
    // still answers with a button, and the text then stays as it was given.
    static int run(const ZOLAlert& alert, std::string& text, ZOLFieldAlertPresenter::Field field);
};
