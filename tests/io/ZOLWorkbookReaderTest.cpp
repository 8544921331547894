// Opening workbook files: the reading rules, the consequences saved files depend on, and every
// way an open can fail.
#include "io/ZOLWorkbookReader.h"
#include "io/ZOLDateFormat.h"
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

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string kOpenError = "There was an error opening the file.";
const std::string kDuplicate = "A worksheet with that name already exists.";
// The root's end tag applies the code of the last leaf element; a file that ends with a
// switch that is never read leaves the header alone, as saved files do.
const std::string kTail = "\t<SummarizeManHours>true</SummarizeManHours>\n";

std::string file(const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<Workbook xmlns:xsi=\"http://www.w3.org/2001/"
           "XMLSchema-instance\" xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\">\n" +
           body + "</Workbook>";
}

std::string sheet(const std::string& name, const std::string& records) {
    return "\t<Worksheets>\n\t\t<Worksheet Name=\"" + name + "\">\n" + records +
           "\t\t</Worksheet>\n\t</Worksheets>\n";
}

std::shared_ptr<ZOLWorkbook> open(const std::string& bytes) {
    auto result = ZOLWorkbookReader::readWorkbookData(bytes);
    EXPECT_EQ(result.status, ZOLReadStatus::Read);
    return result.workbook;
}

std::vector<std::string> messages(AlertRecorder& recorder) {
    std::vector<std::string> list;
    for (const auto& alert : recorder.alerts) {
        list.push_back(alert.message);
        EXPECT_EQ(alert.buttons, std::vector<std::string>{"OK"});
    }
    return list;
}

class FixedClock {
public:
    explicit FixedClock(int64_t now) {
        ZOLClock::setSource([now] { return now; });
    }
    ~FixedClock() { ZOLClock::setSource({}); }
};

// 2014-05-02 09:30:00 Central daylight time.
constexpr int64_t kMay2 = 1399041000;

} // namespace

