#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The fixed catalogue of the Zol Blocks line: the eleven block shapes (types 0 to 10) and the
// six accessories (11 buck, 12 extender, 13 HV clips, 14 calora sticks, 15 Pravex, 16 pelmo),
// per block size (4, 6, 8, 10, 12 inches of concrete core). Type 17 means "not a part".
// Impossible combinations answer 0 or an absent name instead of failing.
class ZOLWallData {
public:
    ZOLWallData() = delete;

    static constexpr int32_t kPartTypeCount = 17; // types 0 to 16
    static constexpr int32_t kUnknownPartType = 17;
    static constexpr int32_t kDefaultBlockSize = 8;

    // Whether the part exists in that size. Types 0-3 and 11-16 exist in every size value (the
    // size tables then give 0 for a size the line does not make).
    static constexpr bool getValidSizeWithBlockType(int32_t blockType, int32_t blockSize) {
        // Compared unsigned so that negative types fall outside as well.
        if (static_cast<uint32_t>(blockType) > 16u)
            return false;
        switch (blockType) {
        case 4: // angle
            return blockSize == 4 || blockSize == 6 || blockSize == 8;
        case 5: // curb blocks
        case 6:
            return blockSize == 8 || blockSize == 10;
        case 7: // T, corbel, tapered
        case 8:
        case 9:
            return blockSize == 6 || blockSize == 8;
        case 10: // radius
            return blockSize == 6;
        default: // 0 to 3 and 11 to 16 take every size value
            return true;
        }
    }

    // Per-piece data; 0 for a pair that does not exist.
    static double getLengthWithBlockType(int32_t blockType, int32_t blockSize);      // inches
    static double getHeightWithBlockType(int32_t blockType, int32_t blockSize);      // inches
    static double getSquareFeetWithBlockType(int32_t blockType, int32_t blockSize);  // per piece
    static double getWeightWithBlockType(int32_t blockType, int32_t blockSize);      // pounds
    static int32_t getBundleSizeWithBlockType(int32_t blockType, int32_t blockSize); // pieces
    // Trailer space of one bundle; a truck holds 2520 units.
    static double getTrailerAllowanceWithBlockType(int32_t blockType, int32_t blockSize);

    // Display name ("90° Corner Block"); absent outside 0 to 16.
    static std::optional<std::string> getPartNameWithBlockType(int32_t blockType);
    // Key of the price list and workbook files ("Corner"); "" for 17, absent otherwise.
    static std::optional<std::string> getBasicPartStringWithBlockType(int32_t blockType);
    // Case-insensitive exact match of a basic part string; anything else gives 17.
    static int32_t getBlockTypeWithBasicPartString(std::string_view text);
    static int32_t getBlockTypeWithBasicPartString(const std::optional<std::string>& text);
    static int32_t getBlockTypeWithBasicPartString(const std::string& text) {
        return getBlockTypeWithBasicPartString(std::string_view(text));
    }
    static int32_t getBlockTypeWithBasicPartString(const char* text) {
        return getBlockTypeWithBasicPartString(std::string_view(text));
    }

    // "Four", "Six", "Eight", "Ten", "Twelve"; absent for any other size.
    static std::optional<std::string> getBasicSizeStringWithBlockSize(int32_t blockSize);
    // Case-insensitive exact match of a size word; anything else falls back to 8 inches, so
    // an unreadable size in a file gives an 8-inch wall.
    static int32_t getBlockSizeWithBasicSizeString(std::string_view text);
    static int32_t getBlockSizeWithBasicSizeString(const std::optional<std::string>& text);
    static int32_t getBlockSizeWithBasicSizeString(const std::string& text) {
        return getBlockSizeWithBasicSizeString(std::string_view(text));
    }
    static int32_t getBlockSizeWithBasicSizeString(const char* text) {
        return getBlockSizeWithBasicSizeString(std::string_view(text));
    }
};
