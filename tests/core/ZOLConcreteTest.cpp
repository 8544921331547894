// The concrete record and its calculator: the four pours in cubic yards or metres, their
// weights, the integer-halved pile radius, the unclamped removal of openings, and the file.
#include "model/ZOLConcrete.h"
#include "calc/ZOLConcreteCalculator.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

#include <utility>

namespace {
constexpr double kPi = 3.141592653589793;
constexpr double kCubicInchesPerYard = 46656.0;
using Calc = ZOLConcreteCalculator;

// A pour entered through the file's codes: 12 to 14 the footing's width, length and depth, 15 to
// 17 the piles' depth, diameter and count, 21 to 23 the wall's length, thickness and height.
constexpr auto pour = &readRecord<ZOLConcrete>;

// Codes 11 to 23 as the file reader hands them over.
const CodeTexts kFilled = {{11, "Metric"}, {12, "20"}, {13, "100.25"}, {14, "10"},     {15, "10.5"},
                           {16, "13"},     {17, "3"},  {18, "24"},     {19, "12.125"}, {20, "4"},
                           {21, "60"},     {22, "6"},  {23, "9.334"}};
} // namespace

// The footing in cubic yards and metres weighs the same; the wall loses its openings only when
// asked, and without a clamp; piles use half the diameter in whole inches.
TEST(ZOLConcrete, FootingWallAndPilePours) {
    // 100 ft by 20" by 10": 5.144 cubic yards of 19,913.9 lbs, checked on zolest calc concrete.
    ZOLConcrete footing = pour({{13, "100"}, {12, "20"}, {14, "10"}});
    const double pounds = footing.getFootingWeight();
    footing.setMeasurement(1);
    EXPECT_NEAR(footing.getFootingVolume(), 3.933, 0.0005);
    EXPECT_NEAR(footing.getFootingWeight(), pounds, 1e-6);

    ZOLConcrete wall = pour({{21, "100"}, {22, "6"}, {23, "8"}}); // 100 ft, 6" thick, 8 ft high
    wall.setSqFtOpenings(50);
    EXPECT_NEAR(wall.getWallVolume(), 691200.0 / kCubicInchesPerYard, 1e-6); // 14.815, flag clear
    wall.setRemoveSqFtOpenings(true); // 13.889: see zolest calc concrete
    wall.setSqFtOpenings(1000);
    EXPECT_NEAR(wall.getWallVolume(), (691200.0 - 864000.0) / kCubicInchesPerYard, 1e-6);
    EXPECT_LT(wall.getWallWeight(), 0.0);
    wall.setSlabLength(10); // the slab never loses openings
    wall.setSlabWidth(10);
    wall.setSlabDepth(4);
    EXPECT_NEAR(wall.getSlabVolume(), 1.235, 0.0005);

    ZOLConcrete piles = pour({{16, "12"}, {15, "10"}, {17, "3"}}); // three 12" piles 10 ft deep
    const double twelve = piles.getPileVolume();
    EXPECT_NEAR(twelve, 3 * 36 * kPi * 120 / kCubicInchesPerYard, 1e-9); // 0.873
    piles.setPileDiameter(13);
    EXPECT_DOUBLE_EQ(piles.getPileVolume(), twelve);
    piles.setPileDiameter(15);
    EXPECT_NEAR(piles.getPileVolume(), 3 * 49 * kPi * 120 / kCubicInchesPerYard, 1e-9);
    piles.setPileCount(0);
    EXPECT_EQ(piles.getPileVolume() + piles.getPileWeight(), 0.0);
}

TEST(ZOLConcreteCalculator, VolumesTestForMetresExactlyWhileWeightTestsForNotYards) {
    for (const auto& [measurement, unit] : {std::pair{0, "Y"}, {1, "M"}, {2, "Y"}})
        EXPECT_EQ(Calc::getStringForMeasurement(measurement), unit);
    EXPECT_EQ(Calc::calculateConcreteWithLength(1200, 20, 10, 2, 0.0),
              Calc::calculateConcreteWithLength(1200, 20, 10, 0, 0.0));
    EXPECT_NEAR(Calc::calculatePileConcreteWithDepth(120, 6, 1),
                Calc::calculatePileConcreteWithDepth(120, 6, 0) * 0.76455485798, 1e-12);
    EXPECT_NEAR(Calc::calculateConcreteWeightForVolume(1.0, 0), 27 * 143.38, 1e-4);
    const double metre = Calc::calculateConcreteWeightForVolume(1.0, 1);
    EXPECT_NEAR(metre, 27 * 143.38 / 0.76455485798, 1e-4);
    EXPECT_EQ(Calc::calculateConcreteWeightForVolume(1.0, 2), metre);
}

TEST(ZOLConcrete, WritesFifteenFieldsAndReadsBackThirteen) {
    ZOLConcrete written =
        expectRecordFile<ZOLConcrete>("concrete", kFilled, 11, 23, [](ZOLConcrete& r) {
            r.setRemoveSqFtOpenings(true);
            r.setSqFtOpenings(42.5);
        });

    // The openings flag and area have no code of their own: what a file's elements for them do
    // is checked on the workbook reader.
    written.setValue("Cubic Metres", 11);
    EXPECT_EQ(written.measurement(), 1);
    written.setValue("Imperial", 11);
    EXPECT_EQ(written.measurement(), 0);
}
