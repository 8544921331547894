#include "calc/ZOLWallData.h"

#include <array>

namespace {

// One column of the catalogue for one part: either a value for every size ("any") or a value
// per size, indexed by size minus 4 over sizes 4 to 12. The odd sizes (5, 7, 9, 11) hold 0:
// the line makes no such blocks.
template <typename T> struct Column {
    bool any;
    T anyValue;
    std::array<T, 9> bySize;

    constexpr T at(int32_t blockSize) const {
        if (any)
            return anyValue;
        if (blockSize < 4 || blockSize > 12)
            return T{};
        return bySize[static_cast<std::size_t>(blockSize - 4)];
    }
};

template <typename T> constexpr Column<T> anySize(T value) {
    return {true, value, {}};
}

// Cores of 4, 6, 8, 10 and 12 inches; the zeros between them are the odd sizes.
template <typename T> constexpr Column<T> sizes(T s4, T s6, T s8, T s10, T s12) {
    return {false, T{}, {s4, T{}, s6, T{}, s8, T{}, s10, T{}, s12}};
}

using Doubles = Column<double>;
using Ints = Column<int32_t>;

constexpr Doubles kSquareFeet[ZOLWallData::kPartTypeCount] = {
    anySize(5.33),                       // 0 straight
    anySize(2.67),                       // 1 straight half
    sizes(6.67, 7.11, 7.56, 7.56, 10.5), // 2 corner
    sizes(3.34, 3.58, 3.78, 3.78, 4.21), // 3 corner half
    sizes(5.78, 4.89, 5.33, 0.0, 0.0),   // 4 angle: the 4-inch one covers more than the 6
    sizes(0.0, 0.0, 5.33, 5.33, 0.0),    // 5 straight curb
    sizes(0.0, 0.0, 7.56, 7.58, 0.0),    // 6 corner curb
    sizes(0.0, 4.89, 4.89, 0.0, 0.0),    // 7 T
    sizes(0.0, 5.33, 5.33, 0.0, 0.0),    // 8 corbel
    sizes(0.0, 5.33, 5.33, 0.0, 0.0),    // 9 tapered
    sizes(0.0, 0.0, 0.0, 0.0, 0.0),      // 10 radius
    anySize(0.0),                        // 11 buck
    anySize(1.33),                       // 12 extender
    anySize(6000.0),                     // 13 HV clips, per box
    anySize(1.78),                       // 14 calora sticks
    anySize(0.0),                        // 15 Pravex
    anySize(0.0),                        // 16 pelmo
};

// The buck's weight and trailer space go by its gauge (buckGauge below).
constexpr Doubles kWeight[ZOLWallData::kPartTypeCount] = {
    sizes(7.0, 7.5, 7.5, 7.86, 8.22),   // 0
    sizes(3.5, 3.75, 3.75, 3.93, 4.12), // 1
    sizes(8.0, 8.47, 9.83, 10.5, 10.5), // 2
    sizes(4.0, 4.24, 4.92, 5.25, 5.25), // 3
    sizes(6.4, 6.4, 6.4, 0.0, 0.0),     // 4
    sizes(0.0, 0.0, 7.6, 7.86, 0.0),    // 5
    sizes(0.0, 0.0, 9.92, 10.5, 0.0),   // 6
    sizes(0.0, 9.4, 9.4, 0.0, 0.0),     // 7
    sizes(0.0, 8.8, 8.9, 0.0, 0.0),     // 8
    sizes(0.0, 7.3, 7.3, 0.0, 0.0),     // 9
    sizes(0.0, 2.5, 0.0, 0.0, 0.0),     // 10
    anySize(0.0),                       // 11 buck: by gauge
    anySize(0.65),                      // 12
    anySize(0.072),                     // 13
    anySize(0.65),                      // 14
    anySize(2.45),                      // 15
    anySize(0.15),                      // 16
};

constexpr Ints kBundleSize[ZOLWallData::kPartTypeCount] = {
    sizes(12, 12, 12, 9, 9),   // 0
    sizes(24, 24, 24, 18, 18), // 1
    sizes(12, 12, 6, 6, 6),    // 2
    sizes(24, 24, 12, 12, 12), // 3
    sizes(9, 9, 9, 0, 0),      // 4
    sizes(0, 0, 12, 9, 0),     // 5
    sizes(0, 0, 6, 6, 0),      // 6
    sizes(0, 6, 6, 0, 0),      // 7
    sizes(0, 9, 9, 0, 0),      // 8
    sizes(0, 12, 12, 0, 0),    // 9
    sizes(0, 27, 0, 0, 0),     // 10
    anySize(10),               // 11
    anySize(20),               // 12
    anySize(250),              // 13, clips per box
    anySize(36),               // 14
    anySize(9),                // 15
    anySize(200),              // 16
};

// Half blocks are bundled to the same footprint as the full ones.
constexpr Doubles kTrailerAllowance[ZOLWallData::kPartTypeCount] = {
    sizes(38.0, 45.5, 54.4, 54.0, 54.0),   // 0
    sizes(38.0, 45.5, 54.4, 54.0, 54.0),   // 1
    sizes(46.0, 53.0, 41.0, 49.25, 49.25), // 2
    sizes(46.0, 53.0, 41.0, 49.25, 49.25), // 3
    sizes(50.0, 40.0, 53.0, 0.0, 0.0),     // 4
    sizes(0.0, 0.0, 54.4, 54.0, 0.0),      // 5
    sizes(0.0, 0.0, 54.4, 54.0, 0.0),      // 6
    sizes(0.0, 40.25, 40.25, 0.0, 0.0),    // 7
    sizes(0.0, 45.25, 53.25, 0.0, 0.0),    // 8
    sizes(0.0, 45.25, 54.4, 0.0, 0.0),     // 9
    sizes(0.0, 39.0, 0.0, 0.0, 0.0),       // 10
    anySize(0.0),                          // 11 buck: by gauge
    anySize(17.0),                         // 12
    anySize(11.0),                         // 13
    anySize(17.0),                         // 14
    anySize(2.64),                         // 15
    anySize(0.3),                          // 16
};

// The buck comes in two gauges: the narrow one for 4- and 6-inch cores, the wide one for
// every other size value.
constexpr double buckGauge(int32_t blockSize, double narrow, double wide) {
    return blockSize == 4 || blockSize == 6 ? narrow : wide;
}

constexpr const char* kPartNames[ZOLWallData::kPartTypeCount] = {
    "Straight Block",
    "Straight 1/2 Block",
    "90\u00B0 Corner Block",
    "90\u00B0 Corner 1/2 Block",
    "45\u00B0 Angle Block",
    "Straight Curb Block",
    "90\u00B0 Corner Curb Block",
    "T-Block",
    "Corbel Block",
    "Tapered Block",
    "Radius Block",
    "Zol Buck",
    "4\" Extender",
    "Zol Block HV Clips",
    "R9 Calora Sticks",
    "Pravex",
    "pelmo",
};

constexpr const char* kBasicPartStrings[ZOLWallData::kPartTypeCount] = {
    "Straight",   "StraightHalf", "Corner", "CornerHalf", "Angle",  "StraightCurb",
    "CornerCurb", "TBlock",       "Corbel", "Tapered",    "Radius", "Buck",
    "Extender",   "HV",           "R9",     "Pravex",     "pelmo",
};

// The parser's word list, in the order it is checked; all lower case.
struct PartWord {
    const char* word;
    int32_t type;
};
constexpr PartWord kPartWords[] = {
    {"straight", ZOLWallData::Straight},
    {"straighthalf", ZOLWallData::StraightHalf},
    {"corner", ZOLWallData::Corner},
    {"cornerhalf", ZOLWallData::CornerHalf},
    {"angle", ZOLWallData::Angle},
    {"tblock", ZOLWallData::TBlock},
    {"corbel", ZOLWallData::Corbel},
    {"tapered", ZOLWallData::Tapered},
    {"radius", ZOLWallData::Radius},
    {"buck", ZOLWallData::Buck},
    {"straightcurb", ZOLWallData::StraightCurb},
    {"cornercurb", ZOLWallData::CornerCurb},
    {"extender", ZOLWallData::Extender},
    {"hv", ZOLWallData::HVClips},
    {"r9", ZOLWallData::CaloraSticks},
    {"pravex", ZOLWallData::Pravex},
    {"pelmo", ZOLWallData::Pelmo},
};

bool equalsLowerCased(std::string_view text, std::string_view lowerWord) {
    if (text.size() != lowerWord.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
        if (c != lowerWord[i])
            return false;
    }
    return true;
}

} // namespace

