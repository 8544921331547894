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

// The readers alert without naming the file: the path follows their alert.
bool failed(const std::string& path) {
    std::cerr << path << "\n";
    setExitCode(1);
    return false;
}

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

std::shared_ptr<ZOLWorkbook> openWorkbook(const std::string& path) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return nullptr;
    const auto result = ZOLWorkbookReader::readWorkbookData(*bytes);
    if (result.ok() && !result.noWorkbookElement)
        return result.workbook;
    // The application reports refused bytes through the system's own "could not be opened"
    // error; the reader has alerted in the other cases.
    if (result.status == ZOLReadStatus::Refused)
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, "", {"OK"});
    failed(path);
    return nullptr;
}

bool openPrices(const std::string& path, ZOLPricing& pricing) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return false;
    return ZOLPriceFileReader::readPriceData(*bytes, pricing) == ZOLReadStatus::Read ||
           failed(path);
}

bool openTemplate(const std::string& path, ZOLWorkbook& workbook) {
    const auto bytes = readBytes(path);
    if (!bytes)
        return false;
    return ZOLTemplateReader::readTemplateData(*bytes, workbook) == ZOLReadStatus::Read ||
           failed(path);
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
