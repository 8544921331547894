#include "io/ZOLPriceFileReader.h"

#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "model/ZOLFileProperty.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "platform/ZOLAlerts.h"

ZOLReadStatus ZOLPriceFileReader::readPriceData(std::string_view bytes, ZOLPricing& pricing,
                                                const ZOLReadLimits& limits,
                                                ZOLReadPosition* errorPosition) {
    if (!ZOLReadCheck::acceptsData(bytes)) {
        ZOLAlerts::run(ZOLReadCheck::kWrongFormatMessage, "", {"OK"});
        return ZOLReadStatus::Refused;
    }
    // The file is read into a copy, and the list changes only when the whole file was read: a
    // cut-off file must not leave the job priced by the few items before the cut.
    ZOLPricing read = pricing;
    ZOLPriceFileReader reader(read, limits);
    if (!ZOLSaxParser::parse(bytes, reader)) {
        if (errorPosition)
            *errorPosition = reader.errorPosition();
        return ZOLReadStatus::ParseError;
    }
    pricing.setPriceItems(read.priceItems());
    return ZOLReadStatus::Read;
}

ZOLPriceFileReader::ZOLPriceFileReader(ZOLPricing& pricing, const ZOLReadLimits& limits)
    : pricing_(pricing), limits_(limits) {}
ZOLPriceFileReader::~ZOLPriceFileReader() = default;

void ZOLPriceFileReader::startElement(std::string_view name, const Attributes&) {
    if (name == "PriceItems") {
        pricing_.clear();
        sawPriceItems_ = true;
    }
    else if (name == "PriceItem")
        item_ = std::make_shared<ZOLPriceItem>();
    else if (name == "PartSize")
        property_ = ZOLFileProperty::PartSize;
    else if (name == "PartType")
        property_ = ZOLFileProperty::PartType;
    else if (name == "Price")
        property_ = ZOLFileProperty::Price;
}

void ZOLPriceFileReader::characters(std::string_view chunk) {
    if (chunk.empty() || chunk.front() == '\n')
        return;
    if (!text_)
        text_.emplace();
    text_->append(chunk);
}

void ZOLPriceFileReader::ignorableWhitespace(std::string_view chunk) {
    if (text_ && chunk == " ")
        text_->append(chunk);
}

void ZOLPriceFileReader::endElement(std::string_view name) {
    if (name == "PriceItem") {
        if (item_) {
            if (pricing_.priceItems().size() >= static_cast<std::size_t>(limits_.priceItems)) {
                abortParse();
                return;
            }
            pricing_.addPriceItem(item_);
        }
        // The item is finished: the end tags that close the list carry no value for it, so
        // the last price of the file is kept as written.
        item_.reset();
    } else if (item_) {
        item_->setValue(text_, property_);
    }
    text_.reset();
}

void ZOLPriceFileReader::endDocument() {
    item_.reset();
    text_.reset();
}

void ZOLPriceFileReader::parseError() {
    ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
}
