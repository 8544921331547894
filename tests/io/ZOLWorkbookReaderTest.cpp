// Opening workbook files: the reading rules, the consequences saved files depend on, and every
// way an open can fail. (ZOLExamplesTest reopens a whole house, every field of every record.)
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "support/AlertRecorder.h"
#include "support/ChangedSample.h"
#include "support/ScopedClock.h"
#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Messages = std::vector<std::string>;
const std::string kOpenError = "There was an error opening the file.";
const std::string kDuplicate = "A worksheet with that name already exists.";
// The root's end tag applies the code of the last leaf element; a file that ends with a
// switch that is never read leaves the header alone, as saved files do.
const std::string kTail = "\t<SummarizeManHours>true</SummarizeManHours>\n";
constexpr int64_t kMay2 = 1399041000; // 2014-05-02 09:30:00 Central daylight time

std::string file(const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<Workbook xmlns:xsi=\"http://www.w3.org/2001/"
           "XMLSchema-instance\" xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\">\n" +
           body + "</Workbook>";
}

std::string sheet(const std::string& name, const std::string& records) {
    return "\t<Worksheets>\n\t\t<Worksheet Name=\"" + name + "\">\n" + records +
           "\t\t</Worksheet>\n\t</Worksheets>\n";
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">\n";
}

std::shared_ptr<ZOLWorkbook> open(const std::string& bytes) {
    return openedWorkbook(bytes);
}

// The first worksheet of a file holding one record element with these fields.
std::shared_ptr<ZOLWorksheet> openRecord(const std::string& record, const std::string& fields) {
    return open(file(sheet("S", element(record, fields))))->worksheets()[0];
}

} // namespace

TEST(ZOLWorkbookReader, SharedElementNamesGoToTheRecordBeingRead) {
    ScopedAlertRecorder alerts;
    const auto s =
        open(file(sheet(
                 "Basement",
                 "<ConcreteData><Measurement>Metric</Measurement><WallLength>96.5</WallLength>"
                 "<WallHeight>1.5</WallHeight></ConcreteData>"
                 "<RebarData><WallLength>80</WallLength><WallHeight>2.5</WallHeight></RebarData>"
                 "<TiltData><WallHeight>3.5</WallHeight><WallLength>40</WallLength></TiltData>"
                 "<WallData><WallHeight>4.5</WallHeight><WallLength>150.25</WallLength>"
                 "</WallData><ManHourData><WallHeight>5.5</WallHeight></ManHourData>\n")))
            ->worksheets()
            .at(0);
    EXPECT_EQ(s->name(), "Basement");
    EXPECT_EQ(s->concreteData()->measurement(), 1);
    EXPECT_EQ(s->rebarData()->measurement(), 0);
    EXPECT_EQ((std::vector<double>{s->concreteData()->wallLength(), s->rebarData()->wallLength(),
                                   s->tiltData()->wallLength(), s->wallData()->wallLength()}),
              (std::vector<double>{96.5, 80.0, 40.0, 150.25}));
    EXPECT_EQ((std::vector<double>{s->concreteData()->wallHeight(), s->rebarData()->wallHeight(),
                                   s->tiltData()->wallHeight(), s->wallData()->wallHeight(),
                                   s->manHourData()->wallHeight()}),
              (std::vector<double>{1.5, 2.5, 3.5, 4.5, 5.5}));
    EXPECT_TRUE(alerts->alerts.empty());
}

