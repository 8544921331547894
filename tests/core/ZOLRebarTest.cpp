// The rebar record and its calculator: the three lengths of steel with their whole-foot
// truncation, the two size lists, and the record's element of the workbook file.
#include "model/ZOLRebar.h"
#include "calc/ZOLRebarCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
using Calc = ZOLRebarCalculator;

// The filled record as the file reader builds it, code by code.
const CodeTexts kFilled = {{29, "Metric"}, {30, "123.5"}, {31, "2"},  {32, "3"},     {33, "30"},
                           {34, "3"},      {35, "2"},     {36, "-7"}, {37, "9.334"}, {38, "4"},
                           {39, "16"},     {40, "5"},     {41, "24"}, {42, "36"}};
} // namespace

// Laps, spacings and dowel lengths are whole feet truncated toward zero; a wall is laid 20 feet
// to a lap, so a 30-foot wall carries 1.5 laps per row.
TEST(ZOLRebarCalculator, LapsSpacingsAndDowelsCountWholeFeetTruncatedAndUnderAFootIsInfinite) {
    struct Case {
        double length;
        int32_t inches, other;
        double feet;
    };
    const Case horizontal[] = {{100, 30, 2, 220}, {100, 11, 2, 200}, {100, 35, 1, 110},
                               {30, 24, 1, 33},   {100, -13, 1, 95}, {100, 30, 0, 0}};
    for (const Case& c : horizontal)
        EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(c.length, c.inches, c.other),
                         c.feet)
            << c.length << " / " << c.inches << " / " << c.other;
    // A spacing of 18 inches is one foot: 800 feet, not 533.
    // (Every 24 inches, 400 feet: zolest calc rebar.)
    const Case vertical[] = {
        {100, 18, 8, 800}, {100, 36, 8, 800 / 3.0}, {100, 0, 8, 0}, {100, -24, 8, 0}};
    for (const Case& c : vertical)
        EXPECT_DOUBLE_EQ(Calc::calculateVerticalRebarWithWallLength(c.length, c.inches, c.other),
                         c.feet)
            << c.inches;
    const Case dowels[] = {{100, 24, 30, 100},
                           {100, 30, 36, 150},
                           {100, 24, 11, 0},
                           {100, 0, 30, 0},
                           {100, 12, 30, 200}};
    for (const Case& c : dowels)
        EXPECT_DOUBLE_EQ(Calc::calculateDowelsWithWallLength(c.length, c.inches, c.other), c.feet)
            << c.inches << " / " << c.other;

    // A spacing under a foot is infinite; the size lists are five and four long.
    for (int32_t spacing = 1; spacing <= 11; ++spacing) {
        SCOPED_TRACE(spacing);
        EXPECT_EQ(Calc::calculateVerticalRebarWithWallLength(100, spacing, 8), INFINITY);
        EXPECT_TRUE(std::isnan(Calc::calculateVerticalRebarWithWallLength(0, spacing, 8)));
        EXPECT_EQ(Calc::calculateDowelsWithWallLength(100, spacing, 30), INFINITY);
        EXPECT_TRUE(std::isnan(Calc::calculateDowelsWithWallLength(100, spacing, 11)));
    }
    EXPECT_EQ(Calc::getImperialRebarSizes(),
              (std::vector<std::string>{"#4", "#5", "#6", "#7", "#8"}));
    EXPECT_EQ(Calc::getMetricRebarSizes(), (std::vector<std::string>{"10M", "15M", "20M", "25M"}));
}

TEST(ZOLRebar, EachLengthReadsItsOwnFieldsOnEveryCall) {
    // 100 feet of wall 10 high: two rows lapped 30", one lapped 48", verticals every 24",
    // 36" dowels every 48".
    const CodeTexts bars = {{30, "100"}, {37, "10"}, {32, "2"},  {33, "30"}, {35, "1"},
                            {36, "48"},  {39, "24"}, {41, "48"}, {42, "36"}};
    ZOLRebar r = readRecord<ZOLRebar>(bars);
    EXPECT_DOUBLE_EQ(r.getHorizontalLength1(), 220.0);
    EXPECT_DOUBLE_EQ(r.getHorizontalLength2(), 120.0);
    EXPECT_DOUBLE_EQ(r.getVerticalLength(), 500.0);
    EXPECT_DOUBLE_EQ(r.getDowelLength(), 75.0);
    r.setWallLength(50);
    r.setMeasurement(1); // changes only the size names
    EXPECT_DOUBLE_EQ(r.getHorizontalLength1(), 110.0);
    EXPECT_DOUBLE_EQ(r.getVerticalLength(), 250.0);
}

TEST(ZOLRebar, WritesAndReadsItsElement) {
    expectRecordFile<ZOLRebar>("rebar", kFilled, 29, 42);
    ZOLRebar r;
    r.setMeasurement(2); // every measurement but 0 is written Metric
    EXPECT_NE(r.getXMLString().find("<Measurement>Metric</Measurement>"), std::string::npos);
    // Any word but the exact two leaves the measurement as it was.
    r.setValue("Imperial", 29);
    for (const char* other : {"metric", "1", "", "(null)"})
        r.setValue(other, 29);
    r.setValue(std::nullopt, 29);
    EXPECT_EQ(r.measurement(), 0);
}
