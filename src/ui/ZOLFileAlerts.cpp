#include "ui/ZOLFileAlerts.h"

#include "io/ZOLFileBytes.h"
#include "io/ZOLFileSaver.h"
#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "platform/ZOLAlerts.h"
#include "ui/ZOLQtText.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>

QString ZOLFileAlerts::cannotOpen(const QString& path) {
    return QObject::tr("The file “%1” couldn’t be opened.").arg(QFileInfo(path).fileName());
}

std::optional<std::string> ZOLFileAlerts::readFile(const QString& path, ZOLFileKind kind) {
    std::string error;
    auto bytes = ZOLFileBytes::read(QFile::encodeName(path).toStdString(),
                                    ZOLSaxParser::kMaxDocumentBytes, &error);
    if (bytes)
        return bytes;
    if (kind == ZOLFileKind::Workbook)
        ZOLAlerts::run(utf8(cannotOpen(path)), error, {"OK"});
    else
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, "", {"OK"});
    return std::nullopt;
}

bool ZOLFileAlerts::accepted(const QString& path, ZOLFileKind kind, ZOLReadStatus status) {
    if (status == ZOLReadStatus::Read)
        return true;
    // The workbook reader leaves bytes that are no document to the application, as the
    // system's own open error.
    if (status == ZOLReadStatus::Refused && kind == ZOLFileKind::Workbook)
        ZOLAlerts::run(utf8(cannotOpen(path)),
                       "It is not a Zol Estimator workbook, or it is damaged.", {"OK"});
    return false;
}

bool ZOLFileAlerts::writeFile(const QString& path, std::string_view bytes, ZOLFileKind kind,
                              const char* failure) {
    std::string error;
    if (ZOLFileSaver::save(QFile::encodeName(path).toStdString(), bytes, kind, &error) ==
        ZOLFileSaver::Outcome::Saved)
        return true;
    ZOLAlerts::run(failure, error, {"OK"});
    return false;
}
