#include "ui/ZOLRecentFiles.h"

#include "ui/ZOLSettingsPreferences.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

ZOLRecentFiles::ZOLRecentFiles(QObject* parent) : QObject(parent) {}

QStringList ZOLRecentFiles::files() const {
    return QSettings().value(ZOLSettingsKeys::kRecentFiles).toStringList();
}

void ZOLRecentFiles::add(const QString& path) {
    const QString canonical = QFileInfo(path).absoluteFilePath();
    QStringList list = files();
    list.removeAll(canonical);
    list.prepend(canonical);
    while (list.size() > kMaximum)
        list.removeLast();
    store(list);
}

void ZOLRecentFiles::remove(const QString& path) {
    QStringList list = files();
    if (list.removeAll(QFileInfo(path).absoluteFilePath()) > 0)
        store(list);
}

void ZOLRecentFiles::clear() {
    store({});
}

void ZOLRecentFiles::store(const QStringList& list) {
    QSettings().setValue(ZOLSettingsKeys::kRecentFiles, list);
    emit changed();
}

void ZOLRecentFiles::populate(QMenu* menu) {
    menu->clear();
    const QStringList list = files();
    int number = 1;
    for (const QString& path : list) {
        // Numbered entries give the keyboard a way in: Alt+F, R, 1.
        QString label = QFileInfo(path).fileName();
        label.replace('&', "&&");
        if (number < 10)
            label = QStringLiteral("&%1 %2").arg(number).arg(label);
        ++number;
        QAction* action = menu->addAction(label);
        action->setToolTip(QDir::toNativeSeparators(path));
        action->setStatusTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { emit openRequested(path); });
    }
    if (!list.isEmpty())
        menu->addSeparator();
    QAction* clearAction = menu->addAction(tr("&Clear Menu"));
    clearAction->setEnabled(!list.isEmpty());
    connect(clearAction, &QAction::triggered, this, &ZOLRecentFiles::clear);
}
