// The change order between two versions of a job: worksheets matched by name, the inputs that
// differ and exactly their consequences, and the CSV and page forms. The figures against the
// two take-offs, with a price file, and identical jobs are checked on zolest diff.
#include "report/ZOLChangeOrder.h"
#include "model/ZOLWorkbook.h"
#include "report/ZOLChangeOrderFormat.h"
#include "support/AlertRecorder.h"
#include "support/ChangedSample.h"

#include <gtest/gtest.h>

namespace {

using Order = ZOLChangeOrder;

// The change order from the sample house to the same house saved as this text.
Order fromSampleTo(const std::string& newer) {
    return Order(*openedWorkbook(sampleHouseText()), *openedWorkbook(newer));
}

const Order::Worksheet& sheetNamed(const Order& order, const std::string& name) {
    for (const auto& sheet : order.worksheets())
        if (sheet.name == name)
            return sheet;
    throw std::runtime_error("no worksheet " + name);
}

} // namespace

TEST(ZOLChangeOrder, AnEditGivesItsFieldsAndOnlyTheirConsequences) {
    ScopedAlertRecorder alerts;
    const Order order = fromSampleTo(longerBasement(sampleHouseText()));
    EXPECT_FALSE(order.isSame());
    EXPECT_EQ(sheetNamed(order, "Main Floor").status, Order::Status::Same);

    const auto& basement = sheetNamed(order, "Basement");
    EXPECT_EQ(basement.status, Order::Status::Changed);
    ASSERT_EQ(basement.fields.size(), 1u);
    // Its old and new texts, "168.00 ft" and "180.00 ft": see zolest diff's CSV.
    EXPECT_EQ(basement.fields[0].field, "wallLength");
    // Only the wall's own figures move: the rebar, concrete and labour records keep their
    // lengths until the user pulls the wall data into them.
    for (const auto& result : basement.results)
        EXPECT_EQ(result.record, "Wall") << result.name;
    // The part counts, weight and money against the two take-offs: see zolest diff's tests.

    // An added window is a changed row and the wall's openings.
    const Order window = fromSampleTo(basementWindowAdded(sampleHouseText()));
    std::vector<std::string> fields;
    for (const auto& f : sheetNamed(window, "Basement").fields)
        fields.push_back(f.record + " " + f.label + ": " + f.oldValue.value_or("-") + " > " +
                         f.newValue.value_or("-"));
    EXPECT_EQ(fields, (std::vector<std::string>{"Wall Openings: 69.64 sq ft > 85.64 sq ft",
                                                "Wall Zol Buck: 67.51 ft > 84.18 ft",
                                                "Openings Row 1 number: 3 > 4"}));
}

TEST(ZOLChangeOrder, WorksheetsAddedAndRemovedCountFromNothing) {
    ScopedAlertRecorder alerts;
    const Order order =
        fromSampleTo(edited(sampleHouseText(), "", "\"Main Floor\"", "\"Shop, &quot;east&quot;\""));
    ASSERT_EQ(order.worksheets().size(), 4u);
    const auto& added = order.worksheets()[1];
    const auto& removed = order.worksheets()[3];
    EXPECT_EQ(added.status, Order::Status::Added);
    EXPECT_EQ(removed.status, Order::Status::Removed);
    EXPECT_EQ(removed.name, "Main Floor");
    EXPECT_TRUE(added.fields.empty());
    for (const auto& part : added.parts)
        EXPECT_EQ(part.count.oldValue, 0) << part.name;
    for (const auto& part : removed.parts)
        EXPECT_EQ(part.count.newValue, 0) << part.name;
    // Same walls, other names: the totals do not move.
    EXPECT_FALSE(order.weight().differs());
    EXPECT_FALSE(order.money().differs());
}

TEST(ZOLChangeOrderFormat, CsvQuotesAndThePageEscapesWhatTheUserTyped) {
    ScopedAlertRecorder alerts;
    const std::string newer = edited(sampleHouseText(), "", "\"Main Floor\"",
                                     "\"&lt;script&gt;x&lt;/script&gt;, &quot;a&quot;\"");
    const Order order = fromSampleTo(newer);
    const std::string csv = ZOLChangeOrderFormat::getCSV(order);
    EXPECT_NE(csv.find("\r\n\"<script>x</script>, \"\"a\"\"\",added,worksheet,"),
              std::string::npos);
    const std::string html =
        ZOLChangeOrderFormat::getHTML(order, {"a", "b", "c"}, *openedWorkbook(newer), false);
    EXPECT_EQ(html.find("<script>"), std::string::npos);
    EXPECT_NE(html.find("&lt;script&gt;x&lt;/script&gt;, &quot;a&quot;"), std::string::npos);
}
