#pragma once
// The example files (the sample house, its price list and its job-summary template), the
// workbook a file's text opens as, and versions of the sample house edited the way a user edits
// a job, for the change-order tests: the text of the workbook file with one element's text
// replaced.
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLWorkbook.h"
#include "support/TempFolder.h"

#include <memory>
#include <stdexcept>
#include <string>

inline const std::string kSample = std::string(ZOL_SOURCE_DIR) + "/examples/sample-house.zol";
inline const std::string kPrices = std::string(ZOL_SOURCE_DIR) + "/examples/prices.zp";
inline const std::string kTemplate = std::string(ZOL_SOURCE_DIR) + "/examples/job-summary.zci";

inline std::string sampleHouseText() {
    return TempFolder::contents(kSample);
}

// The workbook a file's text opens as; a text that does not open cleanly as a workbook throws,
// which fails the test in either framework.
inline std::shared_ptr<ZOLWorkbook> openedWorkbook(const std::string& bytes) {
    auto result = ZOLWorkbookReader::readWorkbookData(bytes);
    if (!result.ok() || result.noWorkbookElement)
        throw std::runtime_error("the text does not open as a workbook");
    return result.workbook;
}

// The text with the first `from` after `after` replaced by `to`; throws when there is none,
// which fails the test in either framework.
inline std::string edited(std::string text, const std::string& after, const std::string& from,
                          const std::string& to) {
    const auto start = text.find(after);
    const auto at = start == std::string::npos ? start : text.find(from, start);
    if (at == std::string::npos)
        throw std::runtime_error("the sample holds no " + from);
    return text.replace(at, from.size(), to);
}

// The basement wall 12 ft longer (168 to 180 ft).
inline std::string longerBasement(const std::string& text) {
    return edited(text, "<WallData>", "<WallLength>168.000000", "<WallLength>180.000000");
}

// One more 48" x 48" window in the basement (3 to 4), with the area and buck the openings
// screen sends to the wall.
inline std::string basementWindowAdded(const std::string& text) {
    std::string out = edited(text, "Basement", "<NumberOfOpenings>3", "<NumberOfOpenings>4");
    out =
        edited(out, "<WallData>", "<SquareFeetOpenings>69.638889", "<SquareFeetOpenings>85.638889");
    return edited(out, "<WallData>", "<LinearFeetBuck>67.513333", "<LinearFeetBuck>84.183333");
}
