#pragma once
#include "io/ZOLReadLimits.h"
#include "io/ZOLReadStatus.h"
#include "io/ZOLSaxHandler.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

class ZOLConcrete;
class ZOLManHours;
class ZOLOpening;
class ZOLOpenings;
class ZOLPriceItem;
class ZOLRebar;
class ZOLTilt;
class ZOLWall;
class ZOLWorkbook;
class ZOLWorksheet;

// Reads a workbook file: the parser delegate of an opening document. Start tags create the
// model objects, each leaf element's text goes to the current record's setValue with the
// element's property code, and end tags put the finished objects in place.
//
// The rules are those the files have always been read by, including their surprises, which
// saved files depend on:
// - a text chunk that starts with a line break is dropped whole (so the indentation between
//   tags is never text, and neither is a value that starts with a line break);
// - the property code stays set from one leaf element to the next, and the end tag of an
//   element the reader does not know still hands the gathered text to the current record
//   under that code: the concrete record's "RemoveSqFtOpenings" and "SqFtOpenings", which
//   follow its "WallHeight", therefore overwrite the concrete wall height;
// - the project version, the distributor and the five summary switches are written but not
//   read back: an opened workbook has them empty and all switches on;
// - the price items of the file are appended after the default list of a new price list, so
//   the defaults win every look-up;
// - a workbook without worksheets gets one default worksheet.
//
// One reader serves one read: nothing of a failed read can leak into the next document.
class ZOLWorkbookReader : public ZOLSaxHandler {
public:
    struct Result {
        ZOLReadStatus status = ZOLReadStatus::ParseError;
        // The workbook to show when the status is Read: the file's, or a new default workbook
        // when the file is XML without a "Workbook" element (the reader has alerted).
        std::shared_ptr<ZOLWorkbook> workbook;
        // The file was XML without a "Workbook" element: `workbook` is a new default one.
        bool noWorkbookElement = false;
        // Where the parser stopped when the status is ParseError.
        ZOLReadPosition errorPosition;
        bool ok() const { return status == ZOLReadStatus::Read; }
    };

    // Opens a workbook file's bytes as the document does: the bytes must pass the open check
    // (ZOLReadCheck), then they are parsed.
    static Result readWorkbookData(std::string_view bytes, const ZOLReadLimits& limits = {});

    explicit ZOLWorkbookReader(const ZOLReadLimits& limits = {});
    ~ZOLWorkbookReader() override;

    // The parser delegate.
    void startElement(std::string_view name, const Attributes& attributes) override;
    void characters(std::string_view chunk) override;
    void ignorableWhitespace(std::string_view chunk) override;
    void endElement(std::string_view name) override;
    void endDocument() override;
    void parseError() override;

    // The workbook the end of the document handed over; none before that, none after a
    // parse error and none for a file without a "Workbook" element.
    const std::shared_ptr<ZOLWorkbook>& loadedWorkbook() const { return loaded_; }

private:
    // What an element name means to the reader, kept by the name's address: the parser hands
    // on one address per name, so the element table is searched once per name, not once per
    // element of a large workbook.
    struct KnownName {
        const char* address = nullptr;
        std::size_t size = 0;
        int32_t tag = 0;
        int32_t code = 0;
    };
    const KnownName& knownName(std::string_view name);
    void applyProperty();
    bool countObjects(int32_t count);

    std::shared_ptr<ZOLWorkbook> workbook_;
    std::shared_ptr<ZOLWorksheet> worksheet_;
    std::shared_ptr<ZOLConcrete> concrete_;
    std::shared_ptr<ZOLOpenings> openings_;
    std::shared_ptr<ZOLOpening> opening_;
    std::shared_ptr<ZOLRebar> rebar_;
    std::shared_ptr<ZOLTilt> tilt_;
    std::shared_ptr<ZOLWall> wall_;
    std::shared_ptr<ZOLManHours> manHours_;
    std::shared_ptr<ZOLPriceItem> priceItem_;
    std::optional<std::string> text_;
    int32_t property_ = 0;
    // The worksheet's own records no element has filled yet, one bit per kind.
    uint32_t untouchedRecords_ = 0;
    // What each open element is, innermost last.
    std::vector<int32_t> open_;

    ZOLReadLimits limits_;
    // The worksheets of the workbook being read and their names: a house of a thousand
    // worksheets must not be checked name by name and copied at every worksheet.
    std::vector<std::shared_ptr<ZOLWorksheet>> worksheets_;
    std::unordered_set<std::string> worksheetNames_;
    std::shared_ptr<ZOLWorkbook> loaded_;
    int32_t worksheetsSeen_ = 0;
    int32_t objects_ = 0;
    std::array<KnownName, 256> knownNames_{};
};
