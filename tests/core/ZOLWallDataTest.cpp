// The part catalogue: every cell of its per-size tables, the sizes it does not make, and the
// names and keys the price list and workbook files use.
#include "calc/ZOLWallData.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

using WD = ZOLWallData;

namespace {

constexpr std::array<int32_t, 5> kSizes = {4, 6, 8, 10, 12};
using Table = std::array<std::array<double, 5>, 17>; // [type][4, 6, 8, 10, 12]

const Table kSquareFeet = {{
    {5.33, 5.33, 5.33, 5.33, 5.33},
    {2.67, 2.67, 2.67, 2.67, 2.67},
    {6.67, 7.11, 7.56, 7.56, 10.5},
    {3.34, 3.58, 3.78, 3.78, 4.21},
    {5.78, 4.89, 5.33, 0, 0},
    {0, 0, 5.33, 5.33, 0},
    {0, 0, 7.56, 7.58, 0},
    {0, 4.89, 4.89, 0, 0},
    {0, 5.33, 5.33, 0, 0},
    {0, 5.33, 5.33, 0, 0},
    {0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0},
    {1.33, 1.33, 1.33, 1.33, 1.33},
    {6000, 6000, 6000, 6000, 6000},
    {1.78, 1.78, 1.78, 1.78, 1.78},
    {0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0},
}};

const Table kWeight = {{
    {7.0, 7.5, 7.5, 7.86, 8.22},
    {3.5, 3.75, 3.75, 3.93, 4.12},
    {8.0, 8.47, 9.83, 10.5, 10.5},
    {4.0, 4.24, 4.92, 5.25, 5.25},
    {6.4, 6.4, 6.4, 0, 0},
    {0, 0, 7.6, 7.86, 0},
    {0, 0, 9.92, 10.5, 0},
    {0, 9.4, 9.4, 0, 0},
    {0, 8.8, 8.9, 0, 0},
    {0, 7.3, 7.3, 0, 0},
    {0, 2.5, 0, 0, 0},
    {2.5, 2.5, 3.0, 3.0, 3.0},
    {0.65, 0.65, 0.65, 0.65, 0.65},
    {0.072, 0.072, 0.072, 0.072, 0.072},
    {0.65, 0.65, 0.65, 0.65, 0.65},
    {2.45, 2.45, 2.45, 2.45, 2.45},
    {0.15, 0.15, 0.15, 0.15, 0.15},
}};

const Table kBundle = {{
    {12, 12, 12, 9, 9},
    {24, 24, 24, 18, 18},
    {12, 12, 6, 6, 6},
    {24, 24, 12, 12, 12},
    {9, 9, 9, 0, 0},
    {0, 0, 12, 9, 0},
    {0, 0, 6, 6, 0},
    {0, 6, 6, 0, 0},
    {0, 9, 9, 0, 0},
    {0, 12, 12, 0, 0},
    {0, 27, 0, 0, 0},
    {10, 10, 10, 10, 10},
    {20, 20, 20, 20, 20},
    {250, 250, 250, 250, 250},
    {36, 36, 36, 36, 36},
    {9, 9, 9, 9, 9},
    {200, 200, 200, 200, 200},
}};

const Table kTrailer = {{
    {38.0, 45.5, 54.4, 54.0, 54.0},
    {38.0, 45.5, 54.4, 54.0, 54.0},
    {46.0, 53.0, 41.0, 49.25, 49.25},
    {46.0, 53.0, 41.0, 49.25, 49.25},
    {50.0, 40.0, 53.0, 0, 0},
    {0, 0, 54.4, 54.0, 0},
    {0, 0, 54.4, 54.0, 0},
    {0, 40.25, 40.25, 0, 0},
    {0, 45.25, 53.25, 0, 0},
    {0, 45.25, 54.4, 0, 0},
    {0, 39.0, 0, 0, 0},
    {11.5, 11.5, 13.25, 13.25, 13.25},
    {17.0, 17.0, 17.0, 17.0, 17.0},
    {11.0, 11.0, 11.0, 11.0, 11.0},
    {17.0, 17.0, 17.0, 17.0, 17.0},
    {2.64, 2.64, 2.64, 2.64, 2.64},
    {0.3, 0.3, 0.3, 0.3, 0.3},
}};

// Which of the five sizes each type is made in (1 = made).
const std::array<std::array<int, 5>, 17> kValid = {{
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 0, 0},
    {0, 0, 1, 1, 0},
    {0, 0, 1, 1, 0},
    {0, 1, 1, 0, 0},
    {0, 1, 1, 0, 0},
    {0, 1, 1, 0, 0},
    {0, 1, 0, 0, 0},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
    {1, 1, 1, 1, 1},
}};

} // namespace