// Every field of every record reads back (ZOLExamplesTest saves and reopens a whole house);
// here the three element names that several records share, which the record being read
// resolves, and the opening rows.
TEST(ZOLWorkbookReader, SharedElementNamesGoToTheRecordBeingRead) {
    ScopedAlertRecorder alerts;
    auto record = [](const std::string& name, const std::string& fields) {
        return "<" + name + ">" + fields + "</" + name + ">\n";
    };
    const std::string height = "<WallHeight>%</WallHeight>";
    auto with = [](std::string text, const std::string& value) {
        return text.replace(text.find('%'), 1, value);
    };
    auto workbook = open(file(sheet(
        "Basement",
        record("ConcreteData", "<Measurement>Metric</Measurement><WallLength>96.5</WallLength>" +
                                   with(height, "1.5")) +
            record("OpeningData",
                   "<OpeningList>" +
                       record("Opening",
                              "<NumberOfOpenings>3</NumberOfOpenings>"
                              "<OpeningWidth>36</OpeningWidth><UseSill>false</UseSill>") +
                       record("Opening", "<RowNumber>1</RowNumber>") + "</OpeningList>") +
            record("RebarData", "<WallLength>80</WallLength>" + with(height, "2.5")) +
            record("TiltData", with(height, "3.5") + "<WallLength>40</WallLength>") +
            record("WallData", "<BlockSize>Ten</BlockSize>" + with(height, "4.5") +
                                   "<WallLength>150.25</WallLength>") +
            record("ManHourData", with(height, "5.5") + "<CrewExperience>High</CrewExperience>"))));
    ASSERT_EQ(workbook->worksheets().size(), 1u);
    const auto& basement = *workbook->worksheets()[0];
    EXPECT_EQ(basement.name(), "Basement");
    EXPECT_EQ(basement.concreteData()->measurement(), 1);
    EXPECT_EQ(basement.rebarData()->measurement(), 0);
    EXPECT_DOUBLE_EQ(basement.concreteData()->wallLength(), 96.5);
    EXPECT_DOUBLE_EQ(basement.rebarData()->wallLength(), 80.0);
    EXPECT_DOUBLE_EQ(basement.tiltData()->wallLength(), 40.0);
    EXPECT_DOUBLE_EQ(basement.wallData()->wallLength(), 150.25);
    EXPECT_DOUBLE_EQ(basement.concreteData()->wallHeight(), 1.5);
    EXPECT_DOUBLE_EQ(basement.rebarData()->wallHeight(), 2.5);
    EXPECT_DOUBLE_EQ(basement.tiltData()->wallHeight(), 3.5);
    EXPECT_DOUBLE_EQ(basement.wallData()->wallHeight(), 4.5);
    EXPECT_DOUBLE_EQ(basement.manHourData()->wallHeight(), 5.5);
    EXPECT_EQ(basement.wallData()->blockSize(), 10);
    EXPECT_EQ(basement.manHourData()->crewExperience(), 2);
    const auto& rows = basement.openingData()->openingList();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]->numberOfOpenings(), 3);
    EXPECT_DOUBLE_EQ(rows[0]->openingWidth(), 36.0);
    EXPECT_FALSE(rows[0]->useSill());
    EXPECT_EQ(rows[1]->rowNumber(), 1);
    EXPECT_TRUE(rows[1]->useSill());
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, ReadsTheProjectHeaderButNotTheFieldsItOnlyWrites) {
    ScopedAlertRecorder alerts;
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    ZOLWorkbook saved;
    saved.setProjectName("Lakeview Residence");
    saved.setClientName("R. Okafor");
    saved.setProjectDate(kMay2);
    saved.setProjectVersion("Rev 3");
    saved.setDistributorName("Prairie ICF Supply");
    saved.setRoundToFullBundles(true);
    saved.setSummarizeWall(false);
    saved.setSummarizeRebar(false);
    saved.setSummarizeConcrete(false);
    saved.setSummarizeTilt(false);
    saved.setSummarizeManHours(false);
    auto workbook = open(saved.getXMLString());
    EXPECT_EQ(workbook->projectName(), "Lakeview Residence");
    EXPECT_EQ(workbook->clientName(), "R. Okafor");
    EXPECT_EQ(workbook->projectDate(), std::optional<int64_t>(kMay2));
    EXPECT_TRUE(workbook->roundToFullBundles());
    EXPECT_EQ(workbook->projectVersion(), "");
    EXPECT_EQ(workbook->distributorName(), "");
    EXPECT_TRUE(workbook->summarizeWall() && workbook->summarizeRebar() &&
                workbook->summarizeConcrete() && workbook->summarizeTilt() &&
                workbook->summarizeManHours());
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, AnEmptyProjectDateIsTodayAndAnUnreadableOneIsNoDate) {
    ScopedAlertRecorder alerts;
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    FixedClock clock(kMay2 + 86400);
    EXPECT_EQ(open(file("\t<ProjectDate></ProjectDate>\n"))->projectDate(),
              std::optional<int64_t>(kMay2 + 86400));
    EXPECT_EQ(open(file("\t<ProjectDate>last Tuesday</ProjectDate>\n" + kTail))->projectDate(),
              std::nullopt);
    // Without the element the date is the one the new workbook got: now.
    EXPECT_EQ(open(file(""))->projectDate(), std::optional<int64_t>(kMay2 + 86400));
}

TEST(ZOLWorkbookReader, TheConcreteElementsItDoesNotKnowOverwriteTheConcreteWallHeight) {
    ScopedAlertRecorder alerts;
    auto concrete = [](const std::string& tail) {
        return open(file(sheet("S", "\t\t\t<ConcreteData>\n"
                                    "\t\t\t\t<WallHeight>9.000000</WallHeight>\n" +
                                        tail + "\t\t\t</ConcreteData>\n")))
            ->worksheets()[0]
            ->concreteData();
    };
    auto both = concrete("\t\t\t\t<RemoveSqFtOpenings>true</RemoveSqFtOpenings>\n"
                         "\t\t\t\t<SqFtOpenings>42.500000</SqFtOpenings>\n");
    EXPECT_DOUBLE_EQ(both->wallHeight(), 42.5);
    const ZOLConcrete fresh;
    EXPECT_EQ(both->removeSqFtOpenings(), fresh.removeSqFtOpenings());
    EXPECT_DOUBLE_EQ(both->sqFtOpenings(), fresh.sqFtOpenings());
    // "true" read as a number is 0.0.
    EXPECT_DOUBLE_EQ(
        concrete("\t\t\t\t<RemoveSqFtOpenings>true</RemoveSqFtOpenings>\n")->wallHeight(), 0.0);
    EXPECT_DOUBLE_EQ(concrete("")->wallHeight(), 9.0);
}

