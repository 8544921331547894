#pragma once
#include "model/ZOLCustomItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorksheet.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ZOLConcrete;
class ZOLManHours;
class ZOLRebar;
class ZOLTilt;
class ZOLWall;

// The root of one estimate: named worksheets in display order, the price list,
// the project header and notes, the job-summary lines and the switches that
// steer the summaries.
class ZOLWorkbook {
public:
    using Worksheets = std::vector<std::shared_ptr<ZOLWorksheet>>;
    using CustomItems = std::vector<std::shared_ptr<ZOLCustomItem>>;

    // A new estimate: the defaults of clear() plus one worksheet "Worksheet 1".
    ZOLWorkbook();
    // No worksheets, a fresh default price list, empty texts, today's date, no
    // rounding, no job-summary lines, every summary switch on.
    void clear();

    const Worksheets& worksheets() const { return worksheets_; }
    void setWorksheets(Worksheets value) { worksheets_ = std::move(value); }
    const std::shared_ptr<ZOLPricing>& pricingData() const { return pricingData_; }
    void setPricingData(std::shared_ptr<ZOLPricing> value) { pricingData_ = std::move(value); }
    const std::optional<std::string>& projectName() const { return projectName_; }
    void setProjectName(std::optional<std::string> value) { projectName_ = std::move(value); }
    const std::optional<std::string>& clientName() const { return clientName_; }
    void setClientName(std::optional<std::string> value) { clientName_ = std::move(value); }
    // Seconds since the Unix epoch; absent when a file held a date that could not
    // be read.
    const std::optional<int64_t>& projectDate() const { return projectDate_; }
    void setProjectDate(std::optional<int64_t> value) { projectDate_ = value; }
    const std::optional<std::string>& projectVersion() const { return projectVersion_; }
    void setProjectVersion(std::optional<std::string> value) { projectVersion_ = std::move(value); }
    const std::optional<std::string>& distributorName() const { return distributorName_; }
    void setDistributorName(std::optional<std::string> value) {
        distributorName_ = std::move(value);
    }
    bool roundToFullBundles() const { return roundToFullBundles_; }
    void setRoundToFullBundles(bool value) { roundToFullBundles_ = value; }
    const std::optional<std::string>& notes() const { return notes_; }
    void setNotes(std::optional<std::string> value) { notes_ = std::move(value); }
    const CustomItems& customItems() const { return customItems_; }
    void setCustomItems(CustomItems value) { customItems_ = std::move(value); }
    bool summarizeWall() const { return summarizeWall_; }
    void setSummarizeWall(bool value) { summarizeWall_ = value; }
    bool summarizeRebar() const { return summarizeRebar_; }
    void setSummarizeRebar(bool value) { summarizeRebar_ = value; }
    bool summarizeConcrete() const { return summarizeConcrete_; }
    void setSummarizeConcrete(bool value) { summarizeConcrete_ = value; }
    bool summarizeTilt() const { return summarizeTilt_; }
    void setSummarizeTilt(bool value) { summarizeTilt_ = value; }
    bool summarizeManHours() const { return summarizeManHours_; }
    void setSummarizeManHours(bool value) { summarizeManHours_ = value; }

    // Appends the worksheet unless one of that exact name exists; a taken name
    // raises the alert "A worksheet with that name already exists." and changes
    // nothing.
    void addWorksheetsObject(std::shared_ptr<ZOLWorksheet> worksheet);
    bool worksheetExistsWithName(const std::string& name) const;
    // The alert of a taken name, for a reader that gathers the worksheets itself.
    static void alertDuplicateName();

    double getTotalGrossSquareFeet() const;
    double getTotalNetSquareFeet() const;

    // Rebuilds the generated job-summary lines from the worksheets: the wall
    // package, rebar, concrete, tilt-up and man-hours lines, in that order. A
    // workbook without worksheets keeps its lines as they are.
    void generateCustomItems();

    void generateWallItem();
    // The wall package line: every part priced from the list, for the block sizes
    // that the workbook's worksheets use.
    std::shared_ptr<ZOLCustomItem>
    getWallSummaryItemForWalls(const std::vector<std::shared_ptr<ZOLWall>>& walls,
                               const std::shared_ptr<ZOLPricing>& withPricing,
                               bool roundToFullBundles, bool visible) const;
    void generateRebarItems();
    static CustomItems
    getRebarSummaryItemsForRebars(const std::vector<std::shared_ptr<ZOLRebar>>& rebars,
                                  bool visible);
    void generateConcreteItems();
    static CustomItems
    getConcreteSummaryItemsWithConcretes(const std::vector<std::shared_ptr<ZOLConcrete>>& concretes,
                                         bool visible);
    void generateTiltItem();
    static std::shared_ptr<ZOLCustomItem>
    getTiltSummaryItemWithTilts(const std::vector<std::shared_ptr<ZOLTilt>>& tilts, bool visible);
    void generateManHoursItem();
    static std::shared_ptr<ZOLCustomItem>
    getManHourSummaryItemWithManHours(const std::vector<std::shared_ptr<ZOLManHours>>& manHours,
                                      bool visible);
    // Merges a generated line into customItems: the first tied line of the same
    // source and name takes its quantity and visibility (keeping its own price);
    // otherwise it is appended.
    void updateCustomItem(const std::shared_ptr<ZOLCustomItem>& item);

    // The workbook file.
    std::string getXMLString() const;
    // The job-summary template file holding every line of customItems.
    std::string getCustomItemTemplateXMLString() const;

    // Room for one worksheet's and one job-summary line's elements in the files.
    static constexpr std::size_t kXMLBytesPerWorksheet = 4096;
    static constexpr std::size_t kXMLBytesPerCustomItem = 256;

private:
    // Zeroes and hides the tied lines of that source whose names were just
    // generated.
    void hideGeneratedLines(const std::string& calculatorType, const CustomItems& generated);

    Worksheets worksheets_;
    std::shared_ptr<ZOLPricing> pricingData_;
    std::optional<std::string> projectName_;
    std::optional<std::string> clientName_;
    std::optional<int64_t> projectDate_;
    std::optional<std::string> projectVersion_;
    std::optional<std::string> distributorName_;
    bool roundToFullBundles_ = false;
    std::optional<std::string> notes_;
    CustomItems customItems_;
    bool summarizeWall_ = true;
    bool summarizeRebar_ = true;
    bool summarizeConcrete_ = true;
    bool summarizeTilt_ = true;
    bool summarizeManHours_ = true;
};
