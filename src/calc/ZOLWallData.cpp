#include "calc/ZOLWallData.h"

#include <array>

namespace {

// A per-size column of the catalogue, indexed by size minus 4 over sizes 4 to 12. The odd
// sizes (5, 7, 9, 11) hold 0: the line makes no such blocks.
using SizeTable = std::array<double, 9>;

double bySize(const SizeTable& table, int32_t blockSize) {
    if (blockSize < 4 || blockSize > 12)
        return 0.0;
    return table[static_cast<std::size_t>(blockSize - 4)];
}

// Cores from 4 to 12 inches; the zeros are the odd sizes.
constexpr SizeTable row(double s4, double s6, double s8, double s10, double s12) {
    return {s4, 0.0, s6, 0.0, s8, 0.0, s10, 0.0, s12};
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
    {"straight", 0},     {"straighthalf", 1}, {"corner", 2},    {"cornerhalf", 3}, {"angle", 4},
    {"tblock", 7},       {"corbel", 8},       {"tapered", 9},   {"radius", 10},    {"buck", 11},
    {"straightcurb", 5}, {"cornercurb", 6},   {"extender", 12}, {"hv", 13},        {"r9", 14},
    {"pravex", 15},      {"pelmo", 16},
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

// The buck comes in two gauges: the narrow one for 4- and 6-inch cores, the wide one for
// every other size value.
bool narrowBuck(int32_t blockSize) {
    return blockSize == 4 || blockSize == 6;
}

} // namespace

bool ZOLWallData::getValidSizeWithBlockType(int32_t blockType, int32_t blockSize) {
    // Compared unsigned so that negative types fall outside as well.
    if (static_cast<uint32_t>(blockType) > 16u)
        return false;
    switch (blockType) {
    case 4:
        return blockSize == 4 || blockSize == 6 || blockSize == 8;
    case 5:
    case 6:
        return blockSize == 8 || blockSize == 10;
    case 7:
    case 8:
    case 9:
        return blockSize == 6 || blockSize == 8;
    case 10:
        return blockSize == 6;
    default: // 0 to 3 and 11 to 16 take every size value
        return true;
    }
}

double ZOLWallData::getLengthWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    return blockType <= 10 ? 49.0 : 0.0;
}

double ZOLWallData::getHeightWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    if (blockType == 1 || blockType == 3)
        return 9.0;
    return blockType <= 10 ? 16.33 : 0.0;
}

double ZOLWallData::getSquareFeetWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    switch (blockType) {
    case 0:
        return 5.33;
    case 1:
        return 2.67;
    case 2:
        return bySize(row(6.67, 7.11, 7.56, 7.56, 10.5), blockSize);
    case 3:
        return bySize(row(3.34, 3.58, 3.78, 3.78, 4.21), blockSize);
    case 4: // the 4-inch angle covers more than the 6-inch one: catalogue data
        return bySize(row(5.78, 4.89, 5.33, 0.0, 0.0), blockSize);
    case 5:
        return bySize(row(0.0, 0.0, 5.33, 5.33, 0.0), blockSize);
    case 6:
        return bySize(row(0.0, 0.0, 7.56, 7.58, 0.0), blockSize);
    case 7:
        return bySize(row(0.0, 4.89, 4.89, 0.0, 0.0), blockSize);
    case 8:
    case 9:
        return bySize(row(0.0, 5.33, 5.33, 0.0, 0.0), blockSize);
    case 10:
    case 11:
        return 0.0;
    case 12:
        return 1.33;
    case 13:
        return 6000.0;
    case 14:
        return 1.78;
    default: // 15, 16
        return 0.0;
    }
}

double ZOLWallData::getWeightWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    switch (blockType) {
    case 0:
        return bySize(row(7.0, 7.5, 7.5, 7.86, 8.22), blockSize);
    case 1:
        return bySize(row(3.5, 3.75, 3.75, 3.93, 4.12), blockSize);
    case 2:
        return bySize(row(8.0, 8.47, 9.83, 10.5, 10.5), blockSize);
    case 3:
        return bySize(row(4.0, 4.24, 4.92, 5.25, 5.25), blockSize);
    case 4:
        return bySize(row(6.4, 6.4, 6.4, 0.0, 0.0), blockSize);
    case 5:
        return bySize(row(0.0, 0.0, 7.6, 7.86, 0.0), blockSize);
    case 6:
        return bySize(row(0.0, 0.0, 9.92, 10.5, 0.0), blockSize);
    case 7:
        return bySize(row(0.0, 9.4, 9.4, 0.0, 0.0), blockSize);
    case 8:
        return bySize(row(0.0, 8.8, 8.9, 0.0, 0.0), blockSize);
    case 9:
        return bySize(row(0.0, 7.3, 7.3, 0.0, 0.0), blockSize);
    case 10:
        return bySize(row(0.0, 2.5, 0.0, 0.0, 0.0), blockSize);
    case 11:
        return narrowBuck(blockSize) ? 2.5 : 3.0;
    case 12:
        return 0.65;
    case 13:
        return 0.072;
    case 14:
        return 0.65;
    case 15:
        return 2.45;
    default: // 16
        return 0.15;
    }
}

