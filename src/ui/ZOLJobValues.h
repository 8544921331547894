#pragma once
#include "model/ZOLConcrete.h"
#include "model/ZOLCustomItem.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpening.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class ZOLWorkbook;
class ZOLWorksheet;

// The values of a job's records at one moment, copied out of the workbook so that a change can
// be taken back: each part holds values, never the record objects the screens are showing, and
// putting a part back assigns its values into those same objects.
//
// A change is two of these holding only the parts that differ (what was, what is).
class ZOLJobValues {
public:
    struct Sheet {
        ZOLWall wall;
        ZOLConcrete concrete;
        ZOLRebar rebar;
        ZOLTilt tilt;
        ZOLManHours manHours;
        std::vector<ZOLOpening> openings;
        bool operator==(const Sheet&) const = default;
    };
    struct Header {
        std::optional<std::string> projectName, clientName, projectVersion, distributorName;
        std::optional<int64_t> projectDate;
        bool operator==(const Header&) const = default;
    };
    struct Summary {
        std::vector<ZOLCustomItem> lines;
        bool roundToFullBundles = false;
        std::vector<bool> switches;
        bool operator==(const Summary&) const = default;
    };
    // The worksheets in their order, each with its name.
    using SheetList = std::vector<std::pair<std::shared_ptr<ZOLWorksheet>, std::string>>;

    static ZOLJobValues capture(const ZOLWorkbook& workbook);
    // The parts that differ between two captures: `before` and `after` each get those parts'
    // values.
    static void difference(const ZOLJobValues& was, const ZOLJobValues& is, ZOLJobValues& before,
                           ZOLJobValues& after);
    // Puts the parts this holds back into the workbook's records.
    void applyTo(ZOLWorkbook& workbook) const;

    bool isEmpty() const;
    // Whether two changes touch the same parts, so that one can continue the other.
    bool sameParts(const ZOLJobValues& other) const;

    std::optional<SheetList> sheetList;
    // The worksheets whose records differ, with their values.
    std::vector<std::pair<std::shared_ptr<ZOLWorksheet>, Sheet>> sheets;
    std::optional<Header> header;
    std::optional<std::optional<std::string>> notes;
    std::optional<std::vector<ZOLPriceItem>> prices;
    std::optional<Summary> summary;

    bool operator==(const ZOLJobValues&) const = default;
};
