#include "ui/ZOLResultFields.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace {
// Widens the field to its text, never below nor (unless the text needs it) beyond the width
// the layout gave it.
void fit(QLineEdit* field, int laidOutMinimum, int laidOutMaximum) {
    QStyleOptionFrame option;
    option.initFrom(field);
    const QMargins margins = field->textMargins();
    const QSize text(field->fontMetrics().horizontalAdvance(field->text()) + margins.left() +
                         margins.right() + 12,
                     field->height());
    const int needed =
        field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, field).width();
    const int minimum = std::max(laidOutMinimum, needed);
    const int maximum = std::max(laidOutMaximum, minimum);
    if (field->minimumWidth() != minimum)
        field->setMinimumWidth(minimum);
    if (field->maximumWidth() != maximum)
        field->setMaximumWidth(maximum);
}
} // namespace

void ZOLResultFields::fitToText(QWidget* screen) {
    for (QLineEdit* field : screen->findChildren<QLineEdit*>()) {
        if (!field->isReadOnly())
            continue;
        const int minimum = field->minimumWidth();
        const int maximum = field->maximumWidth();
        QObject::connect(field, &QLineEdit::textChanged, field,
                         [field, minimum, maximum] { fit(field, minimum, maximum); });
        fit(field, minimum, maximum);
    }
}