int32_t ZOLWallData::getBundleSizeWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0;
    auto pieces = [blockSize](int32_t s4, int32_t s6, int32_t s8, int32_t s10, int32_t s12) {
        return static_cast<int32_t>(bySize(row(s4, s6, s8, s10, s12), blockSize));
    };
    switch (blockType) {
    case 0:
        return pieces(12, 12, 12, 9, 9);
    case 1:
        return pieces(24, 24, 24, 18, 18);
    case 2:
        return pieces(12, 12, 6, 6, 6);
    case 3:
        return pieces(24, 24, 12, 12, 12);
    case 4:
        return pieces(9, 9, 9, 0, 0);
    case 5:
        return pieces(0, 0, 12, 9, 0);
    case 6:
        return pieces(0, 0, 6, 6, 0);
    case 7:
        return pieces(0, 6, 6, 0, 0);
    case 8:
        return pieces(0, 9, 9, 0, 0);
    case 9:
        return pieces(0, 12, 12, 0, 0);
    case 10:
        return pieces(0, 27, 0, 0, 0);
    case 11:
        return 10;
    case 12:
        return 20;
    case 13:
        return 250;
    case 14:
        return 36;
    case 15:
        return 9;
    default: // 16
        return 200;
    }
}

double ZOLWallData::getTrailerAllowanceWithBlockType(int32_t blockType, int32_t blockSize) {
    if (!getValidSizeWithBlockType(blockType, blockSize))
        return 0.0;
    switch (blockType) {
    case 0:
    case 1: // half blocks are bundled to the same footprint as full ones
        return bySize(row(38.0, 45.5, 54.4, 54.0, 54.0), blockSize);
    case 2:
    case 3:
        return bySize(row(46.0, 53.0, 41.0, 49.25, 49.25), blockSize);
    case 4:
        return bySize(row(50.0, 40.0, 53.0, 0.0, 0.0), blockSize);
    case 5:
    case 6:
        return bySize(row(0.0, 0.0, 54.4, 54.0, 0.0), blockSize);
    case 7:
        return bySize(row(0.0, 40.25, 40.25, 0.0, 0.0), blockSize);
    case 8:
        return bySize(row(0.0, 45.25, 53.25, 0.0, 0.0), blockSize);
    case 9:
        return bySize(row(0.0, 45.25, 54.4, 0.0, 0.0), blockSize);
    case 10:
        return bySize(row(0.0, 39.0, 0.0, 0.0, 0.0), blockSize);
    case 11:
        return narrowBuck(blockSize) ? 11.5 : 13.25;
    case 12:
        return 17.0;
    case 13:
        return 11.0;
    case 14:
        return 17.0;
    case 15:
        return 2.64;
    default: // 16
        return 0.3;
    }
}

std::optional<std::string> ZOLWallData::getPartNameWithBlockType(int32_t blockType) {
    if (blockType < 0 || blockType >= kPartTypeCount)
        return std::nullopt;
    return std::string(kPartNames[blockType]);
}

std::optional<std::string> ZOLWallData::getBasicPartStringWithBlockType(int32_t blockType) {
    if (blockType == kUnknownPartType)
        return std::string();
    if (blockType < 0 || blockType >= kPartTypeCount)
        return std::nullopt;
    return std::string(kBasicPartStrings[blockType]);
}

int32_t ZOLWallData::getBlockTypeWithBasicPartString(std::string_view text) {
    for (const PartWord& entry : kPartWords)
        if (equalsLowerCased(text, entry.word))
            return entry.type;
    return kUnknownPartType;
}

int32_t ZOLWallData::getBlockTypeWithBasicPartString(const std::optional<std::string>& text) {
    return text ? getBlockTypeWithBasicPartString(std::string_view(*text)) : kUnknownPartType;
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
