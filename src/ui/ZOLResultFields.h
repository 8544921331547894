#pragma once

class QWidget;

// The read-only result fields of a screen are laid out for everyday numbers; a result of any
// size the arithmetic produces (a total of 1e12 feet, a length that is not finite) must still
// show in full. Each result field widens to its text and narrows back to its laid-out width.
class ZOLResultFields {
public:
    ZOLResultFields() = delete;
    static void fitToText(QWidget* screen);
};