double ZOLWallData::getLengthWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    return blockType <= Radius ? 49.0 : 0.0; // blocks are 49 inches long; accessories have none
}

double ZOLWallData::getHeightWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    if (blockType == StraightHalf || blockType == CornerHalf)
        return 9.0;
    return blockType <= Radius ? 16.33 : 0.0;
}

double ZOLWallData::getSquareFeetWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    return kSquareFeet[blockType].at(blockSize);
}

double ZOLWallData::getWeightWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    if (blockType == Buck)
        return buckGauge(blockSize, 2.5, 3.0);
    return kWeight[blockType].at(blockSize);
}

int32_t ZOLWallData::getBundleSizeWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0;
    return kBundleSize[blockType].at(blockSize);
}

double ZOLWallData::getTrailerAllowanceWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    if (blockType == Buck)
        return buckGauge(blockSize, 11.5, 13.25);
    return kTrailerAllowance[blockType].at(blockSize);
}

std::optional<std::string> ZOLWallData::getPartNameWithBlockType(int32_t blockType) {
    if (blockType < 0 || blockType >= kPartTypeCount)
        return std::nullopt;
    return std::string(kPartNames[blockType]);
}

std::optional<std::string> ZOLWallData::getBasicPartStringWithBlockType(int32_t blockType) {
    if (blockType == NoPart)
        return std::string();
    if (blockType < 0 || blockType >= kPartTypeCount)
        return std::nullopt;
    return std::string(kBasicPartStrings[blockType]);
}