TEST(ZOLWallData, EveryTableCellOfTheFiveSizes) {
    for (int32_t type = 0; type < 17; ++type) {
        for (std::size_t i = 0; i < kSizes.size(); ++i) {
            const int32_t size = kSizes[i];
            SCOPED_TRACE(testing::Message() << "type " << type << " size " << size);
            const bool valid = kValid[type][i] == 1;
            EXPECT_EQ(WD::getValidSizeWithBlockType(type, size), valid);
            EXPECT_EQ(WD::getSquareFeetWithBlockType(type, size), kSquareFeet[type][i]);
            EXPECT_EQ(WD::getWeightWithBlockType(type, size), kWeight[type][i]);
            EXPECT_EQ(WD::getBundleSizeWithBlockType(type, size),
                      static_cast<int32_t>(kBundle[type][i]));
            EXPECT_EQ(WD::getTrailerAllowanceWithBlockType(type, size), kTrailer[type][i]);
            const double length = valid && type <= 10 ? 49.0 : 0.0;
            const double height =
                !valid || type > 10 ? 0.0 : (type == 1 || type == 3 ? 9.0 : 16.33);
            EXPECT_EQ(WD::getLengthWithBlockType(type, size), length);
            EXPECT_EQ(WD::getHeightWithBlockType(type, size), height);
        }
    }
}

TEST(ZOLWallData, SizesTheLineDoesNotMake) {
    // Straight, corner and accessories accept any size value; their per-size tables give 0.
    for (int32_t size : {INT_MIN, -8, 0, 5, 7, 9, 11, 14, INT_MAX})
        for (int32_t type : {0, 1, 2, 3, 11, 12, 13, 14, 15, 16})
            EXPECT_TRUE(WD::getValidSizeWithBlockType(type, size)) << type << "/" << size;
    EXPECT_EQ(WD::getSquareFeetWithBlockType(0, 5), 5.33);
    EXPECT_EQ(WD::getWeightWithBlockType(0, 5), 0.0);
    EXPECT_EQ(WD::getBundleSizeWithBlockType(0, 5), 0);
    EXPECT_EQ(WD::getTrailerAllowanceWithBlockType(1, 14), 0.0);
    EXPECT_EQ(WD::getSquareFeetWithBlockType(2, 7), 0.0);
    EXPECT_EQ(WD::getLengthWithBlockType(0, 5), 49.0);
    // The buck's narrow gauge is only for 4 and 6; every other size value is the wide one.
    EXPECT_EQ(WD::getWeightWithBlockType(11, 14), 3.0);
    EXPECT_EQ(WD::getWeightWithBlockType(11, 5), 3.0);
    EXPECT_EQ(WD::getWeightWithBlockType(11, INT_MIN), 3.0);
    EXPECT_EQ(WD::getBundleSizeWithBlockType(11, 14), 10);
    EXPECT_EQ(WD::getTrailerAllowanceWithBlockType(11, 14), 13.25);
    EXPECT_EQ(WD::getLengthWithBlockType(11, 14), 0.0);
    EXPECT_EQ(WD::getSquareFeetWithBlockType(13, 7), 6000.0);
    EXPECT_EQ(WD::getBundleSizeWithBlockType(16, -3), 200);
    // Shapes made in a few sizes only: any other size is not a part at all.
    for (int32_t size : {INT_MIN, 0, 5, 7, 9, 11, 14, INT_MAX})
        for (int32_t type = 4; type <= 10; ++type)
            EXPECT_FALSE(WD::getValidSizeWithBlockType(type, size)) << type << "/" << size;
    EXPECT_EQ(WD::getHeightWithBlockType(10, 8), 0.0);
    EXPECT_EQ(WD::getLengthWithBlockType(10, 8), 0.0);
}

