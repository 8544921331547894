#include "model/ZOLWorkbook.h"

#include "calc/ZOLConcreteCalculator.h"
#include "calc/ZOLRebarCalculator.h"
#include "calc/ZOLWallData.h"
#include "io/ZOLDateFormat.h"
#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"
#include "io/ZOLText.h"
#include "io/ZOLXMLWriter.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "platform/ZOLAlerts.h"
#include "platform/ZOLClock.h"

#include <algorithm>

namespace {

std::shared_ptr<ZOLCustomItem> generatedLine(const char* calculatorType, std::string name,
                                             const char* unit) {
    auto line = std::make_shared<ZOLCustomItem>();
    line->setName(std::move(name));
    line->setUnit(std::string(unit));
    line->setTiedToWorkbook(true);
    line->setCalculatorType(std::string(calculatorType));
    line->setVisible(false);
    return line;
}

// The records of one kind from every worksheet, in worksheet order.
template <typename Record>
std::vector<std::shared_ptr<Record>>
collect(const ZOLWorkbook::Worksheets& worksheets,
        const std::shared_ptr<Record>& (ZOLWorksheet::*record)() const) {
    std::vector<std::shared_ptr<Record>> records;
    for (const auto& sheet : worksheets) {
        if (sheet && ((*sheet).*record)())
            records.push_back(((*sheet).*record)());
    }
    return records;
}

const std::string kWallType = "Wall";
const std::string kRebarType = "Rebar";
const std::string kConcreteType = "Concrete";

} // namespace

ZOLWorkbook::ZOLWorkbook() {
    clear();
    worksheets_ = {std::make_shared<ZOLWorksheet>()};
}

void ZOLWorkbook::clear() {
    worksheets_ = {};
    pricingData_ = std::make_shared<ZOLPricing>();
    projectName_ = std::string();
    clientName_ = std::string();
    projectDate_ = ZOLClock::now();
    projectVersion_ = std::string();
    distributorName_ = std::string();
    roundToFullBundles_ = false;
    notes_ = std::string();
    customItems_ = {};
    summarizeWall_ = true;
    summarizeRebar_ = true;
    summarizeConcrete_ = true;
    summarizeTilt_ = true;
    summarizeManHours_ = true;
}

// ---- worksheets ----

void ZOLWorkbook::alertDuplicateName() {
    ZOLAlerts::run("A worksheet with that name already exists.", "", {"OK"});
}

void ZOLWorkbook::addWorksheetsObject(std::shared_ptr<ZOLWorksheet> worksheet) {
    if (!worksheet)
        return;
    if (worksheetExistsWithName(worksheet->name())) {
        alertDuplicateName();
        return;
    }
    Worksheets sheets = worksheets_;
    sheets.push_back(std::move(worksheet));
    worksheets_ = std::move(sheets);
}

bool ZOLWorkbook::worksheetExistsWithName(const std::string& name) const {
    return std::any_of(worksheets_.begin(), worksheets_.end(),
                       [&](const auto& sheet) { return sheet && sheet->name() == name; });
}

double ZOLWorkbook::getTotalGrossSquareFeet() const {
    double total = 0.0;
    for (const auto& wall : collect(worksheets_, &ZOLWorksheet::wallData))
        total += wall->getGrossSqFtOfWall();
    return total;
}

double ZOLWorkbook::getTotalNetSquareFeet() const {
    double total = 0.0;
    for (const auto& wall : collect(worksheets_, &ZOLWorksheet::wallData))
        total += wall->getNetSqFtOfWall();
    return total;
}

// ---- generated job-summary lines ----

void ZOLWorkbook::generateCustomItems() {
    if (worksheets_.empty())
        return;
    generateWallItem();
    generateRebarItems();
    generateConcreteItems();
    generateTiltItem();
    generateManHoursItem();
}

void ZOLWorkbook::generateWallItem() {
    CustomItems items = customItems_;
    const auto walls = collect(worksheets_, &ZOLWorksheet::wallData);
    std::erase_if(items, [](const auto& item) {
        return item && item->tiedToWorkbook() && item->calculatorType() == kWallType;
    });
    items.insert(items.begin(), getWallSummaryItemForWalls(walls, pricingData_, roundToFullBundles_,
                                                           summarizeWall_));
    customItems_ = std::move(items);
}

