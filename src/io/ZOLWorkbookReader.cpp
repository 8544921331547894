#include "io/ZOLWorkbookReader.h"

#include "io/ZOLDateFormat.h"
#include "io/ZOLReadCheck.h"
#include "io/ZOLSaxParser.h"
#include "io/ZOLText.h"
#include "model/ZOLConcrete.h"
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

#include <unordered_map>

namespace {

// Property codes of the workbook's own elements, handled by the reader itself.
constexpr int32_t kProjectName = 0;
constexpr int32_t kClientName = 1;
constexpr int32_t kProjectDate = 2;
constexpr int32_t kRoundToFullBundles = 5;

constexpr int32_t kDefaultPriceItems = 44;

// The leaf elements with a single code. "Measurement", "WallLength" and "WallHeight" appear in
// several records and are resolved by the record being read.
const std::unordered_map<std::string_view, int32_t>& leafCodes() {
    static const std::unordered_map<std::string_view, int32_t> codes = {
        {"ProjectName", 0},
        {"ClientName", 1},
        {"ProjectDate", 2},
        {"ProjectVersion", 3},
        {"DistributorName", 4},
        {"RoundToFullBundles", 5},
        {"SummarizeWall", 6},
        {"SummarizeRebar", 7},
        {"SummarizeConcrete", 8},
        {"SummarizeTilt", 9},
        {"SummarizeManHours", 10},
        {"FootingWidth", 12},
        {"FootingLength", 13},
        {"FootingDepth", 14},
        {"PileDepth", 15},
        {"PileDiameter", 16},
        {"PileCount", 17},
        {"SlabLength", 18},
        {"SlabWidth", 19},
        {"SlabDepth", 20},
        {"WallThickness", 22},
        {"RowNumber", 24},
        {"NumberOfOpenings", 25},
        {"OpeningWidth", 26},
        {"OpeningHeight", 27},
        {"UseSill", 28},
        {"HorizontalSize1", 31},
        {"HorizontalRowCount1", 32},
        {"HorizontalLap1", 33},
        {"HorizontalSize2", 34},
        {"HorizontalRowCount2", 35},
        {"HorizontalLap2", 36},
        {"VerticalSize", 38},
        {"VerticalSpacing", 39},
        {"DowelSize", 40},
        {"DowelSpacing", 41},
        {"DowelLength", 42},
        {"BlockSize", 45},
        {"InsideCornerLocations", 48},
        {"OutsideCornerLocations", 49},
        {"AngleLocations", 50},
        {"TBlockLocations", 51},
        {"LinearFeetCorbel", 52},
        {"LinearFeetCurb", 53},
        {"CurbCornerLocations", 54},
        {"LinearFeetTapered", 55},
        {"LinearFeetRadius", 56},
        {"Radius", 57},
        {"SquareFeetOpenings", 58},
        {"LinearFeetBuck", 59},
        {"StraightBlockAdded", 60},
        {"CornerBlockAdded", 61},
        {"CaloraStickLayers", 62},
        {"UseCutBlock", 63},
        {"UseHalfBlock", 64},
        {"UseExtenders", 65},
        {"UsePravex", 66},
        {"PelmoBrickHeight", 67},
        {"PelmoBrickLength", 68},
        {"PelmoPerBlock", 69},
        {"SquareFeetOfWall", 70},
        {"CornersAndTs", 71},
        {"SquareFeetOfOpenings", 72},
        {"LinealFeetCorbelCurbTapered", 73},
        {"RebarComplexity", 75},
        {"CrewExperience", 76},
        {"SiteConditions", 77},
        {"OtherTurns", 78},
        {"LaborCost", 79},
        {"CrewSize", 80},
        {"PartSize", 81},
        {"PartType", 82},
        {"Price", 83},
    };
    return codes;
}

// Stores a finished record in the worksheet being read and empties its slot. Without a
// worksheet the record is dropped; an empty slot (a repeated end tag) leaves the worksheet's
// record alone.
template <typename Record, typename Store>
void finishRecord(std::shared_ptr<Record>& slot, const std::shared_ptr<ZOLWorksheet>& worksheet,
                  Store store) {
    if (slot && worksheet)
        ((*worksheet).*store)(slot);
    slot.reset();
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
        return result;
    }
    result.status = ZOLReadStatus::Read;
    // A file without a "Workbook" element opens as a new document would.
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

void ZOLWorkbookReader::startElement(std::string_view name, const Attributes& attributes) {
    if (name == "Workbook") {
        // The workbook comes with a default price list.
        if (!countObjects(kDefaultPriceItems + 1))
            return;
        workbook_ = std::make_shared<ZOLWorkbook>();
        workbook_->clear();
    } else if (name == "Worksheet") {
        // A worksheet comes with its six records.
        if (++worksheetsSeen_ > limits_.worksheets || !countObjects(7)) {
            abortParse();
            return;
        }
        worksheet_ = std::make_shared<ZOLWorksheet>();
        if (auto worksheetName = attribute(attributes, "Name"))
            worksheet_->setName(*worksheetName);
    } else if (name == "ConcreteData") {
        if (countObjects(1))
            concrete_ = std::make_shared<ZOLConcrete>();
    } else if (name == "OpeningData") {
        if (countObjects(1))
            openings_ = std::make_shared<ZOLOpenings>();
    } else if (name == "Opening") {
        if (countObjects(1))
            opening_ = std::make_shared<ZOLOpening>();
    } else if (name == "RebarData") {
        if (countObjects(1))
            rebar_ = std::make_shared<ZOLRebar>();
    } else if (name == "TiltData") {
        if (countObjects(1))
            tilt_ = std::make_shared<ZOLTilt>();
    } else if (name == "WallData") {
        if (countObjects(1))
            wall_ = std::make_shared<ZOLWall>();
    } else if (name == "ManHourData") {
        if (countObjects(1))
            manHours_ = std::make_shared<ZOLManHours>();
    } else if (name == "PriceItem") {
        if (countObjects(1))
            priceItem_ = std::make_shared<ZOLPriceItem>();
    } else if (name == "PricingData") {
        if (workbook_ && countObjects(kDefaultPriceItems + 1))
            workbook_->setPricingData(std::make_shared<ZOLPricing>());
    } else if (name == "Measurement") {
        if (concrete_)
            property_ = 11;
        else if (rebar_)
            property_ = 29;
    } else if (name == "WallLength") {
        if (concrete_)
            property_ = 21;
        else if (rebar_)
            property_ = 30;
        else if (tilt_)
            property_ = 44;
        else if (wall_)
            property_ = 47;
    } else if (name == "WallHeight") {
        if (concrete_)
            property_ = 23;
        else if (rebar_)
            property_ = 37;
        else if (tilt_)
            property_ = 43;
        else if (wall_)
            property_ = 46;
        else if (manHours_)
            property_ = 74;
    } else {
        const auto& codes = leafCodes();
        if (auto found = codes.find(name); found != codes.end())
            property_ = found->second;
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
    if (name == "ConcreteData") {
        finishRecord(concrete_, worksheet_, &ZOLWorksheet::setConcreteData);
    } else if (name == "OpeningData") {
        finishRecord(openings_, worksheet_, &ZOLWorksheet::setOpeningData);
    } else if (name == "RebarData") {
        finishRecord(rebar_, worksheet_, &ZOLWorksheet::setRebarData);
    } else if (name == "TiltData") {
        finishRecord(tilt_, worksheet_, &ZOLWorksheet::setTiltData);
    } else if (name == "WallData") {
        finishRecord(wall_, worksheet_, &ZOLWorksheet::setWallData);
    } else if (name == "ManHourData") {
        finishRecord(manHours_, worksheet_, &ZOLWorksheet::setManHourData);
    } else if (name == "Opening") {
        if (opening_ && openings_) {
            if (openings_->openingList().size() >=
                static_cast<std::size_t>(limits_.openingsPerWorksheet)) {
                abortParse();
                return;
            }
            openings_->addOpeningObject(opening_);
        }
        opening_.reset();
    } else if (name == "Worksheet") {
        // A repeated name raises the workbook's own alert and the worksheet is left out.
        if (worksheet_ && workbook_)
            workbook_->addWorksheetsObject(worksheet_);
        worksheet_.reset();
    } else if (name == "PriceItem") {
        if (priceItem_ && workbook_ && workbook_->pricingData()) {
            if (workbook_->pricingData()->priceItems().size() >=
                static_cast<std::size_t>(limits_.priceItems)) {
                abortParse();
                return;
            }
            workbook_->pricingData()->addPriceItem(priceItem_);
        }
        priceItem_.reset();
    } else {
        applyProperty();
    }
    text_.reset();
}

// The end of any other element hands the gathered text to whoever takes the current code.
void ZOLWorkbookReader::applyProperty() {
    switch (property_) {
    case kProjectName:
        if (workbook_)
            workbook_->setProjectName(text_.value_or(std::string()));
        return;
    case kClientName:
        if (workbook_)
            workbook_->setClientName(text_.value_or(std::string()));
        return;
    case kProjectDate:
        // No text means today; text that is no date leaves the project without one.
        if (workbook_)
            workbook_->setProjectDate(text_ ? ZOLDateFormat::parseFileDate(*text_)
                                            : std::optional<int64_t>(ZOLClock::now()));
        return;
    case kRoundToFullBundles:
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
        if (workbook_->worksheets().empty())
            workbook_->addWorksheetsObject(std::make_shared<ZOLWorksheet>());
        loaded_ = std::move(workbook_);
    } else {
        ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
    }
    workbook_.reset();
}

void ZOLWorkbookReader::parseError() {
    ZOLAlerts::run(ZOLReadCheck::kOpenErrorMessage, "", {"OK"});
}
