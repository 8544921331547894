// The rebar record and its calculator: the three lengths of steel with their whole-foot
// truncation, the two size lists, and the record's element of the workbook file.
#include "model/ZOLRebar.h"
#include "calc/ZOLRebarCalculator.h"
#include "support/GoldenFile.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
using Calc = ZOLRebarCalculator;

// The filled record as the file reader builds it, code by code.
const CodeTexts kFilled = {{29, "Metric"}, {30, "123.5"}, {31, "2"},  {32, "3"},     {33, "30"},
                           {34, "3"},      {35, "2"},     {36, "-7"}, {37, "9.334"}, {38, "4"},
                           {39, "16"},     {40, "5"},     {41, "24"}, {42, "36"}};
} // namespace

TEST(ZOLRebarCalculator, LapsSpacingsAndDowelsCountWholeFeetTruncated) {
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(100, 30, 2), 220.0);
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(100, 11, 2), 200.0);
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(100, 35, 1), 110.0);
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(30, 24, 1), 33.0);   // 1.5 laps
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(100, -13, 1), 95.0); // -1 ft
    EXPECT_EQ(Calc::calculateHorizontalRebarWithWallLength(100, 30, 0), 0.0);

    EXPECT_DOUBLE_EQ(Calc::calculateVerticalRebarWithWallLength(100, 24, 8), 400.0);
    EXPECT_DOUBLE_EQ(Calc::calculateVerticalRebarWithWallLength(100, 18, 8), 800.0); // not 533
    EXPECT_DOUBLE_EQ(Calc::calculateVerticalRebarWithWallLength(100, 36, 8), 100.0 / 3 * 8);
    EXPECT_EQ(Calc::calculateVerticalRebarWithWallLength(100, 0, 8), 0.0);
    EXPECT_EQ(Calc::calculateVerticalRebarWithWallLength(100, -24, 8), 0.0);

    EXPECT_DOUBLE_EQ(Calc::calculateDowelsWithWallLength(100, 24, 30), 100.0);
    EXPECT_DOUBLE_EQ(Calc::calculateDowelsWithWallLength(100, 30, 36), 150.0);
    EXPECT_EQ(Calc::calculateDowelsWithWallLength(100, 24, 11), 0.0);
    EXPECT_EQ(Calc::calculateDowelsWithWallLength(100, 0, 30), 0.0);
}

TEST(ZOLRebarCalculator, SpacingUnderAFootGivesANonFiniteLength) {
    for (int32_t spacing = 1; spacing <= 11; ++spacing) {
        SCOPED_TRACE(spacing);
        EXPECT_EQ(Calc::calculateVerticalRebarWithWallLength(100, spacing, 8), INFINITY);
        EXPECT_TRUE(std::isnan(Calc::calculateVerticalRebarWithWallLength(0, spacing, 8)));
        EXPECT_EQ(Calc::calculateDowelsWithWallLength(100, spacing, 30), INFINITY);
        EXPECT_TRUE(std::isnan(Calc::calculateDowelsWithWallLength(100, spacing, 11)));
    }
}

TEST(ZOLRebarCalculator, ExtremeInputsStayDefined) {
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(20, kMax, 1), 20.0 + kMax / 12);
    EXPECT_DOUBLE_EQ(Calc::calculateHorizontalRebarWithWallLength(20, kMin, kMin),
                     1.0 * (kMin / 12) * kMin + 20.0 * kMin);
    EXPECT_DOUBLE_EQ(Calc::calculateVerticalRebarWithWallLength(100, kMax, 8),
                     100.0 / (kMax / 12) * 8);
    EXPECT_EQ(Calc::calculateVerticalRebarWithWallLength(100, kMin, 8), 0.0);
    EXPECT_DOUBLE_EQ(Calc::calculateDowelsWithWallLength(100, kMax, kMin),
                     (kMin / 12) * (100.0 / (kMax / 12)));
    EXPECT_TRUE(std::isnan(Calc::calculateHorizontalRebarWithWallLength(NAN, 30, 2)));
    EXPECT_EQ(Calc::calculateHorizontalRebarWithWallLength(1e308, 30, kMax), INFINITY);
}

TEST(ZOLRebarCalculator, SizeListsNameImperialFiveAndMetricFour) {
    EXPECT_EQ(Calc::getImperialRebarSizes(),
              (std::vector<std::string>{"#4", "#5", "#6", "#7", "#8"}));
    EXPECT_EQ(Calc::getMetricRebarSizes(), (std::vector<std::string>{"10M", "15M", "20M", "25M"}));
}

TEST(ZOLRebar, EachLengthReadsItsOwnFieldsOnEveryCall) {
    ZOLRebar r;
    r.setWallLength(100);
    r.setWallHeight(10);
    r.setHorizontalRowCount1(2);
    r.setHorizontalLap1(30);
    r.setHorizontalRowCount2(1);
    r.setHorizontalLap2(48);
    r.setVerticalSpacing(24);
    r.setDowelSpacing(48);
    r.setDowelLength(36);
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
    ZOLRebar r;
    EXPECT_EQ(r.getXMLString(), goldenFile("xml/rebar-default.xml"));
    EXPECT_EQ(r.getHorizontalLength1() + r.getHorizontalLength2() + r.getVerticalLength() +
                  r.getDowelLength(),
              0.0);
    ZOLRebar filled = readRecord<ZOLRebar>(kFilled);
    EXPECT_EQ(filled.getXMLString(), goldenFile("xml/rebar-filled.xml"));
    expectOtherCodesIgnored(filled, 29, 42);
    filled.clear();
    EXPECT_EQ(filled.getXMLString(), r.getXMLString());

    r.setMeasurement(2); // every measurement but 0 is written Metric
    EXPECT_NE(r.getXMLString().find("<Measurement>Metric</Measurement>"), std::string::npos);
    r.setValue("  12 inches", 39);
    EXPECT_EQ(r.verticalSpacing(), 12);
    r.setValue(std::nullopt, 39);
    EXPECT_EQ(r.verticalSpacing(), 0);
    // Any word but the exact two leaves the measurement as it was.
    r.setValue("Imperial", 29);
    for (const char* other : {"metric", "1", "", "(null)"})
        r.setValue(other, 29);
    r.setValue(std::nullopt, 29);
    EXPECT_EQ(r.measurement(), 0);
}