int32_t ZOLWallData::getBlockTypeWithBasicPartString(std::string_view text) {
    for (const PartWord& entry : kPartWords)
        if (equalsLowerCased(text, entry.word))
            return entry.type;
    return NoPart;
}

int32_t ZOLWallData::getBlockTypeWithBasicPartString(const std::optional<std::string>& text) {
    return text ? getBlockTypeWithBasicPartString(std::string_view(*text)) : NoPart;
}

std::optional<std::string> ZOLWallData::getBasicSizeStringWithBlockSize(int32_t blockSize) {
    switch (blockSize) {
    case 4:
        return std::string("Four");
    case 6:
        return std::string("Six");
    case 8:
        return std::string("Eight");
    case 10:
        return std::string("Ten");
    case 12:
        return std::string("Twelve");
    default:
        return std::nullopt;
    }
}

int32_t ZOLWallData::getBlockSizeWithBasicSizeString(std::string_view text) {
    if (equalsLowerCased(text, "four"))
        return 4;
    if (equalsLowerCased(text, "six"))
        return 6;
    if (equalsLowerCased(text, "eight"))
        return 8;
    if (equalsLowerCased(text, "ten"))
        return 10;
    if (equalsLowerCased(text, "twelve"))
        return 12;
    return kDefaultBlockSize;
}

int32_t ZOLWallData::getBlockSizeWithBasicSizeString(const std::optional<std::string>& text) {
    return text ? getBlockSizeWithBasicSizeString(std::string_view(*text)) : kDefaultBlockSize;
}
