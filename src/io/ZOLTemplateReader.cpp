#include "io/ZOLTemplateReader.h"

#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLFileProperty.h"
#include "model/ZOLWorkbook.h"
#include "platform/ZOLAlerts.h"

#include <unordered_map>

ZOLReadStatus ZOLTemplateReader::readTemplateData(std::string_view bytes, ZOLWorkbook& workbook,
                                                  const ZOLReadLimits& limits,
                                                  ZOLReadPosition* errorPosition) {
    if (!ZOLReadCheck::acceptsData(bytes)) {
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, "", {"OK"});
        return ZOLReadStatus::Refused;
    }
    ZOLTemplateReader reader(workbook, limits);
    if (ZOLSaxParser::parse(bytes, reader))
        return ZOLReadStatus::Read;
    if (errorPosition)
        *errorPosition = reader.errorPosition();
    return ZOLReadStatus::ParseError;
}

ZOLTemplateReader::ZOLTemplateReader(ZOLWorkbook& workbook, const ZOLReadLimits& limits)
    : workbook_(workbook), limits_(limits) {}
ZOLTemplateReader::~ZOLTemplateReader() = default;

void ZOLTemplateReader::startElement(std::string_view name, const Attributes&) {
    static const std::unordered_map<std::string_view, int32_t> codes = [] {
        std::unordered_map<std::string_view, int32_t> byElement;
        for (const ZOLFileProperty::Leaf& leaf : ZOLFileProperty::kTemplateLeaves)
            byElement.emplace(leaf.element, leaf.code);
        return byElement;
    }();
    if (name == "CustomItems") {
        items_.emplace();
        sawCustomItems_ = true;
    } else if (name == "CustomItem") {
        if (++itemsSeen_ > limits_.customItems) {
            abortParse();
            return;
        }
        item_ = std::make_shared<ZOLCustomItem>();
    } else if (auto found = codes.find(name); found != codes.end()) {
        property_ = found->second;
    }
}

void ZOLTemplateReader::characters(std::string_view chunk) {
    if (chunk.empty() || chunk.front() == '\n')
        return;
    if (!text_)
        text_.emplace();
    text_->append(chunk);
}

void ZOLTemplateReader::ignorableWhitespace(std::string_view chunk) {
    if (text_ && chunk == " ")
        text_->append(chunk);
}

void ZOLTemplateReader::endElement(std::string_view name) {
    if (name == "CustomItem") {
        // A line outside a "CustomItems" list has nowhere to go.
        if (item_ && items_)
            items_->push_back(item_);
        // The line is finished: the end tags that close the list carry no value for it, so
        // the last line keeps its "Visible" as written.
        item_.reset();
    } else if (item_) {
        item_->setValue(text_, property_);
    }
    text_.reset();
}

void ZOLTemplateReader::endDocument() {
    workbook_.setCustomItems(items_ ? std::move(*items_)
                                    : std::vector<std::shared_ptr<ZOLCustomItem>>());
    items_.reset();
    item_.reset();
    text_.reset();
}

void ZOLTemplateReader::parseError() {
    ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
}