TEST(ZOLWallData, TypesOutsideTheCatalogueAreNothing) {
    for (int32_t type : {INT_MIN, -1, 17, 18, INT_MAX}) {
        EXPECT_FALSE(WD::getValidSizeWithBlockType(type, 8)) << type;
        EXPECT_EQ(WD::getWeightWithBlockType(type, 8), 0.0);
        EXPECT_EQ(WD::getBundleSizeWithBlockType(type, 8), 0);
        EXPECT_EQ(WD::getSquareFeetWithBlockType(type, 8), 0.0);
        EXPECT_EQ(WD::getTrailerAllowanceWithBlockType(type, 8), 0.0);
        EXPECT_EQ(WD::getLengthWithBlockType(type, 8), 0.0);
        EXPECT_EQ(WD::getPartNameWithBlockType(type), std::nullopt);
    }
    EXPECT_EQ(WD::getBasicPartStringWithBlockType(17), std::optional<std::string>(""));
    EXPECT_EQ(WD::getBasicPartStringWithBlockType(-1), std::nullopt);
    EXPECT_EQ(WD::getBasicPartStringWithBlockType(18), std::nullopt);
}

TEST(ZOLWallData, NamesAndKeys) {
    const char* names[17] = {"Straight Block",
                             "Straight 1/2 Block",
                             "90\xC2\xB0 Corner Block",
                             "90\xC2\xB0 Corner 1/2 Block",
                             "45\xC2\xB0 Angle Block",
                             "Straight Curb Block",
                             "90\xC2\xB0 Corner Curb Block",
                             "T-Block",
                             "Corbel Block",
                             "Tapered Block",
                             "Radius Block",
                             "Zol Buck",
                             "4\" Extender",
                             "Zol Block HV Clips",
                             "R9 Calora Sticks",
                             "Pravex",
                             "pelmo"};
    const char* keys[17] = {"Straight",     "StraightHalf", "Corner",   "CornerHalf", "Angle",
                            "StraightCurb", "CornerCurb",   "TBlock",   "Corbel",     "Tapered",
                            "Radius",       "Buck",         "Extender", "HV",         "R9",
                            "Pravex",       "pelmo"};
    for (int32_t type = 0; type < 17; ++type) {
        EXPECT_EQ(WD::getPartNameWithBlockType(type), std::optional<std::string>(names[type]));
        EXPECT_EQ(WD::getBasicPartStringWithBlockType(type),
                  std::optional<std::string>(keys[type]));
        // Every key reads back as its own type.
        EXPECT_EQ(WD::getBlockTypeWithBasicPartString(keys[type]), type);
    }
    EXPECT_EQ(WD::getPartNameWithBlockType(12)->size(), 11u);
}

TEST(ZOLWallData, PartKeysParseCaseInsensitivelyAndExactly) {
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString("STRAIGHTHALF"), 1);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString("cornerCURB"), 6);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString("hV"), 13);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString("straight half"), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(" straight"), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString("straight\n"), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(""), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(std::optional<std::string>()), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(std::string("T-Block")), 17);
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(std::string_view("buckx", 4)), 11);
}

TEST(ZOLWallData, SizeWordsFallBackToEightInches) {
    EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(4), std::optional<std::string>("Four"));
    EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(6), std::optional<std::string>("Six"));
    EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(8), std::optional<std::string>("Eight"));
    EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(10), std::optional<std::string>("Ten"));
    EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(12), std::optional<std::string>("Twelve"));
    for (int32_t size : {INT_MIN, 0, 5, 14, INT_MAX})
        EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(size), std::nullopt) << size;
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("TWELVE"), 12);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("four"), 4);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("Six"), 6);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("tEn"), 10);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("12"), 8);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString("Four "), 8);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString(""), 8);
    EXPECT_EQ(WD::getBlockSizeWithBasicSizeString(std::optional<std::string>()), 8);
}
