#include "io/ZOLWorkbookReader.h"

#include "io/ZOLDateFormat.h"
#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "io/ZOLText.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLFileProperty.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "platform/ZOLAlerts.h"
#include "platform/ZOLClock.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace {

using P = ZOLFileProperty;

constexpr int32_t kDefaultPriceItems = 44;

// What an element name means to the reader: a structural element, one of the three leaf
// names that several records share, a leaf element with its one property code, or nothing.
enum class Tag {
    Other,
    Leaf,
    Workbook,
    Worksheet,
    ConcreteData,
    OpeningData,
    Opening,
    RebarData,
    TiltData,
    WallData,
    ManHourData,
    PriceItem,
    PricingData,
    Measurement,
    WallLength,
    WallHeight,
};

struct Element {
    Tag tag = Tag::Other;
    int32_t code = 0;
};

// Every start and end tag is looked up here, so the table is a small open-addressing hash on
// the name's length and three of its letters rather than a general-purpose map.
class ElementTable {
public:
    ElementTable(std::initializer_list<std::pair<std::string_view, Element>> entries) {
        for (const auto& [name, element] : entries)
            add(name, element);
    }
    void add(std::string_view name, Element element) {
        std::size_t i = slot(name);
        while (!slots_[i].name.empty())
            i = (i + 1) & kMask;
        slots_[i] = {name, head(name), tail(name), element};
    }
    Element find(std::string_view name) const {
        if (name.empty())
            return {};
        const uint64_t nameHead = head(name);
        const uint64_t nameTail = tail(name);
        for (std::size_t i = slot(name);; i = (i + 1) & kMask) {
            const Slot& entry = slots_[i];
            if (entry.name.empty())
                return {};
            if (entry.name.size() == name.size() && entry.head == nameHead &&
                entry.tail == nameTail && sameMiddle(entry.name, name))
                return entry.element;
        }
    }

private:
    static constexpr std::size_t kSlots = 512;
    static constexpr std::size_t kMask = kSlots - 1;
    // Every start tag is looked up: each slot keeps the first and the last eight letters of its
    // name beside it, so that a name of up to 16 letters is told apart without reading the
    // stored name itself. Shorter names are padded with zeros.
    struct Slot {
        std::string_view name;
        uint64_t head = 0;
        uint64_t tail = 0;
        Element element;
    };
    static uint64_t eightBytes(std::string_view name, std::size_t from) {
        uint64_t word = 0;
        std::memcpy(&word, name.data() + from, std::min<std::size_t>(8, name.size() - from));
        return word;
    }
    static uint64_t head(std::string_view name) { return eightBytes(name, 0); }
    static uint64_t tail(std::string_view name) {
        return name.size() > 8 ? eightBytes(name, name.size() - 8) : 0;
    }
    // Names of the same length and the same first and last eight letters differ only in what
    // lies between, which only names of more than 16 letters have.
    static bool sameMiddle(std::string_view a, std::string_view b) {
        return a.size() <= 16 || a.substr(8, a.size() - 16) == b.substr(8, b.size() - 16);
    }
    static std::size_t slot(std::string_view name) {
        const auto at = [&name](std::size_t i) { return static_cast<unsigned char>(name[i]); };
        std::size_t h = name.size();
        h = h * 131 + at(0);
        h = h * 131 + at(name.size() / 2);
        h = h * 131 + at(name.size() - 1);
        return h & kMask;
    }
    std::array<Slot, kSlots> slots_{};
};

