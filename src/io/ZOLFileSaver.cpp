#include "io/ZOLFileSaver.h"

#include "io/ZOLAtomicFile.h"
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "io/ZOLTemplateReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"

namespace {
// Keeps the readers' alerts from the user while a save checks its own bytes.
class SilencedAlerts {
public:
    SilencedAlerts() : previous_(ZOLAlerts::setPresenter(nullptr)) {}
    ~SilencedAlerts() { ZOLAlerts::setPresenter(previous_); }
    SilencedAlerts(const SilencedAlerts&) = delete;
    SilencedAlerts& operator=(const SilencedAlerts&) = delete;

private:
    std::shared_ptr<ZOLAlertPresenter> previous_;
};
} // namespace

bool ZOLFileSaver::readsBack(std::string_view bytes, ZOLFileKind kind) {
    const SilencedAlerts silenced;
    switch (kind) {
    case ZOLFileKind::Workbook: {
        const auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        return result.ok() && !result.noWorkbookElement;
    }
    case ZOLFileKind::PriceList: {
        ZOLPricing scratch;
        ZOLPriceFileReader reader(scratch);
        return ZOLReadCheck::acceptsData(bytes) && ZOLSaxParser::parse(bytes, reader) &&
               reader.sawPriceItems();
    }
    case ZOLFileKind::Template: {
        ZOLWorkbook scratch;
        ZOLTemplateReader reader(scratch);
        return ZOLReadCheck::acceptsData(bytes) && ZOLSaxParser::parse(bytes, reader) &&
               reader.sawCustomItems();
    }
    }
    return false;
}

ZOLFileSaver::Outcome ZOLFileSaver::save(const std::string& path, std::string_view bytes,
                                         ZOLFileKind kind, std::string* error) {
    if (!readsBack(bytes, kind)) {
        if (error)
            *error = kUnreadableReason;
        return Outcome::Unreadable;
    }
    return ZOLAtomicFile::write(path, bytes, error) ? Outcome::Saved : Outcome::WriteFailed;
}
