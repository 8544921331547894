#pragma once
#include <optional>
#include <string>

class QLineEdit;

// The keystroke rule every entry field of the estimate screens follows, in one place: an
// emptied field changes nothing; a text that is not a number is cleaned to its digits and full
// stops ("0" when none is left) and written back with the cursor where the user left it.
class ZOLEntryField {
public:
    ZOLEntryField() = delete;
    // Applies the rule to the field's text after a keystroke. Returns the text the record
    // reads its value from, or nothing when the field is empty.
    static std::optional<std::string> applyKeystrokeRule(QLineEdit* edit);
};