Element lookUp(std::string_view name) {
    static const ElementTable table = [] {
        ElementTable elements = {
            {"Workbook", {Tag::Workbook}},         {"Worksheet", {Tag::Worksheet}},
            {"ConcreteData", {Tag::ConcreteData}}, {"OpeningData", {Tag::OpeningData}},
            {"Opening", {Tag::Opening}},           {"RebarData", {Tag::RebarData}},
            {"TiltData", {Tag::TiltData}},         {"WallData", {Tag::WallData}},
            {"ManHourData", {Tag::ManHourData}},   {"PriceItem", {Tag::PriceItem}},
            {"PricingData", {Tag::PricingData}},   {"Measurement", {Tag::Measurement}},
            {"WallLength", {Tag::WallLength}},     {"WallHeight", {Tag::WallHeight}},
        };
        for (const P::Leaf& leaf : P::kWorkbookLeaves)
            elements.add(leaf.element, {Tag::Leaf, leaf.code});
        return elements;
    }();
    return table.find(name);
}

// Stores a finished record in the worksheet being read and empties its slot. Without a
// worksheet the record is dropped; an empty slot (a repeated end tag) leaves the worksheet's
// record alone.
template <typename Record, typename Store>
void finishRecord(std::shared_ptr<Record>& slot, const std::shared_ptr<ZOLWorksheet>& worksheet,
                  Store store) {
    if (slot && worksheet)
        ((*worksheet).*store)(std::move(slot));
    slot.reset();
}

// A worksheet comes with its six records at their defaults. The first element of each kind in
// the worksheet fills the worksheet's own record, which is what a new record would be, and
// spares a large workbook making and freeing six records per worksheet; a repeated element
// starts from a new record, as it always did.
template <typename Record>
std::shared_ptr<Record> newRecord(const std::shared_ptr<ZOLWorksheet>& worksheet,
                                  const std::shared_ptr<Record>& (ZOLWorksheet::*own)() const,
                                  uint32_t& untouched, uint32_t kind) {
    if (worksheet && (untouched & kind)) {
        untouched &= ~kind;
        if (const auto& record = ((*worksheet).*own)())
            return record;
    }
    return std::make_shared<Record>();
}

} // namespace

ZOLWorkbookReader::ZOLWorkbookReader(const ZOLReadLimits& limits) : limits_(limits) {}
ZOLWorkbookReader::~ZOLWorkbookReader() = default;

ZOLWorkbookReader::Result ZOLWorkbookReader::readWorkbookData(std::string_view bytes,
                                                              const ZOLReadLimits& limits) {
    Result result;
    if (!ZOLReadCheck::acceptsData(bytes)) {
        result.status = ZOLReadStatus::Refused;
        return result;
    }
    ZOLWorkbookReader reader(limits);
    if (!ZOLSaxParser::parse(bytes, reader)) {
        result.status = ZOLReadStatus::ParseError;
        result.errorPosition = reader.errorPosition();
        return result;
    }
    result.status = ZOLReadStatus::Read;
    // A file without a "Workbook" element opens as a new document would.
    result.noWorkbookElement = !reader.loadedWorkbook();
    result.workbook =
        reader.loadedWorkbook() ? reader.loadedWorkbook() : std::make_shared<ZOLWorkbook>();
    return result;
}

bool ZOLWorkbookReader::countObjects(int32_t count) {
    objects_ += count;
    if (objects_ > limits_.objects) {
        abortParse();
        return false;
    }
    return true;
}

const ZOLWorkbookReader::KnownName& ZOLWorkbookReader::knownName(std::string_view name) {
    const auto address = reinterpret_cast<std::uintptr_t>(name.data());
    KnownName& known = knownNames_[((address >> 2) ^ (address >> 10)) & (knownNames_.size() - 1)];
    if (known.address != name.data() || known.size != name.size()) {
        const Element element = lookUp(name);
        known = {name.data(), name.size(), static_cast<int32_t>(element.tag), element.code};
    }
    return known;
}

