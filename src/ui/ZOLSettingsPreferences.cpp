#include "ui/ZOLSettingsPreferences.h"

#include <QSettings>

bool ZOLSettingsPreferences::boolForKey(const std::string& key) const {
    return QSettings().value(QString::fromStdString(key), false).toBool();
}

void ZOLSettingsPreferences::setBoolForKey(const std::string& key, bool value) {
    QSettings().setValue(QString::fromStdString(key), value);
}

QString ZOLSettingsKeys::technicalBulletinsURL() {
    return QSettings()
        .value(kTechnicalBulletins, QStringLiteral("https://www.zolblocks.com/technical-bulletins"))
        .toString();
}

int ZOLSettingsKeys::autosaveDelaySeconds() {
    bool ok = false;
    int seconds = QSettings().value(kAutosaveDelay, 15).toInt(&ok);
    // A broken or silly value must not turn autosave into a busy loop or switch it off.
    return ok && seconds >= 1 ? seconds : 15;
}