TEST(ZOLWorkbookReader, ThePropertyCodeCarriesOverToUnknownAndContainerEndTags) {
    ScopedAlertRecorder alerts;
    auto wall = open(file(sheet("S", "\t\t\t<WallData>\n"
                                     "\t\t\t\t<WallLength>100.000000</WallLength>\n"
                                     "\t\t\t\t<Colour>120</Colour>\n"
                                     "\t\t\t</WallData>\n")))
                    ->worksheets()[0]
                    ->wallData();
    EXPECT_DOUBLE_EQ(wall->wallLength(), 120.0);
    // A leaf element of another record sets a code that the current record ignores.
    auto rebar = open(file(sheet("S", "\t\t\t<RebarData>\n"
                                      "\t\t\t\t<CrewSize>7</CrewSize>\n"
                                      "\t\t\t\t<DowelSize>3</DowelSize>\n"
                                      "\t\t\t</RebarData>\n")))
                     ->worksheets()[0]
                     ->rebarData();
    EXPECT_EQ(rebar->dowelSize(), 3);
    // "Measurement" outside a concrete or rebar record leaves the code as it was: here the
    // tilt-up wall height's, so the metric text lands there (as 0.0).
    auto tilt = open(file(sheet("S", "\t\t\t<TiltData>\n"
                                     "\t\t\t\t<WallHeight>12.000000</WallHeight>\n"
                                     "\t\t\t\t<Measurement>Metric</Measurement>\n"
                                     "\t\t\t</TiltData>\n")))
                    ->worksheets()[0]
                    ->tiltData();
    EXPECT_DOUBLE_EQ(tilt->wallHeight(), 0.0);
    // The code starts at the project name's: text in an unknown element before any leaf.
    EXPECT_EQ(open(file("\t<Note>hello</Note>\n" + kTail))->projectName(), "hello");
    // The root's end tag applies the last code too: an older file that ends with its project
    // name loses it, since nothing is gathered between the last end tag and the root's.
    EXPECT_EQ(open(file("\t<ProjectName>Garage</ProjectName>\n"))->projectName(), "");
    EXPECT_EQ(open(file("\t<ProjectName>Garage</ProjectName>\n"
                        "\t<RoundToFullBundles>false</RoundToFullBundles>\n"))
                  ->projectName(),
              "Garage");
}

TEST(ZOLWorkbookReader, GathersTextTheWayTheFilesHaveAlwaysBeenRead) {
    ScopedAlertRecorder alerts;
    auto name = [](const std::string& element) {
        return open(file("\t<ProjectName>" + element +
                         "</ProjectName>\n"
                         "\t<ClientName>c</ClientName>\n"))
            ->projectName();
    };
    EXPECT_EQ(name("Smith &amp; Sons"), "Smith & Sons");
    EXPECT_EQ(name("two\nlines"), "two\nlines");
    EXPECT_EQ(name("\nstarts with a line break"), "");
    EXPECT_EQ(name("  padded  "), "  padded  ");
    EXPECT_EQ(name(""), "");
    EXPECT_EQ(name("Caf\xC3\xA9 Ol\xC3\xA9"), "Caf\xC3\xA9 Ol\xC3\xA9");
    EXPECT_EQ(name("<![CDATA[hidden]]>"), "");
    // Ignorable whitespace is taken only as a single blank added to text already gathered.
    ZOLWorkbookReader reader;
    reader.startElement("Workbook", {});
    reader.startElement("ProjectName", {});
    reader.ignorableWhitespace(" ");
    reader.characters("A");
    reader.ignorableWhitespace("  ");
    reader.ignorableWhitespace("\t");
    reader.ignorableWhitespace(" ");
    reader.characters("B");
    reader.endElement("ProjectName");
    reader.startElement("ClientName", {});
    reader.endElement("ClientName");
    reader.endElement("Workbook");
    reader.endDocument();
    EXPECT_EQ(reader.loadedWorkbook()->projectName(), "A B");
    EXPECT_EQ(reader.loadedWorkbook()->clientName(), "");
}

