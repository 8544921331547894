#pragma once
#include "io/ZOLReadLimits.h"
#include "io/ZOLReadStatus.h"
#include "io/ZOLSaxHandler.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ZOLCustomItem;
class ZOLWorkbook;

// Reads a job-summary template (".zci") for the job summary screen. At the end of the file
// the template's lines replace the workbook's job-summary lines as a whole, generated lines
// included (the next regeneration merges into the loaded lines by calculator type and name).
// A file without a "CustomItems" element leaves the workbook with no lines; a file that fails
// to parse changes nothing.
class ZOLTemplateReader : public ZOLSaxHandler {
public:
    // Opens a template's bytes as the job summary screen does: bytes that fail the open check
    // (ZOLReadCheck) give the wrong-format alert, then the XML is read into `workbook`. After a
    // parse error `errorPosition` (when given) tells where the parser stopped.
    static ZOLReadStatus readTemplateData(std::string_view bytes, ZOLWorkbook& workbook,
                                          const ZOLReadLimits& limits = {},
                                          ZOLReadPosition* errorPosition = nullptr);

    explicit ZOLTemplateReader(ZOLWorkbook& workbook, const ZOLReadLimits& limits = {});
    ~ZOLTemplateReader() override;

    void startElement(std::string_view name, const Attributes& attributes) override;
    void characters(std::string_view chunk) override;
    void ignorableWhitespace(std::string_view chunk) override;
    void endElement(std::string_view name) override;
    void endDocument() override;
    void parseError() override;

    // Whether the file held a "CustomItems" list (a file of another kind has none).
    bool sawCustomItems() const { return sawCustomItems_; }

private:
    ZOLWorkbook& workbook_;
    ZOLReadLimits limits_;
    std::optional<std::vector<std::shared_ptr<ZOLCustomItem>>> items_;
    std::shared_ptr<ZOLCustomItem> item_;
    std::optional<std::string> text_;
    int32_t property_ = 0;
    int32_t itemsSeen_ = 0;
    bool sawCustomItems_ = false;
};
