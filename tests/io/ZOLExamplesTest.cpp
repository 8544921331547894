// The files in examples/ (the sample house, its price list and its job-summary template) and
// the golden files in tests/data/ are exactly what the program writes. Running the tests with
// ZOL_UPDATE_EXAMPLES=1 rewrites them after a deliberate change; review the difference.
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
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
#include "platform/ZOLClock.h"
#include "support/AlertRecorder.h"
#include "support/ScopedTimeZone.h"
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

namespace {

// 2024-03-18 09:30 Central daylight time, when the sample bid was drawn up.
constexpr int64_t kBidDate = 1710772200;
// 2014-05-02 09:30 Central daylight time.
constexpr int64_t kMay2 = 1399041000;

const std::string kExamples = std::string(ZOL_SOURCE_DIR) + "/examples/";
const std::string kData = std::string(ZOL_TEST_DATA) + "/";

class FixedClock {
public:
    explicit FixedClock(int64_t now) {
        ZOLClock::setSource([now] { return now; });
    }
    ~FixedClock() { ZOLClock::setSource({}); }
};

// Compares a file with what the program writes now, or rewrites it when asked to.
void pin(const std::string& path, const std::string& written) {
    const char* update = std::getenv("ZOL_UPDATE_EXAMPLES");
    if (update && std::string(update) == "1")
        TempFolder::write(path, written);
    EXPECT_EQ(firstDifference(TempFolder::contents(path), written), "")
        << path << " is not what the program writes";
}

std::shared_ptr<ZOLOpening> opening(int32_t row, int32_t count, double width, double height,
                                    bool sill) {
    auto o = std::make_shared<ZOLOpening>();
    o->setRowNumber(row);
    o->setNumberOfOpenings(count);
    o->setOpeningWidth(width);
    o->setOpeningHeight(height);
    o->setUseSill(sill);
    return o;
}

// What the openings screen does on "send to wall" and the man-hours screen on "pull wall data".
void finishWorksheet(ZOLWorksheet& sheet) {
    auto wall = sheet.wallData();
    wall->setSqftOpenings(sheet.openingData()->getTotalSquareFeet());
    wall->setLinearFeetBuck(sheet.openingData()->getTotalLinearFeetOfBuck());
    auto labour = sheet.manHourData();
    labour->setSquareFeetOfWall(wall->getGrossSqFtOfWall());
    labour->setCornersAndTs(wall->insideCornerLocations() + wall->outsideCornerLocations() +
                            wall->angleLocations() + wall->tBlockLocations());
    labour->setSquareFeetOfOpenings(wall->sqftOpenings());
    labour->setLinearFeetCorbelCurbTapered(wall->linearFeetCorbel() + wall->linearFeetCurb() +
                                           wall->linearFeetTapered());
    labour->setWallHeight(wall->wallHeight());
    labour->setLaborCost(34.50);
    labour->setCrewSize(4);
}

// Horizontal bars of set 1 and vertical bars, all #4 (stored size 1), laps of 24 inches.
void rebar(ZOLWorksheet& sheet, int32_t rows, int32_t verticalSpacing) {
    auto r = sheet.rebarData();
    r->setWallLength(sheet.wallData()->wallLength());
    r->setWallHeight(sheet.wallData()->wallHeight());
    r->setHorizontalRowCount1(rows);
    r->setHorizontalLap1(24);
    r->setVerticalSpacing(verticalSpacing);
}

void footing(ZOLConcrete& c, int32_t width, double length, int32_t depth) {
    c.setFootingWidth(width);
    c.setFootingLength(length);
    c.setFootingDepth(depth);
}

void slab(ZOLConcrete& c, double length, double width) {
    c.setSlabLength(length);
    c.setSlabWidth(width);
    c.setSlabDepth(4);
}

std::shared_ptr<ZOLWorksheet> basement() {
    auto sheet = std::make_shared<ZOLWorksheet>("Basement");
    auto wall = sheet->wallData();
    wall->setBlockSize(10);
    wall->setWallHeight(9.334);
    wall->setWallLength(168.0);
    wall->setOutsideCornerLocations(6);
    wall->setInsideCornerLocations(2);
    wall->setTBlockLocations(1);
    sheet->openingData()->addOpeningObject(opening(0, 3, 48.0, 48.0, true));  // egress windows
    sheet->openingData()->addOpeningObject(opening(1, 1, 38.0, 82.0, false)); // walk-out door
    rebar(*sheet, 4, 24);
    sheet->rebarData()->setDowelSpacing(24);
    sheet->rebarData()->setDowelLength(36);
    footing(*sheet->concreteData(), 24, 168.0, 10);
    slab(*sheet->concreteData(), 46.0, 34.0);
    finishWorksheet(*sheet);
    return sheet;
}

std::shared_ptr<ZOLWorksheet> mainFloor() {
    auto sheet = std::make_shared<ZOLWorksheet>("Main Floor");
    auto wall = sheet->wallData();
    wall->setBlockSize(6);
    wall->setWallHeight(9.334);
    wall->setWallLength(176.0);
    wall->setOutsideCornerLocations(8);
    wall->setInsideCornerLocations(2);
    wall->setAngleLocations(2); // the bay window
    wall->setTBlockLocations(2);
    wall->setLinearFeetCorbel(52.0); // brick ledge across the front
    wall->setUseHalfBlock(true);
    sheet->openingData()->addOpeningObject(opening(0, 6, 36.0, 60.0, true));
    sheet->openingData()->addOpeningObject(opening(1, 2, 30.0, 48.0, true));
    sheet->openingData()->addOpeningObject(opening(2, 1, 72.0, 82.0, false)); // patio door
    sheet->openingData()->addOpeningObject(opening(3, 1, 38.0, 82.0, false)); // front door
    rebar(*sheet, 4, 32);
    finishWorksheet(*sheet);
    sheet->manHourData()->setRebarComplexity(2);
    sheet->manHourData()->setSiteConditions(3);
    return sheet;
}

std::shared_ptr<ZOLWorksheet> garage() {
    auto sheet = std::make_shared<ZOLWorksheet>("Garage");
    auto wall = sheet->wallData();
    wall->setBlockSize(8);
    wall->setWallHeight(4.0); // frost wall
    wall->setWallLength(68.0);
    wall->setOutsideCornerLocations(2);
    rebar(*sheet, 2, 48);
    auto concrete = sheet->concreteData();
    footing(*concrete, 20, 68.0, 8);
    concrete->setPileDepth(4.0); // porch posts
    concrete->setPileDiameter(12);
    concrete->setPileCount(4);
    slab(*concrete, 24.0, 22.0);
    // The garage's upper walls go up as tilt-up panels.
    sheet->tiltData()->setWallHeight(9.0);
    sheet->tiltData()->setWallLength(68.0);
    finishWorksheet(*sheet);
    return sheet;
}

// Distributor prices per piece (the buck per piece of 4 feet).
ZOLPricing samplePrices() {
    const std::map<std::pair<int32_t, int32_t>, double> blocks = {
        {{4, 0}, 3.95},  {{4, 1}, 2.40},  {{4, 2}, 4.60},  {{4, 3}, 2.85},   {{4, 4}, 5.10},
        {{4, 11}, 1.15}, {{6, 0}, 4.35},  {{6, 1}, 2.65},  {{6, 2}, 5.05},   {{6, 3}, 3.10},
        {{6, 4}, 5.60},  {{6, 7}, 6.90},  {{6, 8}, 7.25},  {{6, 9}, 6.75},   {{6, 10}, 8.40},
        {{6, 11}, 1.35}, {{8, 0}, 4.75},  {{8, 1}, 2.90},  {{8, 2}, 5.50},   {{8, 3}, 3.35},
        {{8, 4}, 6.10},  {{8, 5}, 6.20},  {{8, 6}, 6.95},  {{8, 7}, 7.45},   {{8, 8}, 7.80},
        {{8, 9}, 7.30},  {{8, 11}, 1.55}, {{10, 0}, 5.35}, {{10, 1}, 3.25},  {{10, 2}, 6.15},
        {{10, 3}, 3.75}, {{10, 5}, 6.90}, {{10, 6}, 7.70}, {{10, 11}, 1.75}, {{12, 0}, 5.95},
        {{12, 1}, 3.60}, {{12, 2}, 6.80}, {{12, 3}, 4.15}, {{12, 11}, 1.95}};
    const std::map<int32_t, double> accessories = {
        {12, 0.85}, {13, 0.18}, {14, 1.40}, {15, 12.50}, {16, 0.95}};
    ZOLPricing pricing;
    for (const auto& item : pricing.priceItems()) {
        if (item->partType() >= 12)
            item->setPrice(accessories.at(item->partType()));
        else
            item->setPrice(blocks.at({item->partSize(), item->partType()}));
    }
    return pricing;
}

std::shared_ptr<ZOLWorkbook> sampleHouse() {
    auto workbook = std::make_shared<ZOLWorkbook>();
    workbook->setWorksheets({});
    workbook->addWorksheetsObject(basement());
    workbook->addWorksheetsObject(mainFloor());
    workbook->addWorksheetsObject(garage());
    workbook->setPricingData(std::make_shared<ZOLPricing>(samplePrices()));
    workbook->setProjectName("Lakeview Residence");
    workbook->setClientName("Dana and Luis Moreno");
    workbook->setProjectVersion("Bid 2");
    workbook->setDistributorName("Prairie ICF Supply");
    workbook->setRoundToFullBundles(true);
    return workbook;
}

std::shared_ptr<ZOLCustomItem> userLine(const std::string& name, double quantity,
                                        const std::string& unit, double cost) {
    auto item = std::make_shared<ZOLCustomItem>();
    item->setName(name);
    item->setQuantity(quantity);
    item->setUnit(unit);
    item->setCost(cost);
    return item;
}

// The job summary as the estimator saved it for the next job: the generated lines with the
// unit prices the estimator typed in, and the usual extra lines.
std::string jobSummaryTemplate(ZOLWorkbook workbook) {
    workbook.generateCustomItems();
    const std::map<std::string, double> unitPrices = {
        {"Footing Concrete", 165.00}, {"Wall Concrete", 172.00},   {"Slab Concrete", 158.00},
        {"Pile Concrete", 180.00},    {"Quarto Tilt Parts", 4.25}, {"Total Man Hours", 34.50}};
    auto items = workbook.customItems();
    for (const auto& item : items) {
        const std::string name = item->name().value_or("");
        if (unitPrices.count(name))
            item->setCost(unitPrices.at(name));
        else if (item->calculatorType() == "Rebar")
            item->setCost(0.85);
    }
    items.push_back(userLine("Delivery, flatbed", 2.0, "Each", 185.00));
    items.push_back(userLine("Bracing and scaffold rental", 1.0, "Month", 650.00));
    items.push_back(userLine("Waterproofing membrane", 1568.0, "Square Feet", 1.10));
    items.push_back(userLine("Building permit", 1.0, "Each", 425.00));
    workbook.setCustomItems(items);
    return workbook.getCustomItemTemplateXMLString();
}

} // namespace