// The project header that is read back, and the version and distributor that are not, are
// checked on the sample house (ZOLExamplesTest).
TEST(ZOLWorkbookReader, TheSwitchesAreNotReadAndFieldsWithoutAnElementAreNotKept) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook saved;
    saved.setSummarizeWall(false);
    saved.setSummarizeRebar(false);
    saved.setSummarizeConcrete(false);
    saved.setSummarizeTilt(false);
    saved.setSummarizeManHours(false);
    saved.setNotes("Pour the footing before the 15th.");
    saved.setCustomItems({std::make_shared<ZOLCustomItem>()});
    saved.worksheets()[0]->wallData()->setWastePercentage(7.5);
    auto workbook = open(saved.getXMLString());
    EXPECT_TRUE(workbook->summarizeWall() && workbook->summarizeRebar() &&
                workbook->summarizeConcrete() && workbook->summarizeTilt() &&
                workbook->summarizeManHours());
    EXPECT_EQ(workbook->notes(), "");
    EXPECT_TRUE(workbook->customItems().empty());
    EXPECT_DOUBLE_EQ(workbook->worksheets()[0]->wallData()->wastePercentage(),
                     ZOLWall().wastePercentage());

    // An empty date is today, an unreadable one no date, a missing one the new workbook's: now.
    ScopedTimeZone zone(ScopedTimeZone::kCentral);
    ScopedClock clock(kMay2);
    EXPECT_EQ(open(file("\t<ProjectDate></ProjectDate>\n"))->projectDate(), kMay2);
    EXPECT_EQ(open(file("\t<ProjectDate>last Tuesday</ProjectDate>\n" + kTail))->projectDate(),
              std::nullopt);
    EXPECT_EQ(open(file(""))->projectDate(), kMay2);
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, ThePropertyCodeCarriesOverToElementsItDoesNotKnowAndToEndTags) {
    // The concrete elements it does not know overwrite the concrete wall height.
    ScopedAlertRecorder alerts;
    auto concrete = [](const std::string& tail) {
        return openRecord("ConcreteData", "<WallHeight>9.000000</WallHeight>\n" + tail)
            ->concreteData();
    };
    auto both = concrete("<RemoveSqFtOpenings>true</RemoveSqFtOpenings>\n"
                         "<SqFtOpenings>42.500000</SqFtOpenings>\n");
    EXPECT_DOUBLE_EQ(both->wallHeight(), 42.5);
    const ZOLConcrete fresh;
    EXPECT_EQ(both->removeSqFtOpenings(), fresh.removeSqFtOpenings());
    EXPECT_DOUBLE_EQ(both->sqFtOpenings(), fresh.sqFtOpenings());
    // "true" read as a number is 0.0.
    EXPECT_DOUBLE_EQ(concrete("<RemoveSqFtOpenings>true</RemoveSqFtOpenings>")->wallHeight(), 0.0);
    EXPECT_DOUBLE_EQ(concrete("")->wallHeight(), 9.0);

    // The property code carries over to unknown and container end tags.
    EXPECT_DOUBLE_EQ(openRecord("WallData", "<WallLength>100</WallLength><Colour>120</Colour>")
                         ->wallData()
                         ->wallLength(),
                     120.0);
    // A leaf element of another record sets a code that the current record ignores.
    EXPECT_EQ(openRecord("RebarData", "<CrewSize>7</CrewSize><DowelSize>3</DowelSize>")
                  ->rebarData()
                  ->dowelSize(),
              3);
    // Texts it does not know change nothing, and missing elements keep their defaults. (The
    // loaded prices behind the defaults, which win every look-up: see ZOLSaving and the sample
    // house.)
    auto unknown =
        open(file("\t<Extras><Colour>blue</Colour></Extras>\n" +
                  sheet("S", element("ConcreteData", "<Measurement>Furlongs"
                                                     "</Measurement>") +
                                 element("ManHourData", "<RebarComplexity>(null)</RebarComplexity>"
                                                        "<CrewExperience>Expert</CrewExperience>"
                                                        "<SiteConditions>Ideal</SiteConditions>") +
                                 "<Drawing>x</Drawing>\n")));
    ZOLWorksheet expected("S");
    expected.manHourData()->setSiteConditions(3);
    EXPECT_EQ(unknown->worksheets()[0]->getXMLString(), expected.getXMLString());
    // "Measurement" outside a concrete or rebar record leaves the code as it was: here the
    // tilt-up wall height's, so the metric text lands there (as 0.0).
    EXPECT_DOUBLE_EQ(openRecord("TiltData", "<WallHeight>12</WallHeight>"
                                            "<Measurement>Metric</Measurement>")
                         ->tiltData()
                         ->wallHeight(),
                     0.0);
    // The code starts at the project name's: text in an unknown element before any leaf.
    EXPECT_EQ(open(file("\t<Note>hello</Note>\n" + kTail))->projectName(), "hello");
    // The root's end tag applies the last code too: an older file that ends with its project
    // name loses it, since nothing is gathered between the last end tag and the root's.
    EXPECT_EQ(open(file("\t<ProjectName>Garage</ProjectName>\n"))->projectName(), "");
    EXPECT_EQ(open(file("\t<ProjectName>Garage</ProjectName>\n"
                        "\t<RoundToFullBundles>false</RoundToFullBundles>\n"))
                  ->projectName(),
              "Garage");
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLWorkbookReader, GathersTextTheWayTheFilesHaveAlwaysBeenRead) {
    ScopedAlertRecorder alerts;
    for (const auto& [text, name] :
         std::vector<std::pair<std::string, std::string>>{{"Smith &amp; Sons", "Smith & Sons"},
                                                          {"two\nlines", "two\nlines"},
                                                          {"\nstarts with a line break", ""},
                                                          {"  padded  ", "  padded  "},
                                                          {"Caf\xC3\xA9", "Caf\xC3\xA9"},
                                                          {"<![CDATA[hidden]]>", ""}})
        EXPECT_EQ(open(file(element("ProjectName", text) + kTail))->projectName(), name) << text;
    // Ignorable whitespace is taken only as a single blank added to text already gathered.
    ZOLWorkbookReader reader;
    reader.startElement("Workbook", {});
    reader.startElement("ProjectName", {});
    reader.ignorableWhitespace(" ");
    reader.characters("A");
    for (const char* blank : {"  ", "\t", " "})
        reader.ignorableWhitespace(blank);
    reader.characters("B");
    reader.endElement("ProjectName");
    reader.endDocument();
    EXPECT_EQ(reader.loadedWorkbook()->projectName(), "A B");
}