TEST(ZOLWorkbookReader, LoadedPricesComeAfterTheDefaultsWhichWinEveryLookUp) {
    ScopedAlertRecorder alerts;
    auto workbook = open(file("\t<PricingData>\n\t\t<PriceItems>\n"
                              "\t\t\t<PriceItem>\n"
                              "\t\t\t\t<PartSize>Eight</PartSize>\n"
                              "\t\t\t\t<PartType>Straight</PartType>\n"
                              "\t\t\t\t<Price>4.75</Price>\n"
                              "\t\t\t</PriceItem>\n"
                              "\t\t</PriceItems>\n\t</PricingData>\n"));
    const auto& items = workbook->pricingData()->priceItems();
    const ZOLPricing defaults;
    ASSERT_EQ(items.size(), defaults.priceItems().size() + 1);
    EXPECT_EQ(items.back()->partSize(), 8);
    EXPECT_DOUBLE_EQ(items.back()->price(), 4.75);
    EXPECT_DOUBLE_EQ(workbook->pricingData()->getPriceForItemType(0, 8), 0.0);
    // The next save writes the defaults first.
    EXPECT_EQ(workbook->pricingData()->getPartialXMLString().find("<Price>4.75</Price>"),
              workbook->pricingData()->getPartialXMLString().rfind("<Price>"));
}

TEST(ZOLWorkbookReader, RatingMeasurementAndSizeTextsItDoesNotKnowChangeNothing) {
    ScopedAlertRecorder alerts;
    auto read = open(file(sheet("S", "\t\t\t<ConcreteData>\n"
                                     "\t\t\t\t<Measurement>Furlongs</Measurement>\n"
                                     "\t\t\t</ConcreteData>\n"
                                     "\t\t\t<ManHourData>\n"
                                     "\t\t\t\t<RebarComplexity>(null)</RebarComplexity>\n"
                                     "\t\t\t\t<CrewExperience>Expert</CrewExperience>\n"
                                     "\t\t\t\t<SiteConditions>Ideal</SiteConditions>\n"
                                     "\t\t\t</ManHourData>\n")));
    const ZOLConcrete concrete;
    const ZOLManHours manHours;
    const auto& s = *read->worksheets()[0];
    EXPECT_EQ(s.concreteData()->measurement(), concrete.measurement());
    EXPECT_EQ(s.manHourData()->rebarComplexity(), manHours.rebarComplexity());
    EXPECT_EQ(s.manHourData()->crewExperience(), manHours.crewExperience());
    EXPECT_EQ(s.manHourData()->siteConditions(), 3);
}

TEST(ZOLWorkbookReader, FieldsWithoutAnElementAreNotKept) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook original;
    original.setNotes("Pour the footing before the 15th.");
    auto line = std::make_shared<ZOLCustomItem>();
    line->setName("Crane rental");
    original.setCustomItems({line});
    original.worksheets()[0]->wallData()->setWastePercentage(7.5);
    auto read = open(original.getXMLString());
    EXPECT_EQ(read->notes(), "");
    EXPECT_TRUE(read->customItems().empty());
    EXPECT_DOUBLE_EQ(read->worksheets()[0]->wallData()->wastePercentage(),
                     ZOLWall().wastePercentage());
}

