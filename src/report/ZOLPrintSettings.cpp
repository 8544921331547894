#include "report/ZOLPrintSettings.h"

#include "io/ZOLFormat.h"
#include "io/ZOLNumeric.h"

#include <utility>

const std::array<const char*, 10>& ZOLPrintSettings::keys() {
    static const std::array<const char*, 10> all = {
        kPrintAllWorksheets, kPrintConcrete, kPrintManHour, kPrintOpenings,   kPrintRebar,
        kPrintTilt,          kPrintWall,     kPrintSummary, kPrintJobSummary, kPrintProjectNotes};
    return all;
}

ZOLPrintSettings::ZOLPrintSettings(const ZOLPreferences& preferences) {
    for (const char* key : keys())
        this->*fieldForKey(key) = preferences.boolForKey(key);
}

bool ZOLPrintSettings::*ZOLPrintSettings::fieldForKey(const std::string& key) {
    if (key == kPrintAllWorksheets)
        return &ZOLPrintSettings::printAllWorksheets_;
    if (key == kPrintConcrete)
        return &ZOLPrintSettings::printConcrete_;
    if (key == kPrintManHour)
        return &ZOLPrintSettings::printManHour_;
    if (key == kPrintOpenings)
        return &ZOLPrintSettings::printOpenings_;
    if (key == kPrintRebar)
        return &ZOLPrintSettings::printRebar_;
    if (key == kPrintTilt)
        return &ZOLPrintSettings::printTilt_;
    if (key == kPrintWall)
        return &ZOLPrintSettings::printWall_;
    if (key == kPrintSummary)
        return &ZOLPrintSettings::printSummary_;
    if (key == kPrintJobSummary)
        return &ZOLPrintSettings::printJobSummary_;
    if (key == kPrintProjectNotes)
        return &ZOLPrintSettings::printProjectNotes_;
    return nullptr;
}

void ZOLPrintSettings::radioButtonChanged(int32_t tag) {
    if (tag == kAllWorksheetsTag)
        printAllWorksheets_ = true;
    else if (tag == kCurrentWorksheetTag)
        printAllWorksheets_ = false;
}

bool ZOLPrintSettings::checkboxChanged(const std::string& checkboxName, bool on) {
    static const std::pair<const char*, const char*> boxes[] = {
        {"printConcreteCheckbox", kPrintConcrete},
        {"printManHourCheckbox", kPrintManHour},
        {"printOpeningsCheckbox", kPrintOpenings},
        {"printRebarCheckbox", kPrintRebar},
        {"printSummaryCheckbox", kPrintSummary},
        {"printTiltCheckbox", kPrintTilt},
        {"printWallCheckbox", kPrintWall},
        {"printJobSummaryCheckbox", kPrintJobSummary},
        {"printProjectNotesCheckbox", kPrintProjectNotes},
    };
    for (const auto& [box, key] : boxes) {
        if (checkboxName == box) {
            this->*fieldForKey(key) = on;
            return true;
        }
    }
    return false;
}

int32_t ZOLPrintSettings::getPageCount() const {
    // The man-hours section is counted as two sheets; the openings as one, however many
    // pages their pagination really gives.
    int32_t perWorksheet = int32_t{printConcrete_} + 2 * int32_t{printManHour_} +
                           int32_t{printOpenings_} + int32_t{printRebar_} + int32_t{printTilt_} +
                           int32_t{printWall_};
    int32_t pages =
        printAllWorksheets_ ? ZOLNumeric::wrapMul(perWorksheet, numberOfWorksheets_) : perWorksheet;
    pages = ZOLNumeric::wrapAdd(pages, int32_t{printSummary_} + int32_t{printJobSummary_} +
                                           int32_t{printProjectNotes_});
    return pages;
}

std::string ZOLPrintSettings::getPageCountText() const {
    return ZOLFormat::format("Page Count: %d", getPageCount());
}

std::map<std::string, bool> ZOLPrintSettings::getZolPrintSettings() const {
    std::map<std::string, bool> settings;
    for (const char* key : keys())
        settings[key] = this->*fieldForKey(key);
    return settings;
}

void ZOLPrintSettings::acceptChanges(ZOLPreferences& preferences) {
    acceptChanges_ = true;
    for (const char* key : keys())
        preferences.setBoolForKey(key, this->*fieldForKey(key));
}
