#pragma once
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

class ZOLConcrete;
class ZOLManHours;
class ZOLOpenings;
class ZOLRebar;
class ZOLTilt;
class ZOLWall;
class ZOLWorkbook;
class ZOLWorksheet;

// The printed report: one HTML document of US Letter pages, built as a string from the workbook
// as it stands. Every page is a div of class "page" with a div of class "content" inside; the
// estimate pages of each worksheet come in a fixed order, then the workbook-wide pages.
// User texts (names, notes) are inserted as typed; the renderer keeps them from running script
// or reaching the network.
class ZOLPrintData {
public:
    ZOLPrintData() = delete;

    // The print settings dictionary (see ZOLPrintSettings); a missing key counts as false.
    using Settings = std::map<std::string, bool>;

    // The folder of the program's resources; the page background is a file inside it. It starts
    // as the source tree's resources folder, so that programs run from the build tree find it.
    static void setResourcesDirectory(const std::string& directory);
    static std::string resourcesDirectory();
    // The full-page background artwork the header's style sheet names.
    static std::string backgroundImagePath();

    // How many pages a report holds: each prints on one sheet at the least.
    static int32_t getPageCountWithHTML(const std::string& html);

    static std::string getHeaderHTML();
    static std::string getFooterHTML();
    // The block under every page title. worksheet may be null (the workbook-wide pages).
    // projectDate is seconds since the epoch; without one the Date line stays empty.
    static std::string getProjectInfoHTML(const std::shared_ptr<ZOLWorksheet>& worksheet,
                                          const std::optional<std::string>& projectName,
                                          const std::optional<std::string>& projectVersion,
                                          const std::optional<std::string>& clientName,
                                          const std::optional<std::string>& distributorName,
                                          std::optional<int64_t> projectDate);

    // The whole report for all worksheets.
    static std::string getHTMLWithWorkbook(const std::shared_ptr<ZOLWorkbook>& workbook,
                                           const Settings& settings);
    // The whole report for the worksheet at worksheetIndex (a negative index is the first).
    static std::string getHTMLWithWorkbook(const std::shared_ptr<ZOLWorkbook>& workbook,
                                           int32_t worksheetIndex, const Settings& settings);

    // The estimate pages of one worksheet.
    static std::string getConcreteHTML(const std::shared_ptr<ZOLConcrete>& concrete,
                                       const std::string& projectInfo);
    static std::string getManHourHTML(const std::shared_ptr<ZOLManHours>& manHours,
                                      const std::string& projectInfo);
    static std::string getOpeningsHTML(const std::shared_ptr<ZOLOpenings>& openings,
                                       const std::string& projectInfo, int32_t currentOpeningPage,
                                       int32_t totalOpeningPages);
    static std::string getRebarHTML(const std::shared_ptr<ZOLRebar>& rebar,
                                    const std::string& projectInfo);
    static std::string getTiltHTML(const std::shared_ptr<ZOLTilt>& tilt,
                                   const std::string& projectInfo);
    static std::string getWallHTML(const std::shared_ptr<ZOLWall>& wall,
                                   const std::string& projectInfo);

    // The workbook-wide pages that close the report.
    static std::string getSummaryHTML(const std::shared_ptr<ZOLWorkbook>& workbook);
    static std::string getJobSummaryHTML(const std::shared_ptr<ZOLWorkbook>& workbook);
    static std::string getProjectNotesHTML(const std::shared_ptr<ZOLWorkbook>& workbook);
};