// Every way an open can end other than in a clean read.
TEST(ZOLWorkbookReader, AFileThatIsNotWellFormedFailsWithTheOpenAlert) {
    for (const std::string& bytes : {
             file("\t<ProjectName>Smith & Sons</ProjectName>\n"),
             file("\t<ProjectName>a < b</ProjectName>\n"),
             file(sheet("The \"Big\" House", "")),
             file("\t<Worksheets>\n"),
             std::string("<?xml version=\"1.0\"?>\n<Workbook>\n\t<Works"),
         }) {
        ScopedAlertRecorder alerts;
        const auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        EXPECT_EQ(result.status, ZOLReadStatus::ParseError) << bytes;
        EXPECT_FALSE(result.workbook);
        EXPECT_EQ(messages(*alerts), std::vector<std::string>{kOpenError}) << bytes;
    }
}

TEST(ZOLWorkbookReader, WellFormedXMLWithoutAWorkbookOpensANewWorkbookAfterTheAlert) {
    ScopedAlertRecorder alerts;
    const auto result = ZOLWorkbookReader::readWorkbookData("<?xml version=\"1.0\"?>\n<Pricing/>");
    ASSERT_EQ(result.status, ZOLReadStatus::Read);
    EXPECT_EQ(messages(*alerts), std::vector<std::string>{kOpenError});
    ASSERT_EQ(result.workbook->worksheets().size(), 1u);
    EXPECT_EQ(result.workbook->worksheets()[0]->name(), "Worksheet 1");
    EXPECT_EQ(result.workbook->pricingData()->priceItems().size(), 44u);
}

TEST(ZOLWorkbookReader, ARepeatedWorksheetNameIsDroppedWithTheModelsAlert) {
    ScopedAlertRecorder alerts;
    auto workbook = open(file("\t<Worksheets>\n"
                              "\t\t<Worksheet Name=\"Garage\">\n"
                              "\t\t\t<WallData><WallLength>1</WallLength></WallData>\n"
                              "\t\t</Worksheet>\n"
                              "\t\t<Worksheet Name=\"Garage\">\n"
                              "\t\t\t<WallData><WallLength>2</WallLength></WallData>\n"
                              "\t\t</Worksheet>\n"
                              "\t\t<Worksheet>\n\t\t</Worksheet>\n"
                              "\t\t<Worksheet>\n\t\t</Worksheet>\n"
                              "\t\t<Worksheet Name=\"garage\">\n\t\t</Worksheet>\n"
                              "\t</Worksheets>\n"));
    EXPECT_EQ(messages(*alerts), (std::vector<std::string>{kDuplicate, kDuplicate}));
    ASSERT_EQ(workbook->worksheets().size(), 3u);
    EXPECT_EQ(workbook->worksheets()[0]->name(), "Garage");
    EXPECT_DOUBLE_EQ(workbook->worksheets()[0]->wallData()->wallLength(), 1.0);
    // A worksheet without a name attribute is "Worksheet 1".
    EXPECT_EQ(workbook->worksheets()[1]->name(), "Worksheet 1");
    EXPECT_EQ(workbook->worksheets()[2]->name(), "garage");
}

