// The part catalogue: every cell of its per-size tables for the five sizes, and the names and
// keys the price list and files use.
#include "calc/ZOLWallData.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <charconv>
#include <sstream>

using WD = ZOLWallData;

namespace {
// Shortest text that reads back as the same double, so the table pins every cell exactly.
std::string exact(double value) {
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}
} // namespace

// tests/data/catalogue.txt holds the catalogue as the product sheet gives it. Its odd cells: the
// 12" corner's 10.5 sq ft, the 10" corner curb's 7.58, radius blocks only in 6" and the buck's
// narrow gauge only for 4" and 6".
TEST(ZOLWallData, EveryCellOfTheCatalogueAndKeysAndSizeWordsInAnyCase) {
    std::ostringstream table;
    table << "type size valid sqft weight bundle trailer length height\n";
    for (int32_t type = 0; type < 17; ++type)
        for (int32_t size : {4, 6, 8, 10, 12})
            table << type << ' ' << size << ' ' << WD::getValidSizeWithBlockType(type, size) << ' '
                  << exact(WD::getSquareFeetWithBlockType(type, size)) << ' '
                  << exact(WD::getWeightWithBlockType(type, size)) << ' '
                  << WD::getBundleSizeWithBlockType(type, size) << ' '
                  << exact(WD::getTrailerAllowanceWithBlockType(type, size)) << ' '
                  << exact(WD::getLengthWithBlockType(type, size)) << ' '
                  << exact(WD::getHeightWithBlockType(type, size)) << '\n';
    table << "type name key\n";
    for (int32_t type = 0; type < 17; ++type) {
        const auto key = WD::getBasicPartStringWithBlockType(type);
        table << type << " \"" << WD::getPartNameWithBlockType(type).value_or("(absent)") << "\" \""
              << key.value_or("(absent)") << "\"\n";
        EXPECT_EQ(WD::getBlockTypeWithBasicPartString(key), type); // reads back as its own type
    }
    expectGoldenFile("catalogue.txt", table.str());

    // Keys and size words match whole words in any case.
    const std::pair<std::optional<std::string>, int32_t> keys[] = {
        {"STRAIGHTHALF", 1}, {"cornerCURB", 6},  {"hV", 13},   {"straight half", 17},
        {" straight", 17},   {"straight\n", 17}, {"", 17},     {std::nullopt, 17},
        {"T-Block", 17},     {"Buck", 11},       {"pelmo", 16}};
    for (const auto& [text, type] : keys)
        EXPECT_EQ(WD::getBlockTypeWithBasicPartString(text), type) << text.value_or("(absent)");
    EXPECT_EQ(WD::getBlockTypeWithBasicPartString(std::string_view("buckx", 4)), 11);

    const std::pair<int32_t, const char*> words[] = {
        {4, "Four"}, {6, "Six"}, {8, "Eight"}, {10, "Ten"}, {12, "Twelve"}};
    for (const auto& [size, word] : words)
        EXPECT_EQ(WD::getBasicSizeStringWithBlockSize(size), std::optional<std::string>(word));
    // Anything but a size word falls back to 8 inches.
    const std::pair<std::optional<std::string>, int32_t> sizes[] = {
        {"TWELVE", 12}, {"four", 4}, {"tEn", 10},      {"12", 8},
        {"Four ", 8},   {"", 8},     {std::nullopt, 8}};
    for (const auto& [text, size] : sizes)
        EXPECT_EQ(WD::getBlockSizeWithBasicSizeString(text), size) << text.value_or("(absent)");
}
