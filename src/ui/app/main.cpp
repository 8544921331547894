#include "platform/ZOLAlerts.h"
#include "platform/ZOLPreferences.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLDocumentController.h"
#include "ui/ZOLQtAlertPresenter.h"
#include "ui/ZOLReportRenderer.h"
#include "ui/ZOLSettingsPreferences.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>

#include <clocale>

#ifndef ZOL_VERSION
#define ZOL_VERSION "1.0"
#endif

int main(int argc, char* argv[]) {
    // The report renderer's browser engine needs its set-up before the application exists
    // (and its sandbox turned off when running as root).
    ZOLReportRenderer::prepareApplication();
    QApplication app(argc, argv);
    // The file formats and the report print numbers with a full stop whatever the user's
    // locale; QApplication has just set every category from the environment.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setOrganizationName(QStringLiteral("Zol Blocks"));
    QApplication::setApplicationName(QStringLiteral("Zol Estimator"));
    QApplication::setApplicationDisplayName(QStringLiteral("Zol Estimator"));
    // Task bars and docks match the windows to the installed launcher and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.zolblocks.Estimator"));
    QApplication::setApplicationVersion(QStringLiteral(ZOL_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Estimates insulated concrete form walls built with Zol Blocks."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Workbooks to open."),
                                 QStringLiteral("[FILE.zol...]"));
    parser.process(app);

    ZOLAlerts::setPresenter(std::make_shared<ZOLQtAlertPresenter>());
    ZOLPreferences::setShared(std::make_shared<ZOLSettingsPreferences>());

    ZOLDocumentController controller;
    const int recovered = controller.offerRecovery();
    const QStringList files = parser.positionalArguments();
    controller.openDocuments(files);
    if (controller.documents().isEmpty()) {
        // Files that could not be read open nothing; with none asked for, start a new one.
        if (!files.isEmpty() && recovered == 0)
            return 1;
        controller.newDocument();
    }
    return app.exec();
}
