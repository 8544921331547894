#pragma once
#include <array>
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

    // The part types. The values are those the files, the price lists and the take-off tables
    // are indexed by, so they never change.
    enum PartType : int32_t {
        Straight = 0,
        StraightHalf = 1,
        Corner = 2,
        CornerHalf = 3,
        Angle = 4,
        StraightCurb = 5,
        CornerCurb = 6,
        TBlock = 7,
        Corbel = 8,
        Tapered = 9,
        Radius = 10,
        Buck = 11,
        Extender = 12,
        HVClips = 13,
        CaloraSticks = 14,
        Pravex = 15,
        Pelmo = 16,
        NoPart = 17, // what the parser gives for a word that names no part
    };
    static constexpr int32_t kPartTypeCount = NoPart; // types 0 to 16
    // The price list and the summaries take the block shapes and the buck per block size, and
    // the accessories after them once for every size.
    static constexpr int32_t kLastSizedPartType = Buck;
    static constexpr int32_t kFirstAccessory = Extender;
    static constexpr int32_t kLastAccessory = Pelmo;

    // The block sizes of the line, smallest first.
    static constexpr std::array<int32_t, 5> kBlockSizes{4, 6, 8, 10, 12};
    static constexpr int32_t kDefaultBlockSize = 8;
    // The size an accessory's price item carries: it has none, and is filed under the largest.
    static constexpr int32_t kNoSize = 12;

    // Whether the part exists in that size. Types 0-3 and 11-16 exist in every size value (the
    // size tables then give 0 for a size the line does not make).
    static constexpr bool getValidSizeWithBlockType(int32_t blockType, int32_t blockSize) {
        // Compared unsigned so that negative types fall outside as well.
        if (static_cast<uint32_t>(blockType) > static_cast<uint32_t>(Pelmo))
            return false;
        switch (blockType) {
        case Angle:
            return blockSize == 4 || blockSize == 6 || blockSize == 8;
        case StraightCurb:
        case CornerCurb:
            return blockSize == 8 || blockSize == 10;
        case TBlock:
        case Corbel:
        case Tapered:
            return blockSize == 6 || blockSize == 8;
        case Radius:
            return blockSize == 6;
        default: // 0 to 3 and 11 to 16 take every size value
            return true;
        }
    }

    // Extenders, HV clips and calora sticks are sold without a size: the price list answers
    // them whatever size is asked for and names them without one.
    static constexpr bool isSoldWithoutSize(int32_t blockType) {
        return blockType == Extender || blockType == HVClips || blockType == CaloraSticks;
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
