#include "ui/ZOLInfoShortcut.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QShortcut>

void ZOLInfoShortcut::install(QAbstractButton* info, std::initializer_list<QWidget*> fields,
                              const std::function<void()>& open) {
    info->setFocusPolicy(Qt::ClickFocus);
    const QString hint =
        QCoreApplication::translate("ZOLInfoShortcut", "F1 shows an illustration.");
    info->setToolTip(info->toolTip() + QStringLiteral(" (F1)"));
    for (QWidget* field : fields) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F1), field);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, info, [info, open] {
            if (open)
                open();
            else
                info->click();
        });
        field->setToolTip(field->toolTip().isEmpty() ? hint : field->toolTip() + "\n" + hint);
    }
}
