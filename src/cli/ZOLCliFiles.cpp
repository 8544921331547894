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

std::optional<std::string> readFileForOpening(const std::string& path) {
    std::string reason;
    auto bytes = ZOLFileBytes::read(path, ZOLSaxParser::kMaxDocumentBytes, &reason);
    if (!bytes) {
        ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, path + ": " + reason, {"OK"});
        setExitCode(1);
    }
    return bytes;
}

std::shared_ptr<ZOLWorkbook> openWorkbook(const std::string& path) {
    const auto bytes = readFileForOpening(path);
    if (!bytes)
        return nullptr;
    const auto result = ZOLWorkbookReader::readWorkbookData(*bytes);
    switch (result.status) {
    case ZOLReadStatus::Read:
        return result.workbook;
    case ZOLReadStatus::Refused:
        // The application reports this through the system's own "could not be opened" error.
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, path, {"OK"});
        break;
    case ZOLReadStatus::ParseError:
        // The reader has shown its alert.
        break;
    }
    setExitCode(1);
    return nullptr;
}

bool loadJobFiles(ZOLWorkbook& workbook, const std::string& pricesPath,
                  const std::string& templatePath) {
    if (!pricesPath.empty()) {
        const auto bytes = readFileForOpening(pricesPath);
        if (!bytes || ZOLPriceFileReader::readPriceData(*bytes, *workbook.pricingData()) !=
                          ZOLReadStatus::Read) {
            setExitCode(1);
            return false;
        }
    }
    if (!templatePath.empty()) {
        const auto bytes = readFileForOpening(templatePath);
        if (!bytes ||
            ZOLTemplateReader::readTemplateData(*bytes, workbook) != ZOLReadStatus::Read) {
            setExitCode(1);
            return false;
        }
    }
    return true;
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
