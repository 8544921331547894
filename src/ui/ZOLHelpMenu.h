#pragma once
#include <QString>

class QMenu;
class QWidget;

// Help > User Guide (the guide installed with the program, opened in the user's browser) and
// Help > About (the version).
class ZOLHelpMenu {
public:
    ZOLHelpMenu() = delete;

    static void addActions(QMenu* helpMenu, QWidget* window);
    // The guide's local file; empty when it is not installed.
    static QString userGuidePath();
    static void showUserGuide();
    static void showAbout(QWidget* window);
};