std::shared_ptr<ZOLCustomItem>
ZOLWorkbook::getWallSummaryItemForWalls(const std::vector<std::shared_ptr<ZOLWall>>& walls,
                                        const std::shared_ptr<ZOLPricing>& withPricing,
                                        bool roundToFullBundles, bool visible) const {
    auto line = generatedLine("Wall", "Zol Blocks Package", "Package");
    if (walls.empty())
        return line;

    const auto partCount = [roundToFullBundles](const ZOLWall& wall, int32_t type) {
        return roundToFullBundles ? wall.getPartCountRoundedToFullBundlesWithPartType(type)
                                  : wall.getPartCountWithPartType(type);
    };
    // Which sizes are priced is decided by the workbook's own worksheets.
    const auto workbookUsesSize = [this](int32_t size) {
        return std::any_of(worksheets_.begin(), worksheets_.end(), [size](const auto& sheet) {
            return sheet && sheet->wallData() && sheet->wallData()->blockSize() == size;
        });
    };
    const std::vector<std::shared_ptr<ZOLPriceItem>> noItems;
    const auto& priceItems = withPricing ? withPricing->priceItems() : noItems;

    int32_t partTotal = 0;
    double cost = 0.0;
    // Deliberately shared by every part below: an accessory without a price item
    // is charged at the price of the part priced just before it.
    double price = 0.0;
    for (int32_t size : ZOLWallData::kBlockSizes) {
        if (!workbookUsesSize(size))
            continue;
        for (int32_t type = 0; type <= ZOLWallData::kLastSizedPartType; ++type) {
            if (!ZOLWallData::getValidSizeWithBlockType(type, size))
                continue;
            int32_t count = 0;
            for (const auto& wall : walls) {
                if (wall && wall->blockSize() == size)
                    count = ZOLNumeric::wrapAdd(count, partCount(*wall, type));
            }
            price = 0.0;
            for (const auto& item : priceItems) {
                if (item && item->partType() == type && item->partSize() == size) {
                    price = item->price();
                    break;
                }
            }
            partTotal = ZOLNumeric::wrapAdd(partTotal, count);
            cost += static_cast<double>(count) * price;
        }
        if (partTotal <= 0)
            continue;
        // The accessories of all walls, priced whatever their size, once for every
        // block size the job uses: a job of two sizes counts and charges them
        // twice.
        for (int32_t type = ZOLWallData::kFirstAccessory; type <= ZOLWallData::kLastAccessory;
             ++type) {
            int32_t count = 0;
            for (const auto& wall : walls) {
                if (wall)
                    count = ZOLNumeric::wrapAdd(count, partCount(*wall, type));
            }
            for (const auto& item : priceItems) {
                if (item && item->partType() == type) {
                    price = item->price();
                    break;
                }
            }
            partTotal = ZOLNumeric::wrapAdd(partTotal, count);
            cost += static_cast<double>(count) * price;
        }
    }
    line->setCost(cost);
    line->setQuantity(partTotal >= 1 ? 1.0 : 0.0);
    line->setVisible(visible && line->quantity() > 0.0);
    return line;
}

void ZOLWorkbook::generateRebarItems() {
    const CustomItems lines = getRebarSummaryItemsForRebars(
        collect(worksheets_, &ZOLWorksheet::rebarData), summarizeRebar_);
    for (const auto& line : lines)
        updateCustomItem(line);
    hideGeneratedLines(kRebarType, lines);
}

ZOLWorkbook::CustomItems
ZOLWorkbook::getRebarSummaryItemsForRebars(const std::vector<std::shared_ptr<ZOLRebar>>& rebars,
                                           bool visible) {
    CustomItems lines;
    for (int32_t measurement = 0; measurement <= 1; ++measurement) {
        for (int32_t index = 1; index <= 5; ++index) {
            for (const auto& rebar : rebars) {
                if (!rebar || rebar->measurement() != measurement)
                    continue;
                double length = 0.0;
                if (rebar->dowelSize() == index)
                    length += rebar->getDowelLength();
                if (rebar->horizontalSize1() == index)
                    length += rebar->getHorizontalLength1();
                if (rebar->horizontalSize2() == index)
                    length += rebar->getHorizontalLength2();
                if (rebar->verticalSize() == index)
                    length += rebar->getVerticalLength();
                if (!(length > 0.0))
                    continue;
                // The line names the size as the printed rebar page does. A size with no
                // name there still gets its line (" Rebar") rather than the summary dropping
                // linear feet the user entered.
                auto line = generatedLine(
                    "Rebar",
                    ZOLFormat::format("%@ Rebar",
                                      ZOLRebarCalculator::getPrintedRebarSizeNameWithMeasurement(
                                          measurement, index)),
                    "Linear Feet");
                line->setQuantity(length);
                line->setVisible(visible);
                lines.push_back(std::move(line));
            }
        }
    }
    return lines;
}