// Every way an open can end other than in a clean read.
// A file that is not well formed fails with the open alert; well-formed XML without a workbook
// opens a new workbook after the alert. A file cut short, raw ampersands and bytes that are no
// text: see where the readers say a file went wrong, and zolest's file commands.
TEST(ZOLWorkbookReader, AnOpenThatIsNotACleanReadAlertsOrRefuses) {
    for (const std::string& bytes : {
             file("\t<ProjectName>a < b</ProjectName>\n"),
             file(sheet("The \"Big\" House", "")),
             file("\t<Worksheets>\n"),
         }) {
        ScopedAlertRecorder alerts;
        const auto result = ZOLWorkbookReader::readWorkbookData(bytes);
        EXPECT_EQ(result.status, ZOLReadStatus::ParseError) << bytes;
        EXPECT_FALSE(result.workbook);
        EXPECT_EQ(alerts->messages(), Messages{kOpenError}) << bytes;
        EXPECT_EQ(alerts->alerts.at(0).buttons, Messages{"OK"});
    }
    ScopedAlertRecorder alerts;
    const auto result = ZOLWorkbookReader::readWorkbookData("<?xml version=\"1.0\"?>\n<Pricing/>");
    ASSERT_EQ(result.status, ZOLReadStatus::Read);
    EXPECT_TRUE(result.noWorkbookElement);
    EXPECT_EQ(alerts->messages(), Messages{kOpenError});
    ASSERT_EQ(result.workbook->worksheets().size(), 1u);
    EXPECT_EQ(result.workbook->worksheets()[0]->name(), "Worksheet 1");
    EXPECT_EQ(result.workbook->pricingData()->priceItems().size(), 44u);
    // A workbook without worksheets gets the default one, without an alert.
    EXPECT_EQ(open("<Workbook/>")->worksheets().at(0)->name(), "Worksheet 1");
    EXPECT_EQ(alerts->alerts.size(), 1u);
}

// A repeated worksheet name is dropped with the model's alert.
TEST(ZOLWorkbookReader, WorksheetsAndRecordsInOddPlacesOpenAsTheApplicationAlwaysHasOpenedThem) {
    ScopedAlertRecorder alerts;
    auto workbook = open(file("<Worksheets><Worksheet Name=\"Garage\"><WallData><WallLength>1"
                              "</WallLength></WallData></Worksheet><Worksheet Name=\"Garage\">"
                              "<WallData><WallLength>2</WallLength></WallData></Worksheet>"
                              "<Worksheet/><Worksheet/><Worksheet Name=\"garage\"/></Worksheets>"));
    EXPECT_EQ(alerts->messages(), (Messages{kDuplicate, kDuplicate}));
    ASSERT_EQ(workbook->worksheets().size(), 3u);
    EXPECT_EQ(workbook->worksheets()[0]->name(), "Garage");
    EXPECT_DOUBLE_EQ(workbook->worksheets()[0]->wallData()->wallLength(), 1.0);
    // A worksheet without a name attribute is "Worksheet 1".
    EXPECT_EQ(workbook->worksheets()[1]->name(), "Worksheet 1");
    EXPECT_EQ(workbook->worksheets()[2]->name(), "garage");

    // Records outside a worksheet, a record nested in itself: structural oddities never leave a
    // worksheet without a record.
    workbook = open(file("\t<WallData><WallLength>5</WallLength></WallData>\n"
                         "\t<Opening><RowNumber>4</RowNumber></Opening>\n"
                         "\t<PriceItem><Price>9</Price></PriceItem>\n" +
                         sheet("S", element("WallData", element("WallData", "<WallLength>7"
                                                                            "</WallLength>")))));
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
    const ZOLReadLimits limits{.worksheets = 3, .openingsPerWorksheet = 2, .priceItems = 46};
    // Three worksheets of seven objects, the workbook and 44 prices.
    const ZOLReadLimits objects{.objects = 66};
    auto repeat = [](int count, const std::string& text) {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += text;
        return all;
    };
    auto sheets = [](int count) {
        std::string xml = "<Worksheets>";
        for (int i = 0; i < count; ++i)
            xml += "<Worksheet Name=\"" + std::to_string(i) + "\"/>";
        return xml + "</Worksheets>";
    };
    auto status = [](const std::string& body, const ZOLReadLimits& within) {
        return ZOLWorkbookReader::readWorkbookData("<Workbook>" + body + "</Workbook>", within)
            .status;
    };
    // Up to each limit the file opens; one more and it does not.
    for (int extra : {0, 1}) {
        const auto expected = extra ? ZOLReadStatus::ParseError : ZOLReadStatus::Read;
        EXPECT_EQ(status(sheets(3 + extra), limits), expected);
        EXPECT_EQ(status("<Worksheets><Worksheet><OpeningData><OpeningList>" +
                             repeat(2 + extra, "<Opening/>") +
                             "</OpeningList></OpeningData></Worksheet></Worksheets>",
                         limits),
                  expected);
        EXPECT_EQ(status("<PricingData><PriceItems>" + repeat(2 + extra, "<PriceItem/>") +
                             "</PriceItems></PricingData>",
                         limits),
                  expected);
        EXPECT_EQ(status(repeat(extra, "<WallData/>") + sheets(3), objects), expected);
    }
    EXPECT_EQ(alerts->messages(), Messages(4, kOpenError));
}
