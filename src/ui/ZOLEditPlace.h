#pragma once
#include <QString>

#include <memory>

class ZOLWorksheet;

// Where the user made a change: what undo and redo show again, and what names the change in
// the Edit menu.
struct ZOLEditPlace {
    // The worksheet shown (the one added, renamed or deleted, for those).
    std::shared_ptr<ZOLWorksheet> worksheet;
    int tab = -1;
    // The control's object name and how the user knows it (its label).
    QString control;
    QString label;
    // A text field: keystrokes in a row in it make one change, as text editors merge typing.
    bool typing = false;
};
