#include "ui/ZOLEntryField.h"

#include "io/ZOLText.h"

#include <QLineEdit>

std::optional<std::string> ZOLEntryField::applyKeystrokeRule(QLineEdit* edit) {
    const QString typed = edit->text();
    const std::string utf8 = typed.toStdString();
    std::optional<std::string> cleaned = ZOLText::entryFieldText(utf8);
    if (!cleaned || *cleaned == utf8)
        return cleaned;
    // Keep the cursor after the same characters it followed before the cleaning. When nothing
    // was kept the field shows "0" and the cursor goes after it.
    const qsizetype cursor = edit->cursorPosition();
    qsizetype keptBefore = 0;
    qsizetype kept = 0;
    for (qsizetype i = 0; i < typed.size(); ++i) {
        const QChar c = typed[i];
        if ((c >= u'0' && c <= u'9') || c == u'.') {
            ++kept;
            if (i < cursor)
                ++keptBefore;
        }
    }
    const QString shown = QString::fromStdString(*cleaned);
    edit->setText(shown);
    edit->setCursorPosition(static_cast<int>(kept == 0 ? shown.size() : keptBefore));
    return cleaned;
}