TEST(ZOLWorkbookReader, MissingAndUnknownElementsLeaveTheDefaults) {
    ScopedAlertRecorder alerts;
    auto workbook = open(file("\t<Extras><Colour>blue</Colour></Extras>\n" +
                              sheet("Only a name", "\t\t\t<Drawing>x</Drawing>\n")));
    const auto& s = *workbook->worksheets()[0];
    const ZOLWorksheet fresh;
    EXPECT_EQ(s.wallData()->getXMLString(), fresh.wallData()->getXMLString());
    EXPECT_EQ(s.concreteData()->getXMLString(), fresh.concreteData()->getXMLString());
    EXPECT_EQ(s.rebarData()->getXMLString(), fresh.rebarData()->getXMLString());
    EXPECT_EQ(s.tiltData()->getXMLString(), fresh.tiltData()->getXMLString());
    EXPECT_EQ(s.manHourData()->getXMLString(), fresh.manHourData()->getXMLString());
    EXPECT_TRUE(s.openingData()->openingList().empty());
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, BytesThatAreNotTextAreRefusedBeforeParsing) {
    ScopedAlertRecorder alerts;
    for (const std::string& bytes :
         {std::string(), std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
          std::string("<Workbook>\0</Workbook>", 22)}) {
        const auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        EXPECT_EQ(result.status, ZOLReadStatus::Refused);
        EXPECT_FALSE(result.workbook);
    }
    // The application reports these with the system's own read error, not an alert.
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, StructuralOdditiesNeverLeaveAWorksheetWithoutARecord) {
    ScopedAlertRecorder alerts;
    // Records outside a worksheet, a repeated end tag for a record, nested workbooks.
    auto workbook = open(file("\t<WallData><WallLength>5</WallLength></WallData>\n"
                              "\t<Opening><RowNumber>4</RowNumber></Opening>\n"
                              "\t<PriceItem><Price>9</Price></PriceItem>\n" +
                              sheet("S", "\t\t\t<WallData>\n"
                                         "\t\t\t\t<WallData><WallLength>7</WallLength>"
                                         "</WallData>\n"
                                         "\t\t\t</WallData>\n")));
    ASSERT_EQ(workbook->worksheets().size(), 1u);
    ASSERT_TRUE(workbook->worksheets()[0]->wallData());
    EXPECT_DOUBLE_EQ(workbook->worksheets()[0]->wallData()->wallLength(), 7.0);
    // A price item outside "PricingData" still goes to the workbook's (default) list; a second
    // "PricingData" starts a fresh default list.
    EXPECT_EQ(workbook->pricingData()->priceItems().size(), 45u);
    auto twice = open(file("\t<PricingData><PriceItems><PriceItem/></PriceItems></PricingData>\n"
                           "\t<PricingData></PricingData>\n"));
    EXPECT_EQ(twice->pricingData()->priceItems().size(), 44u);
}

TEST(ZOLWorkbookReader, AFileBeyondWhatAJobHoldsIsReportedAsAnOpenError) {
    ScopedAlertRecorder alerts;
    ZOLReadLimits limits;
    limits.worksheets = 3;
    limits.openingsPerWorksheet = 2;
    limits.priceItems = 46;
    auto repeat = [](int count, const std::string& element) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += element;
        return text;
    };
    auto sheets = [&](int count) {
        std::string xml = "<Workbook><Worksheets>";
        for (int i = 0; i < count; ++i)
            xml += "<Worksheet Name=\"" + std::to_string(i) + "\"/>";
        return xml + "</Worksheets></Workbook>";
    };
    auto openings = [&](int count) {
        return "<Workbook><Worksheets><Worksheet><OpeningData><OpeningList>" +
               repeat(count, "<Opening/>") +
               "</OpeningList></OpeningData></Worksheet></Worksheets></Workbook>";
    };
    auto prices = [&](int count) {
        return "<Workbook><PricingData><PriceItems>" + repeat(count, "<PriceItem/>") +
               "</PriceItems></PricingData></Workbook>";
    };
    // Up to each limit the file opens; one more and it does not.
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(sheets(3), limits).status, ZOLReadStatus::Read);
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(openings(2), limits).status, ZOLReadStatus::Read);
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(prices(2), limits).status, ZOLReadStatus::Read);
    EXPECT_TRUE(alerts->alerts.empty());
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(sheets(4), limits).status,
              ZOLReadStatus::ParseError);
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(openings(3), limits).status,
              ZOLReadStatus::ParseError);
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(prices(3), limits).status,
              ZOLReadStatus::ParseError);
    // Objects of any kind: three worksheets of seven objects each, plus the workbook and its
    // 44 default prices, are 66.
    ZOLReadLimits objects;
    objects.objects = 66;
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(sheets(3), objects).status, ZOLReadStatus::Read);
    EXPECT_EQ(ZOLWorkbookReader::readWorkbookData(
                  "<Workbook><WallData/>" + sheets(3) + "</Workbook>", objects)
                  .status,
              ZOLReadStatus::ParseError);
    EXPECT_EQ(messages(*alerts), std::vector<std::string>(4, kOpenError));

    // The everyday limits leave room for the largest jobs.
    const ZOLReadLimits everyday;
    EXPECT_GE(everyday.worksheets, 1000);
    EXPECT_GE(everyday.openingsPerWorksheet, 500);
    EXPECT_GE(everyday.objects, 7 * everyday.worksheets + 100000);
}
