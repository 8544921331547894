// Opening job-summary templates into the job summary.
#include "io/ZOLTemplateReader.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<ZOLCustomItem> line(const std::string& name, double cost, bool visible = true,
                                    const std::string& type = "") {
    auto item = std::make_shared<ZOLCustomItem>();
    item->setName(name);
    item->setQuantity(2.0);
    item->setCost(cost);
    item->setTiedToWorkbook(!type.empty());
    item->setCalculatorType(type);
    item->setVisible(visible);
    return item;
}

} // namespace

TEST(ZOLTemplateReader, ATemplateReplacesEveryLineAndABrokenOneChangesNothing) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook source;
    source.setCustomItems({line("Zol Blocks Package", 18250.4, true, "Wall"),
                           line("Crane rental", 450.0), line("Site cleanup & haul", 300.0, false)});
    ZOLWorkbook target;
    target.setCustomItems({line("Old line", 1.0)});
    const std::string text = source.getCustomItemTemplateXMLString();
    ASSERT_EQ(ZOLTemplateReader::readTemplateData(text, target), ZOLReadStatus::Read);
    // Every field of every line comes back: see the example template's round trip.
    std::vector<std::string> names;
    for (const auto& item : target.customItems())
        names.push_back(item->name().value_or("(absent)"));
    EXPECT_EQ(names, (std::vector<std::string>{"Zol Blocks Package", "Crane rental",
                                               "Site cleanup & haul"}));
    EXPECT_TRUE(alerts->alerts.empty());

    // A file without custom items leaves no lines; a broken one changes nothing.
    ZOLWorkbook workbook;
    workbook.setCustomItems({line("Crane rental", 450.0)});
    EXPECT_EQ(ZOLTemplateReader::readTemplateData(
                  "<Items><CustomItem><Name>Lost</Name></CustomItem></Items>", workbook),
              ZOLReadStatus::Read);
    EXPECT_TRUE(workbook.customItems().empty());

    workbook.setCustomItems({line("Crane rental", 450.0)});
    source.setCustomItems({line("A", 1), line("B", 1)});
    const std::string two = source.getCustomItemTemplateXMLString();
    const ZOLReadLimits limits{.customItems = 1};
    for (const auto& [bytes, status] : std::vector<std::pair<std::string, ZOLReadStatus>>{
             {two.substr(0, two.size() - 30), ZOLReadStatus::ParseError},
             {two, ZOLReadStatus::ParseError}, // more lines than a job holds
             {std::string("\0\1\2", 3), ZOLReadStatus::Refused}}) {
        EXPECT_EQ(ZOLTemplateReader::readTemplateData(bytes, workbook, limits), status);
        ASSERT_EQ(workbook.customItems().size(), 1u);
        EXPECT_EQ(workbook.customItems()[0]->name(), "Crane rental");
    }
    EXPECT_EQ(alerts->messages(),
              (std::vector<std::string>{
                  "There was an error opening the file.", "There was an error opening the file.",
                  "There was an error opening the file. The file may be corrupted or of the "
                  "wrong format."}));
}
