#include "ui/ZOLFilePanels.h"

#include "ui/ZOLSettingsPreferences.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

namespace {
ZOLFilePanels::Script& script() {
    static ZOLFilePanels::Script installed;
    return installed;
}

QString lastDirectory() {
    QString dir = QSettings().value(ZOLSettingsKeys::kLastDirectory).toString();
    return !dir.isEmpty() && QFileInfo(dir).isDir() ? dir : QDir::homePath();
}

void rememberDirectory(const QString& path) {
    if (!path.isEmpty())
        QSettings().setValue(ZOLSettingsKeys::kLastDirectory, QFileInfo(path).absolutePath());
}
} // namespace

QString ZOLFilePanels::filterFor(const QString& suffix) {
    if (suffix == "zol")
        return QObject::tr("Zol Estimator workbooks (*.zol)");
    if (suffix == "zp")
        return QObject::tr("Zol price lists (*.zp)");
    if (suffix == "zci")
        return QObject::tr("Zol job summary templates (*.zci)");
    if (suffix == "pdf")
        return QObject::tr("PDF documents (*.pdf)");
    if (suffix == "csv")
        return QObject::tr("Spreadsheets, comma-separated (*.csv)");
    return QStringLiteral("*.%1").arg(suffix);
}

void ZOLFilePanels::setScript(Script s) {
    script() = std::move(s);
}

QStringList ZOLFilePanels::openFiles(QWidget* parent, const QString& title, const QString& suffix) {
    if (script())
        return script()({Kind::OpenMany, title, suffix, {}});
    QStringList paths =
        QFileDialog::getOpenFileNames(parent, title, lastDirectory(), filterFor(suffix));
    if (!paths.isEmpty())
        rememberDirectory(paths.front());
    return paths;
}

QString ZOLFilePanels::openFile(QWidget* parent, const QString& title, const QString& suffix) {
    if (script()) {
        QStringList answer = script()({Kind::Open, title, suffix, {}});
        return answer.isEmpty() ? QString() : answer.front();
    }
    QString path = QFileDialog::getOpenFileName(parent, title, lastDirectory(), filterFor(suffix));
    rememberDirectory(path);
    return path;
}

QString ZOLFilePanels::saveFile(QWidget* parent, const QString& title, const QString& suffix,
                                const QString& suggestedName) {
    QString path;
    if (script()) {
        QStringList answer = script()({Kind::Save, title, suffix, suggestedName});
        path = answer.isEmpty() ? QString() : answer.front();
    } else {
        QFileDialog dialog(parent, title, lastDirectory(), filterFor(suffix));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix(suffix);
        dialog.selectFile(suggestedName);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        path = dialog.selectedFiles().front();
        rememberDirectory(path);
    }
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += "." + suffix;
    return path;
}
