#pragma once
#include "io/ZOLReadLimits.h"
#include "io/ZOLReadStatus.h"
#include "io/ZOLSaxHandler.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class ZOLPriceItem;
class ZOLPricing;

// Reads a price file (".zp") into the price list of the price list window. The file's
// "PriceItems" element empties the list and its items are appended in file order, so after a
// good read the list holds exactly the file's items, without the defaults. A file without a
// "PriceItems" element leaves the list as it was, and so does a file that cannot be read to
// its end (the alert is shown, but no item of a broken file reaches the list).
class ZOLPriceFileReader : public ZOLSaxHandler {
public:
    // Opens a price file's bytes as the price list window does: bytes that fail the open check
    // (ZOLReadCheck) give the wrong-format alert, then the XML is read; `pricing` takes the
    // file's list only when the whole file was read. After a parse error `errorPosition` (when
    // given) tells where the parser stopped.
    static ZOLReadStatus readPriceData(std::string_view bytes, ZOLPricing& pricing,
                                       const ZOLReadLimits& limits = {},
                                       ZOLReadPosition* errorPosition = nullptr);

    explicit ZOLPriceFileReader(ZOLPricing& pricing, const ZOLReadLimits& limits = {});
    ~ZOLPriceFileReader() override;

    void startElement(std::string_view name, const Attributes& attributes) override;
    void characters(std::string_view chunk) override;
    void ignorableWhitespace(std::string_view chunk) override;
    void endElement(std::string_view name) override;
    void endDocument() override;
    void parseError() override;

    // Whether the file held a "PriceItems" list (a file of another kind has none).
    bool sawPriceItems() const { return sawPriceItems_; }

private:
    ZOLPricing& pricing_;
    ZOLReadLimits limits_;
    std::shared_ptr<ZOLPriceItem> item_;
    std::optional<std::string> text_;
    int32_t property_ = 0;
    bool sawPriceItems_ = false;
};
