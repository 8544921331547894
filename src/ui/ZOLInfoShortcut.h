#pragma once
#include <functional>
#include <initializer_list>

class QAbstractButton;
class QWidget;

// The "?" buttons beside the entry fields stay out of the Tab order, so that Tab goes from
// field to field; F1 in a field opens the same illustration as the field's button.
class ZOLInfoShortcut {
public:
    ZOLInfoShortcut() = delete;
    // F1 in any of `fields` clicks `info`, or runs `open` when one is given.
    static void install(QAbstractButton* info, std::initializer_list<QWidget*> fields,
                        const std::function<void()>& open = {});
};
