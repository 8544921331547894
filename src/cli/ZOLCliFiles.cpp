#include "cli/ZOLCliFiles.h"

#include "cli/ZOLCliSupport.h"
#include "io/ZOLAtomicFile.h"
#include "io/ZOLFileBytes.h"
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "io/ZOLTemplateReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"

#include <iostream>

namespace zolcli {
namespace {

std::optional<std::string> readBytes(const std::string& path) {
    std::string reason;
    auto bytes = ZOLFileBytes::read(path, ZOLSaxParser::kMaxDocumentBytes, &reason);
    if (!bytes) {
        ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, path + ": " + reason, {"OK"});
        setExitCode(1);
    }
    return bytes;
}

} // namespace

bool refused(const std::string& path, ZOLFileKind kind, ZOLReadStatus status,
             const ZOLReadPosition& where) {
    // The application reports a workbook's refused bytes through the system's own "could not
    // be opened" error; the other readers have alerted themselves.
    if (status == ZOLReadStatus::Refused && kind == ZOLFileKind::Workbook)
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, "", {"OK"});
    std::cerr << path;
    if (status == ZOLReadStatus::ParseError && where.known())
        std::cerr << ':' << where.line << ':' << where.column;
    std::cerr << "\n";
    setExitCode(1);
    return false;
}

std::shared_ptr<ZOLWorkbook> openWorkbook(const std::string& path) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return nullptr;
    const auto result = ZOLWorkbookReader::readWorkbookData(*bytes);
    if (result.ok() && !result.noWorkbookElement)
        return result.workbook;
    // XML without a workbook: the reader has alerted.
    refused(path, ZOLFileKind::Workbook, result.status, result.errorPosition);
    return nullptr;
}

bool openPrices(const std::string& path, ZOLPricing& pricing) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return false;
    ZOLReadPosition where;
    const auto status = ZOLPriceFileReader::readPriceData(*bytes, pricing, {}, &where);
    return status == ZOLReadStatus::Read ||
           refused(path, ZOLFileKind::PriceList, status, where);
}

bool openTemplate(const std::string& path, ZOLWorkbook& workbook) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return false;
    ZOLReadPosition where;
    const auto status = ZOLTemplateReader::readTemplateData(*bytes, workbook, {}, &where);
    return status == ZOLReadStatus::Read ||
           refused(path, ZOLFileKind::Template, status, where);
}

bool loadJobFiles(ZOLWorkbook& workbook, const std::string& pricesPath,
                  const std::string& templatePath) {
    return (pricesPath.empty() || openPrices(pricesPath, *workbook.pricingData())) &&
           (templatePath.empty() || openTemplate(templatePath, workbook));
}

bool save(const std::string& path, const std::string& text, ZOLFileKind kind) {
    std::string reason;
    if (ZOLFileSaver::save(path, text, kind, &reason) == ZOLFileSaver::Outcome::Saved)
        return true;
    std::cerr << "zolest: could not save " << path << ": " << reason << "\n";
    setExitCode(1);
    return false;
}

bool save(const std::string& path, const std::string& text) {
    std::string reason;
    if (ZOLAtomicFile::write(path, text, &reason))
        return true;
    std::cerr << "zolest: could not save " << path << ": " << reason << "\n";
    setExitCode(1);
    return false;
}

} // namespace zolcli