void ZOLWorkbook::generateConcreteItems() {
    const CustomItems lines = getConcreteSummaryItemsWithConcretes(
        collect(worksheets_, &ZOLWorksheet::concreteData), summarizeConcrete_);
    for (const auto& line : lines)
        updateCustomItem(line);
    hideGeneratedLines(kConcreteType, lines);
}

ZOLWorkbook::CustomItems ZOLWorkbook::getConcreteSummaryItemsWithConcretes(
    const std::vector<std::shared_ptr<ZOLConcrete>>& concretes, bool visible) {
    CustomItems lines;
    for (int32_t measurement = 0; measurement <= 1; ++measurement) {
        double footing = 0.0, wall = 0.0, slab = 0.0, pile = 0.0;
        for (const auto& concrete : concretes) {
            if (!concrete || concrete->measurement() != measurement)
                continue;
            footing += concrete->getFootingVolume();
            wall += concrete->getWallVolume();
            slab += concrete->getSlabVolume();
            pile += concrete->getPileVolume();
        }
        const std::string unit = ZOLConcreteCalculator::getStringForMeasurement(measurement);
        const std::pair<const char*, double> pours[] = {{"Footing Concrete", footing},
                                                        {"Wall Concrete", wall},
                                                        {"Slab Concrete", slab},
                                                        {"Pile Concrete", pile}};
        for (const auto& [name, volume] : pours) {
            if (!(volume > 0.0))
                continue;
            auto line = generatedLine("Concrete", name, unit.c_str());
            line->setQuantity(volume);
            line->setVisible(visible);
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

void ZOLWorkbook::generateTiltItem() {
    updateCustomItem(
        getTiltSummaryItemWithTilts(collect(worksheets_, &ZOLWorksheet::tiltData), summarizeTilt_));
}

std::shared_ptr<ZOLCustomItem>
ZOLWorkbook::getTiltSummaryItemWithTilts(const std::vector<std::shared_ptr<ZOLTilt>>& tilts,
                                         bool visible) {
    auto line = generatedLine("Tilt", "Quarto Tilt Parts", "Parts");
    if (tilts.empty())
        return line;
    double parts = 0.0;
    for (const auto& tilt : tilts) {
        if (tilt)
            parts +=
                static_cast<double>(tilt->getPanels()) + static_cast<double>(tilt->getInserts());
    }
    line->setQuantity(parts);
    line->setVisible(visible && parts > 0.0);
    return line;
}

void ZOLWorkbook::generateManHoursItem() {
    updateCustomItem(getManHourSummaryItemWithManHours(
        collect(worksheets_, &ZOLWorksheet::manHourData), summarizeManHours_));
}

std::shared_ptr<ZOLCustomItem> ZOLWorkbook::getManHourSummaryItemWithManHours(
    const std::vector<std::shared_ptr<ZOLManHours>>& manHours, bool visible) {
    auto line = generatedLine("ManHours", "Total Man Hours", "Hours");
    if (manHours.empty())
        return line;
    double hours = 0.0;
    double weightedCost = 0.0;
    double costSum = 0.0;
    int32_t records = 0;
    for (const auto& record : manHours) {
        if (!record)
            continue;
        const double recordHours = record->getHoursToComplete();
        hours += recordHours;
        weightedCost += record->laborCost() * recordHours;
        costSum += record->laborCost();
        records = ZOLNumeric::wrapAdd(records, 1);
    }
    // The labour rate of the line is the hour-weighted average; when the hours
    // cancel out to nothing the plain average of the sheets' rates stands in.
    double cost = 0.0;
    if (weightedCost == 0.0 || records == 0)
        cost = 0.0;
    else if (hours > 0.0)
        cost = weightedCost / hours;
    else
        cost = costSum / static_cast<double>(records);
    line->setQuantity(hours);
    line->setCost(cost);
    line->setVisible(visible && hours > 0.0);
    return line;
}

void ZOLWorkbook::updateCustomItem(const std::shared_ptr<ZOLCustomItem>& item) {
    if (!item)
        return;
    for (const auto& existing : customItems_) {
        if (existing && existing->tiedToWorkbook() &&
            existing->calculatorType() == item->calculatorType() &&
            existing->name() == item->name()) {
            // The line keeps the unit price the user gave it.
            existing->setQuantity(item->quantity());
            existing->setVisible(item->visible());
            return;
        }
    }
    CustomItems items = customItems_;
    items.push_back(item);
    customItems_ = std::move(items);
}

void ZOLWorkbook::hideGeneratedLines(const std::string& calculatorType,
                                     const CustomItems& generated) {
    for (const auto& existing : customItems_) {
        if (!existing || !existing->tiedToWorkbook() ||
            existing->calculatorType() != calculatorType)
            continue;
        const bool justGenerated =
            std::any_of(generated.begin(), generated.end(),
                        [&](const auto& line) { return line && line->name() == existing->name(); });
        if (justGenerated) {
            existing->setQuantity(0.0);
            existing->setVisible(false);
        }
    }
}

// ---- files ----

std::string ZOLWorkbook::getXMLString() const {
    std::string out;
    // Room for the whole file at once (a worksheet is some 3 KB), so that it is never copied
    // into a larger buffer half-way.
    out.reserve(kXMLBytesPerWorksheet * (worksheets_.size() + 1) +
                ZOLPricing::kXMLBytesPerItem *
                    (pricingData_ ? pricingData_->priceItems().size() : 0));
    ZOLXMLWriter::appendOpenDocument(out, "Workbook");
    out += "\t<Worksheets>\n";
    for (const auto& sheet : worksheets_) {
        if (sheet)
            sheet->appendXML(out);
    }
    out += "\t</Worksheets>\n";
    if (pricingData_)
        pricingData_->appendPartialXML(out);
    std::optional<std::string> date;
    if (projectDate_)
        date = ZOLDateFormat::formatFileDate(*projectDate_);
    ZOLFormat::append(out,
                      "\t<ProjectName>%@</ProjectName>\n"
                          "\t<ClientName>%@</ClientName>\n"
                          "\t<ProjectDate>%@</ProjectDate>\n"
                          "\t<ProjectVersion>%@</ProjectVersion>\n"
                          "\t<DistributorName>%@</DistributorName>\n"
                          "\t<RoundToFullBundles>%@</RoundToFullBundles>\n"
                          "\t<SummarizeWall>%@</SummarizeWall>\n"
                          "\t<SummarizeRebar>%@</SummarizeRebar>\n"
                          "\t<SummarizeConcrete>%@</SummarizeConcrete>\n"
                          "\t<SummarizeTilt>%@</SummarizeTilt>\n"
                          "\t<SummarizeManHours>%@</SummarizeManHours>\n",
                          ZOLXMLWriter::escape(projectName_), ZOLXMLWriter::escape(clientName_),
                          date, ZOLXMLWriter::escape(projectVersion_),
                          ZOLXMLWriter::escape(distributorName_),
                          ZOLText::boolText(roundToFullBundles_), ZOLText::boolText(summarizeWall_),
                          ZOLText::boolText(summarizeRebar_), ZOLText::boolText(summarizeConcrete_),
                          ZOLText::boolText(summarizeTilt_), ZOLText::boolText(summarizeManHours_));
    out += "</Workbook>";
    return out;
}

std::string ZOLWorkbook::getCustomItemTemplateXMLString() const {
    std::string out;
    out.reserve(kXMLBytesPerCustomItem * (customItems_.size() + 1));
    ZOLXMLWriter::appendOpenDocument(out, "CustomItems");
    out += "\t<Items>\n";
    for (const auto& item : customItems_) {
        if (item)
            item->appendXML(out);
    }
    out += "\t</Items>\n</CustomItems>";
    return out;
}
