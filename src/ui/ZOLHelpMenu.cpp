#include "ui/ZOLHelpMenu.h"

#include "platform/ZOLAlerts.h"
#include "report/ZOLPrintData.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("ZOLHelpMenu", text);
}

} // namespace

void ZOLHelpMenu::addActions(QMenu* helpMenu, QWidget* window) {
    QAction* guide = helpMenu->addAction(tr("&User Guide"), window, [] { showUserGuide(); });
    guide->setShortcut(QKeySequence::HelpContents);
    helpMenu->addSeparator();
    QAction* about =
        helpMenu->addAction(tr("&About Zol Estimator"), window, [window] { showAbout(window); });
    about->setMenuRole(QAction::AboutRole);
}

QString ZOLHelpMenu::userGuidePath() {
    const QFileInfo guide(QString::fromStdString(ZOLPrintData::resourcesDirectory()) +
                          QStringLiteral("/guide/index.html"));
    return guide.isFile() ? guide.absoluteFilePath() : QString();
}

void ZOLHelpMenu::showUserGuide() {
    const QString path = userGuidePath();
    if (path.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        ZOLAlerts::run(
            tr("The user guide could not be opened.").toStdString(),
            path.isEmpty()
                ? tr("It is not installed with this copy of Zol Estimator.").toStdString()
                : tr("No program opened %1.").arg(path).toStdString(),
            {"OK"});
}

void ZOLHelpMenu::showAbout(QWidget* window) {
    QMessageBox::about(
        window, tr("About Zol Estimator"),
        tr("<h3>Zol Estimator %1</h3>"
           "<p>Estimates insulated concrete form walls built with Zol Blocks: blocks and "
           "accessories, rebar, concrete, tilt-up panels and crew hours, priced and printed.</p>"
           "<p>Built with Qt %2.</p>")
            .arg(QApplication::applicationVersion(), QString::fromLatin1(qVersion())));
}
