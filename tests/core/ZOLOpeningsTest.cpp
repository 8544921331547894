// Openings: per-row area, perimeter and buck, the list's totals and its file element.
#include "model/ZOLOpenings.h"
#include "calc/ZOLOpeningsCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {
std::shared_ptr<ZOLOpening> row(int32_t count, double width, double height, bool sill = true) {
    auto opening = std::make_shared<ZOLOpening>();
    opening->setNumberOfOpenings(count);
    opening->setOpeningWidth(width);
    opening->setOpeningHeight(height);
    opening->setUseSill(sill);
    return opening;
}
} // namespace

TEST(ZOLOpenings, RowAreaPerimeterAndBuckAndTheListsTotals) {
    ZOLOpening fresh;
    EXPECT_EQ(fresh.rowNumber() + fresh.numberOfOpenings(), 0);
    EXPECT_TRUE(fresh.useSill());

    // Two 36 by 48 windows: 24 sq ft, 29.34 ft and 29.34 ft of buck on zolest calc wall.
    auto window = row(2, 36, 48);
    EXPECT_DOUBLE_EQ(window->getNetSquareFeet(), 12.0);
    EXPECT_DOUBLE_EQ(window->getNetLinearFeet(), 14.67);
    window->setUseSill(false); // head only
    EXPECT_DOUBLE_EQ(window->getTotalLinearFeetOfBuck(), 2 * 11.67);
    EXPECT_DOUBLE_EQ(window->getTotalLinearFeet(), 29.34);

    for (const auto& none : {row(3, 0, 80), row(0, 36, 48)}) // no width, or none of them
        EXPECT_EQ(none->getTotalSquareFeet() + none->getTotalLinearFeet() +
                      none->getTotalLinearFeetOfBuck(),
                  0.0);
    EXPECT_EQ(ZOLOpeningsCalculator::calculateLFZolBuckWithOpeningHeight(0.0, 36, true), 0.0);

    // The list's totals, and appending.
    ZOLOpenings openings;
    EXPECT_EQ(openings.getTotalSquareFeet() + openings.getTotalLinearFeetOfBuck(), 0.0);
    openings.addOpeningObject(row(2, 36, 48));
    const auto before = openings.openingList();
    openings.addOpeningObject(row(1, 72, 80, false));
    EXPECT_EQ(before.size(), 1u); // an earlier copy of the list is never changed
    ASSERT_EQ(openings.openingList().size(), 2u);
    // The area and buck of these two rows are checked on zolest calc wall.
    EXPECT_DOUBLE_EQ(openings.getTotalLinearFeet(), 29.34 + (2 * 80 / 12.0 + 12 + 0.67));
    openings.clear();
    EXPECT_TRUE(openings.openingList().empty());
}

TEST(ZOLOpenings, FileElementsAndRowCodes) {
    // The empty list's element: the new workbook's file.
    ZOLOpenings openings;
    // Two rows read code by code (24 to 28) as the file reader hands them over.
    const CodeTexts second = {
        {24, " 1 row"}, {25, "1 window"}, {26, "72.5"}, {27, "80in"}, {28, "false"}};
    auto first =
        readRecord<ZOLOpening>({{24, "0"}, {25, "2"}, {26, "36"}, {27, "48"}, {28, "true"}});
    expectOtherCodesIgnored(first, 24, 28);
    openings.setOpeningList({std::make_shared<ZOLOpening>(first),
                             std::make_shared<ZOLOpening>(readRecord<ZOLOpening>(second))});
    const ZOLOpening& read = *openings.openingList()[1];
    EXPECT_EQ(std::tuple(read.rowNumber(), read.numberOfOpenings(), read.openingWidth(),
                         read.openingHeight(), read.useSill()),
              std::tuple(1, 1, 72.5, 80.0, false));

    // An absent text reads as nothing: no openings, no sill.
    ZOLOpening opening;
    opening.setValue(std::string("4"), 25);
    opening.setValue(std::nullopt, 25);
    opening.setValue(std::nullopt, 28);
    EXPECT_EQ(opening.numberOfOpenings(), 0);
    EXPECT_FALSE(opening.useSill());
}