void ZOLWorkbookReader::startElement(std::string_view name, const Attributes& attributes) {
    const KnownName& known = knownName(name);
    const Element element{static_cast<Tag>(known.tag), known.code};
    // The end tag of an element is the one for the latest open element: it needs no look-up.
    open_.push_back(static_cast<int32_t>(element.tag));
    switch (element.tag) {
    case Tag::Workbook:
        // The workbook comes with a default price list.
        if (countObjects(kDefaultPriceItems + 1)) {
            workbook_ = std::make_shared<ZOLWorkbook>();
            workbook_->clear();
            worksheets_.clear();
            worksheetNames_.clear();
        }
        break;
    case Tag::Worksheet:
        // A worksheet comes with its six records.
        if (++worksheetsSeen_ > limits_.worksheets || !countObjects(7)) {
            abortParse();
            break;
        }
        worksheet_ = std::make_shared<ZOLWorksheet>();
        untouchedRecords_ = ~0u;
        if (auto worksheetName = attribute(attributes, "Name"))
            worksheet_->setName(*worksheetName);
        break;
    case Tag::ConcreteData:
        if (countObjects(1))
            concrete_ = newRecord(worksheet_, &ZOLWorksheet::concreteData, untouchedRecords_, 1u);
        break;
    case Tag::OpeningData:
        if (countObjects(1))
            openings_ = newRecord(worksheet_, &ZOLWorksheet::openingData, untouchedRecords_, 2u);
        break;
    case Tag::Opening:
        if (countObjects(1))
            opening_ = std::make_shared<ZOLOpening>();
        break;
    case Tag::RebarData:
        if (countObjects(1))
            rebar_ = newRecord(worksheet_, &ZOLWorksheet::rebarData, untouchedRecords_, 4u);
        break;
    case Tag::TiltData:
        if (countObjects(1))
            tilt_ = newRecord(worksheet_, &ZOLWorksheet::tiltData, untouchedRecords_, 8u);
        break;
    case Tag::WallData:
        if (countObjects(1))
            wall_ = newRecord(worksheet_, &ZOLWorksheet::wallData, untouchedRecords_, 16u);
        break;
    case Tag::ManHourData:
        if (countObjects(1))
            manHours_ = newRecord(worksheet_, &ZOLWorksheet::manHourData, untouchedRecords_, 32u);
        break;
    case Tag::PriceItem:
        if (countObjects(1))
            priceItem_ = std::make_shared<ZOLPriceItem>();
        break;
    case Tag::PricingData:
        if (workbook_ && countObjects(kDefaultPriceItems + 1))
            workbook_->setPricingData(std::make_shared<ZOLPricing>());
        break;
    case Tag::Measurement:
        if (concrete_)
            property_ = P::ConcreteMeasurement;
        else if (rebar_)
            property_ = P::RebarMeasurement;
        break;
    case Tag::WallLength:
        if (concrete_)
            property_ = P::ConcreteWallLength;
        else if (rebar_)
            property_ = P::RebarWallLength;
        else if (tilt_)
            property_ = P::TiltWallLength;
        else if (wall_)
            property_ = P::WallWallLength;
        break;
    case Tag::WallHeight:
        if (concrete_)
            property_ = P::ConcreteWallHeight;
        else if (rebar_)
            property_ = P::RebarWallHeight;
        else if (tilt_)
            property_ = P::TiltWallHeight;
        else if (wall_)
            property_ = P::WallWallHeight;
        else if (manHours_)
            property_ = P::ManHoursWallHeight;
        break;
    case Tag::Leaf:
        property_ = element.code;
        break;
    case Tag::Other:
        break;
    }
}

void ZOLWorkbookReader::characters(std::string_view chunk) {
    // The line break and tabs between tags arrive as one chunk that starts with the line break.
    if (chunk.empty() || chunk.front() == '\n')
        return;
    if (!text_)
        text_.emplace();
    text_->append(chunk);
}

void ZOLWorkbookReader::ignorableWhitespace(std::string_view chunk) {
    if (text_ && chunk == " ")
        text_->append(chunk);
}

