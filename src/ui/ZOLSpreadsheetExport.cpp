#include "ui/ZOLSpreadsheetExport.h"

#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLDocument.h"
#include "ui/ZOLFilePanels.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMenu>
#include <QSaveFile>

namespace {

struct Command {
    ZOLCsvExport::Kind kind;
    const char* menuText;
    const char* fileSuffix;
};

const Command kCommands[] = {
    {ZOLCsvExport::Kind::OrderList, QT_TRANSLATE_NOOP("ZOLSpreadsheetExport", "&Order List…"),
     " order list"},
    {ZOLCsvExport::Kind::WorkbookSummary,
     QT_TRANSLATE_NOOP("ZOLSpreadsheetExport", "&Workbook Summary…"), " workbook summary"},
    {ZOLCsvExport::Kind::JobSummary, QT_TRANSLATE_NOOP("ZOLSpreadsheetExport", "&Job Summary…"),
     " job summary"},
};

QString tr(const char* text) {
    return QCoreApplication::translate("ZOLSpreadsheetExport", text);
}

} // namespace

QMenu* ZOLSpreadsheetExport::addMenu(QMenu* fileMenu, ZOLDocument* document) {
    QMenu* menu = fileMenu->addMenu(tr("E&xport Spreadsheet"));
    for (const Command& command : kCommands) {
        const ZOLCsvExport::Kind kind = command.kind;
        menu->addAction(tr(command.menuText), document,
                        [document, kind] { exportWithPanel(document, kind); });
    }
    return menu;
}

bool ZOLSpreadsheetExport::writeFile(ZOLDocument* document, ZOLCsvExport::Kind kind,
                                     const QString& path, QString* error) {
    const std::string csv = ZOLCsvExport::getCSV(kind, *document->workbook());
    // The job summary brings its generated lines up to date first, as printing does.
    document->noteEdit();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(csv.data(), static_cast<qint64>(csv.size())) !=
            static_cast<qint64>(csv.size()) ||
        !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

bool ZOLSpreadsheetExport::exportWithPanel(ZOLDocument* document, ZOLCsvExport::Kind kind) {
    const char* suffix = "";
    for (const Command& command : kCommands)
        if (command.kind == kind)
            suffix = command.fileSuffix;
    const QString suggested =
        QFileInfo(document->displayName()).completeBaseName() + QLatin1String(suffix) + ".csv";
    const QString path =
        ZOLFilePanels::saveFile(document, tr("Export Spreadsheet"), "csv", suggested);
    if (path.isEmpty())
        return false;
    QString error;
    if (writeFile(document, kind, path, &error))
        return true;
    ZOLAlerts::run(
        tr("The file “%1” could not be written.").arg(QFileInfo(path).fileName()).toStdString(),
        error.toStdString(), {"OK"});
    return false;
}
