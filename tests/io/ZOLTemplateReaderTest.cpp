// Opening job-summary templates into the job summary.
#include "io/ZOLTemplateReader.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLWall.h"
#include "model/ZOLWorkbook.h"
#include "model/ZOLWorksheet.h"
#include "support/AlertRecorder.h"

#include <gtest/gtest.h>

namespace {

const std::string kOpenError = "There was an error opening the file.";
const std::string kWrongFormat =
    "There was an error opening the file. The file may be corrupted or of the wrong format.";

std::vector<std::string> messages(AlertRecorder& recorder) {
    std::vector<std::string> list;
    for (const auto& alert : recorder.alerts)
        list.push_back(alert.message);
    return list;
}

std::shared_ptr<ZOLCustomItem> line(const std::string& name, double quantity, double cost,
                                    bool tied, const std::string& type, bool visible) {
    auto item = std::make_shared<ZOLCustomItem>();
    item->setName(name);
    item->setQuantity(quantity);
    item->setUnit("Each");
    item->setCost(cost);
    item->setTiedToWorkbook(tied);
    item->setCalculatorType(type);
    item->setVisible(visible);
    return item;
}

} // namespace

TEST(ZOLTemplateReader, ATemplateReplacesEveryLineGeneratedOnesIncluded) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook source;
    source.setCustomItems({line("Zol Blocks Package", 1.0, 18250.4, true, "Wall", true),
                           line("Crane rental", 2.0, 450.0, false, "", true),
                           line("Site cleanup & haul", 1.0, 300.0, false, "", false)});
    ZOLWorkbook target;
    target.setCustomItems({line("Old line", 1.0, 1.0, false, "", true)});
    // The template is written verbatim, so the ampersand must be escaped by hand to read back.
    std::string text = source.getCustomItemTemplateXMLString();
    text.replace(text.find("& haul"), 1, "&amp;");
    ASSERT_EQ(ZOLTemplateReader::readTemplateData(text, target), ZOLReadStatus::Read);
    const auto& items = target.customItems();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0]->calculatorType(), "Wall");
    EXPECT_TRUE(items[0]->tiedToWorkbook());
    EXPECT_DOUBLE_EQ(items[0]->cost(), 18250.4);
    EXPECT_EQ(items[1]->name(), "Crane rental");
    EXPECT_DOUBLE_EQ(items[1]->quantity(), 2.0);
    EXPECT_EQ(items[2]->name(), "Site cleanup & haul");
    // The last line keeps the "Visible" it was saved with.
    EXPECT_FALSE(items[2]->visible());
    EXPECT_TRUE(items[1]->visible());
    // An empty text is no text at all: the user lines' empty calculator type comes back absent
    // and is saved as "(null)" next time.
    EXPECT_EQ(items[1]->calculatorType(), std::nullopt);
    std::string expected = source.getCustomItemTemplateXMLString();
    for (auto at = expected.find("<CalculatorType></"); at != std::string::npos;
         at = expected.find("<CalculatorType></"))
        expected.insert(at + 16, "(null)");
    EXPECT_EQ(target.getCustomItemTemplateXMLString(), expected);

    // The next regeneration rebuilds the wall line in first place and keeps the user's lines.
    target.worksheets()[0]->wallData()->setWallLength(40.0);
    target.worksheets()[0]->wallData()->setWallHeight(8.0);
    target.generateCustomItems();
    EXPECT_EQ(target.customItems()[0]->name(), "Zol Blocks Package");
    EXPECT_EQ(target.customItems()[1]->name(), "Crane rental");
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLTemplateReader, AFileWithoutCustomItemsLeavesNoLinesAndABrokenOneChangesNothing) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook workbook;
    workbook.setCustomItems({line("Crane rental", 2.0, 450.0, false, "", true)});
    EXPECT_EQ(ZOLTemplateReader::readTemplateData(
                  "<Items><CustomItem><Name>Lost</Name></CustomItem></Items>", workbook),
              ZOLReadStatus::Read);
    EXPECT_TRUE(workbook.customItems().empty());

    workbook.setCustomItems({line("Crane rental", 2.0, 450.0, false, "", true)});
    ZOLWorkbook source;
    source.setCustomItems({line("A", 1, 1, false, "", true), line("B", 1, 1, false, "", true)});
    const std::string text = source.getCustomItemTemplateXMLString();
    EXPECT_EQ(ZOLTemplateReader::readTemplateData(text.substr(0, text.size() - 30), workbook),
              ZOLReadStatus::ParseError);
    ASSERT_EQ(workbook.customItems().size(), 1u);
    EXPECT_EQ(workbook.customItems()[0]->name(), "Crane rental");
    EXPECT_EQ(ZOLTemplateReader::readTemplateData(std::string("\0\1\2", 3), workbook),
              ZOLReadStatus::Refused);
    EXPECT_EQ(workbook.customItems().size(), 1u);
    EXPECT_EQ(messages(*alerts), (std::vector<std::string>{kOpenError, kWrongFormat}));
}

TEST(ZOLTemplateReader, ATemplateWithMoreLinesThanAJobHoldsIsAnOpenError) {
    ScopedAlertRecorder alerts;
    ZOLReadLimits limits;
    limits.customItems = 2;
    ZOLWorkbook workbook;
    EXPECT_EQ(ZOLTemplateReader::readTemplateData(
                  "<CustomItems><CustomItem/><CustomItem/></CustomItems>", workbook, limits),
              ZOLReadStatus::Read);
    EXPECT_EQ(workbook.customItems().size(), 2u);
    EXPECT_EQ(
        ZOLTemplateReader::readTemplateData(
            "<CustomItems><CustomItem/><CustomItem/><CustomItem/></CustomItems>", workbook, limits),
        ZOLReadStatus::ParseError);
    EXPECT_EQ(workbook.customItems().size(), 2u);
    EXPECT_EQ(messages(*alerts), std::vector<std::string>{kOpenError});
}
