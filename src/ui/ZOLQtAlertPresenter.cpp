#include "ui/ZOLQtAlertPresenter.h"

#include "ui/ZOLQtText.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {
// The role that places a button where users of the desktop expect it and gives Escape to the
// button that backs out.
QDialogButtonBox::ButtonRole roleFor(const std::string& title, size_t index) {
    if (title == "Cancel")
        return QDialogButtonBox::RejectRole;
    if (title == "Don't Save" || title == "Discard")
        return QDialogButtonBox::DestructiveRole;
    return index == 0 ? QDialogButtonBox::AcceptRole : QDialogButtonBox::ActionRole;
}

std::vector<std::string> buttonsOf(const ZOLAlert& alert) {
    return alert.buttons.empty() ? std::vector<std::string>{"OK"} : alert.buttons;
}
} // namespace

QWidget* ZOLQtAlertPresenter::parentWindow() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

int ZOLQtAlertPresenter::present(const ZOLAlert& alert) {
    const auto buttons = buttonsOf(alert);
    QMessageBox box(parentWindow());
    box.setWindowModality(box.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setIcon(buttons.size() > 1 ? QMessageBox::Question : QMessageBox::Information);
    box.setText(qs(alert.message));
    box.setInformativeText(qs(alert.informativeText));
    std::vector<QAbstractButton*> made;
    for (size_t i = 0; i < buttons.size(); ++i) {
        auto role = static_cast<QMessageBox::ButtonRole>(roleFor(buttons[i], i));
        made.push_back(box.addButton(qs(buttons[i]), role));
    }
    box.setDefaultButton(static_cast<QPushButton*>(made.front()));
    box.exec();
    for (size_t i = 0; i < made.size(); ++i)
        if (box.clickedButton() == made[i])
            return static_cast<int>(i);
    // Closed by the window manager: the button that backs out, else the first.
    for (size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i] == "Cancel")
            return static_cast<int>(i);
    return 0;
}

int ZOLQtAlertPresenter::presentWithField(const ZOLAlert& alert, std::string& text, Field field) {
    const auto buttons = buttonsOf(alert);
    QDialog dialog(parentWindow());
    dialog.setWindowModality(dialog.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    dialog.setWindowTitle(QApplication::applicationDisplayName());

    auto* layout = new QVBoxLayout(&dialog);
    auto* message = new QLabel(qs(alert.message), &dialog);
    QFont bold = message->font();
    bold.setBold(true);
    message->setFont(bold);
    message->setWordWrap(true);
    layout->addWidget(message);
    if (!alert.informativeText.empty()) {
        auto* info = new QLabel(qs(alert.informativeText), &dialog);
        info->setWordWrap(true);
        layout->addWidget(info);
    }

    QLineEdit* line = nullptr;
    QPlainTextEdit* area = nullptr;
    if (field == Field::Line) {
        dialog.setMinimumWidth(360); // the message on one line above the field
        line = new QLineEdit(qs(text), &dialog);
        line->setObjectName("alertField");
        line->setMinimumWidth(200);
        line->selectAll();
        layout->addWidget(line);
    } else {
        area = new QPlainTextEdit(&dialog);
        area->setObjectName("alertText");
        area->setPlainText(qs(text));
        area->setMinimumSize(400, 400);
        area->setTabChangesFocus(true);
        layout->addWidget(area);
    }

    auto* box = new QDialogButtonBox(&dialog);
    std::vector<QPushButton*> made;
    int chosen = -1;
    for (size_t i = 0; i < buttons.size(); ++i) {
        auto* button = box->addButton(qs(buttons[i]), roleFor(buttons[i], i));
        made.push_back(button);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, i] {
            chosen = static_cast<int>(i);
            dialog.done(QDialog::Accepted);
        });
    }
    made.front()->setDefault(true);
    layout->addWidget(box);
    if (line)
        line->setFocus();
    else
        area->setFocus();

    dialog.exec();
    if (chosen < 0) {
        // Escape or the window's close box: back out.
        for (size_t i = 0; i < buttons.size(); ++i)
            if (buttons[i] == "Cancel")
                chosen = static_cast<int>(i);
        if (chosen < 0)
            chosen = 0;
    }
    text = (line ? line->text() : area->toPlainText()).toStdString();
    return chosen;
}