void ZOLWorkbookReader::endElement(std::string_view name) {
    Tag tag = Tag::Other;
    if (open_.empty()) {
        tag = lookUp(name).tag;
    } else {
        tag = static_cast<Tag>(open_.back());
        open_.pop_back();
    }
    switch (tag) {
    case Tag::ConcreteData:
        finishRecord(concrete_, worksheet_, &ZOLWorksheet::setConcreteData);
        break;
    case Tag::OpeningData:
        finishRecord(openings_, worksheet_, &ZOLWorksheet::setOpeningData);
        break;
    case Tag::RebarData:
        finishRecord(rebar_, worksheet_, &ZOLWorksheet::setRebarData);
        break;
    case Tag::TiltData:
        finishRecord(tilt_, worksheet_, &ZOLWorksheet::setTiltData);
        break;
    case Tag::WallData:
        finishRecord(wall_, worksheet_, &ZOLWorksheet::setWallData);
        break;
    case Tag::ManHourData:
        finishRecord(manHours_, worksheet_, &ZOLWorksheet::setManHourData);
        break;
    case Tag::Opening:
        if (opening_ && openings_) {
            if (openings_->openingList().size() >=
                static_cast<std::size_t>(limits_.openingsPerWorksheet)) {
                abortParse();
                return;
            }
            openings_->addOpeningObject(std::move(opening_));
        }
        opening_.reset();
        break;
    case Tag::Worksheet:
        // A repeated name raises the workbook's own alert and the worksheet is left out.
        if (worksheet_ && workbook_) {
            if (worksheetNames_.insert(worksheet_->name()).second)
                worksheets_.push_back(std::move(worksheet_));
            else
                ZOLWorkbook::alertDuplicateName();
        }
        worksheet_.reset();
        break;
    case Tag::PriceItem:
        if (priceItem_ && workbook_ && workbook_->pricingData()) {
            if (workbook_->pricingData()->priceItems().size() >=
                static_cast<std::size_t>(limits_.priceItems)) {
                abortParse();
                return;
            }
            workbook_->pricingData()->addPriceItem(std::move(priceItem_));
        }
        priceItem_.reset();
        break;
    default:
        applyProperty();
        break;
    }
    text_.reset();
}

// The end of any other element hands the gathered text to whoever takes the current code.
void ZOLWorkbookReader::applyProperty() {
    switch (property_) {
    case P::ProjectName:
        if (workbook_)
            workbook_->setProjectName(text_.value_or(std::string()));
        return;
    case P::ClientName:
        if (workbook_)
            workbook_->setClientName(text_.value_or(std::string()));
        return;
    case P::ProjectDate:
        // No text means today; text that is no date leaves the project without one.
        if (workbook_)
            workbook_->setProjectDate(text_ ? ZOLDateFormat::parseFileDate(*text_)
                                            : std::optional<int64_t>(ZOLClock::now()));
        return;
    case P::RoundToFullBundles:
        if (workbook_)
            workbook_->setRoundToFullBundles(ZOLText::boolValue(text_));
        return;
    default:
        break;
    }
    if (concrete_)
        concrete_->setValue(text_, property_);
    else if (rebar_)
        rebar_->setValue(text_, property_);
    else if (tilt_)
        tilt_->setValue(text_, property_);
    else if (wall_)
        wall_->setValue(text_, property_);
    else if (manHours_)
        manHours_->setValue(text_, property_);
    else if (opening_)
        opening_->setValue(text_, property_);
    else if (priceItem_)
        priceItem_->setValue(text_, property_);
}

void ZOLWorkbookReader::endDocument() {
    if (workbook_) {
        if (worksheets_.empty())
            worksheets_.push_back(std::make_shared<ZOLWorksheet>());
        workbook_->setWorksheets(std::move(worksheets_));
        worksheets_.clear();
        loaded_ = std::move(workbook_);
    } else {
        ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
    }
    workbook_.reset();
}

void ZOLWorkbookReader::parseError() {
    ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
}
