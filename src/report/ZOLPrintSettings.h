#pragma once
#include "platform/ZOLPreferences.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>

// What the user chose to print: all worksheets or the current one, and which of the nine
// sections. The print settings window drives it (its selector, its check boxes, its accept and
// cancel buttons); the choices live in the per-user preferences from one print to the next and
// reach the report as a dictionary keyed by the preference keys.
class ZOLPrintSettings {
public:
    // The ten preference keys, which are also the keys of the settings dictionary.
    static constexpr const char* kPrintAllWorksheets = "PrintAllWorksheets";
    static constexpr const char* kPrintConcrete = "PrintConcrete";
    static constexpr const char* kPrintManHour = "PrintManHour";
    static constexpr const char* kPrintOpenings = "PrintOpenings";
    static constexpr const char* kPrintRebar = "PrintRebar";
    static constexpr const char* kPrintTilt = "PrintTilt";
    static constexpr const char* kPrintWall = "PrintWall";
    static constexpr const char* kPrintSummary = "PrintSummary";
    static constexpr const char* kPrintJobSummary = "PrintJobSummary";
    static constexpr const char* kPrintProjectNotes = "PrintProjectNotes";
    static const std::array<const char*, 10>& keys();

    // The tags of the two choices of the worksheets selector.
    static constexpr int32_t kAllWorksheetsTag = 1;
    static constexpr int32_t kCurrentWorksheetTag = 2;

    // Everything off, as on first use.
    ZOLPrintSettings() = default;
    // The choices stored in the preferences; a key never stored reads as false.
    explicit ZOLPrintSettings(const ZOLPreferences& preferences);

    bool printAllWorksheets() const { return printAllWorksheets_; }
    void setPrintAllWorksheets(bool value) { printAllWorksheets_ = value; }
    bool printConcrete() const { return printConcrete_; }
    void setPrintConcrete(bool value) { printConcrete_ = value; }
    bool printManHour() const { return printManHour_; }
    void setPrintManHour(bool value) { printManHour_ = value; }
    bool printOpenings() const { return printOpenings_; }
    void setPrintOpenings(bool value) { printOpenings_ = value; }
    bool printRebar() const { return printRebar_; }
    void setPrintRebar(bool value) { printRebar_ = value; }
    bool printTilt() const { return printTilt_; }
    void setPrintTilt(bool value) { printTilt_ = value; }
    bool printWall() const { return printWall_; }
    void setPrintWall(bool value) { printWall_ = value; }
    bool printSummary() const { return printSummary_; }
    void setPrintSummary(bool value) { printSummary_ = value; }
    bool printJobSummary() const { return printJobSummary_; }
    void setPrintJobSummary(bool value) { printJobSummary_ = value; }
    bool printProjectNotes() const { return printProjectNotes_; }
    void setPrintProjectNotes(bool value) { printProjectNotes_ = value; }

    int32_t numberOfWorksheets() const { return numberOfWorksheets_; }
    void setNumberOfWorksheets(int32_t value) { numberOfWorksheets_ = value; }
    // True once the user accepted; a cancelled window prints nothing.
    bool acceptChanges() const { return acceptChanges_; }

    // The selector's tag: 1 all worksheets, 2 the current one; any other tag changes nothing.
    void radioButtonChanged(int32_t tag);
    // A check box of the window, by its control name ("printWallCheckbox"), is now on or off.
    // Returns false for a name that is not one of the nine boxes (nothing changes then).
    bool checkboxChanged(const std::string& checkboxName, bool on);

    // The estimated number of sheets: per worksheet one page a section, two for the man
    // hours, one for the openings however many there are; times the worksheets when all
    // print; plus one for each summary page.
    int32_t getPageCount() const;
    // The window's label: "Page Count: %d".
    std::string getPageCountText() const;

    // The dictionary the report reads, the ten keys each with its choice.
    std::map<std::string, bool> getZolPrintSettings() const;

    // The accept button: the choices are kept for the next print and the report may print.
    void acceptChanges(ZOLPreferences& preferences);

private:
    // The field behind a preference key; null for any other key.
    static bool ZOLPrintSettings::*fieldForKey(const std::string& key);

    bool printAllWorksheets_ = false;
    bool printConcrete_ = false;
    bool printManHour_ = false;
    bool printOpenings_ = false;
    bool printRebar_ = false;
    bool printTilt_ = false;
    bool printWall_ = false;
    bool printSummary_ = false;
    bool printJobSummary_ = false;
    bool printProjectNotes_ = false;
    int32_t numberOfWorksheets_ = 0;
    bool acceptChanges_ = false;
};