TEST(ZOLExamples, TheSampleFilesAreWhatTheProgramWrites) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    FixedClock clock(kBidDate);
    auto house = sampleHouse();
    pin(kExamples + "sample-house.zol", house->getXMLString());
    pin(kExamples + "prices.zp", house->pricingData()->getFullXMLString());
    pin(kExamples + "job-summary.zci", jobSummaryTemplate(*house));
}

TEST(ZOLExamples, ANewWorkbookIsWrittenByteForByte) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    FixedClock clock(kMay2);
    pin(kData + "new-workbook.zol", ZOLWorkbook().getXMLString());
}

TEST(ZOLExamples, TheSampleHouseResavesWithTheChangesOpeningMakes) {
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    FixedClock clock(kBidDate);
    ScopedAlertRecorder alerts;
    const std::string saved = sampleHouse()->getXMLString();
    const auto opened = ZOLWorkbookReader::readWorkbookData(saved);
    ASSERT_TRUE(opened.ok());
    const std::string resaved = opened.workbook->getXMLString();
    pin(kData + "sample-house-resaved.zol", resaved);

    // The differences, and nothing else: the default prices come first, the fields that are
    // never read are back at their defaults.
    std::string expected = saved;
    auto replace = [&expected](const std::string& from, const std::string& to) {
        const auto at = expected.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        expected.replace(at, from.size(), to);
    };
    const ZOLPricing defaults;
    std::string defaultItems;
    for (const auto& item : defaults.priceItems())
        defaultItems += item->getXMLString(3);
    replace("\t\t<PriceItems>\n", "\t\t<PriceItems>\n" + defaultItems);
    replace("<ProjectVersion>Bid 2</ProjectVersion>", "<ProjectVersion></ProjectVersion>");
    replace("<DistributorName>Prairie ICF Supply</DistributorName>",
            "<DistributorName></DistributorName>");
    EXPECT_EQ(firstDifference(expected, resaved), "");
    // Resaving again changes nothing but adds the defaults once more.
    const auto again = ZOLWorkbookReader::readWorkbookData(resaved);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again.workbook->pricingData()->priceItems().size(), 44u * 3);
    EXPECT_TRUE(alerts->alerts.empty());
}
