#include "report/ZOLPrintSettings.h"

#include <gtest/gtest.h>

namespace {

ZOLPrintSettings allSections() {
    ZOLPrintSettings settings;
    for (const char* box :
         {"printConcreteCheckbox", "printManHourCheckbox", "printOpeningsCheckbox",
          "printRebarCheckbox", "printSummaryCheckbox", "printTiltCheckbox", "printWallCheckbox",
          "printJobSummaryCheckbox", "printProjectNotesCheckbox"})
        EXPECT_TRUE(settings.checkboxChanged(box, true)) << box;
    return settings;
}

} // namespace

TEST(ZOLPrintSettings, FirstUseHasEverythingOffAndNoPages) {
    ZOLMemoryPreferences preferences;
    ZOLPrintSettings settings(preferences);
    EXPECT_EQ(settings.getPageCount(), 0);
    EXPECT_EQ(settings.getPageCountText(), "Page Count: 0");
    const auto dictionary = settings.getZolPrintSettings();
    ASSERT_EQ(dictionary.size(), 10u);
    for (const auto& [key, value] : dictionary)
        EXPECT_FALSE(value) << key;
    EXPECT_FALSE(settings.acceptChanges());
}

TEST(ZOLPrintSettings, PageCountCountsManHoursTwiceAndWorksheetsWhenAllPrint) {
    ZOLPrintSettings settings = allSections();
    settings.setNumberOfWorksheets(3);
    // Current worksheet: concrete 1, man hours 2, openings 1, rebar 1, tilt 1, wall 1, and the
    // three workbook pages.
    EXPECT_EQ(settings.getPageCount(), 10);
    settings.radioButtonChanged(ZOLPrintSettings::kAllWorksheetsTag);
    EXPECT_TRUE(settings.printAllWorksheets());
    EXPECT_EQ(settings.getPageCount(), 24);
    EXPECT_EQ(settings.getPageCountText(), "Page Count: 24");

    // Only the workbook pages: three, whatever the number of worksheets.
    for (const char* box :
         {"printConcreteCheckbox", "printManHourCheckbox", "printOpeningsCheckbox",
          "printRebarCheckbox", "printTiltCheckbox", "printWallCheckbox"})
        settings.checkboxChanged(box, false);
    settings.setNumberOfWorksheets(40);
    EXPECT_EQ(settings.getPageCount(), 3);

    // Man hours alone over an absurd worksheet count wraps like any other count, no overflow.
    ZOLPrintSettings manHours;
    manHours.setPrintManHour(true);
    manHours.setPrintAllWorksheets(true);
    manHours.setNumberOfWorksheets(2);
    EXPECT_EQ(manHours.getPageCount(), 4);
    manHours.setNumberOfWorksheets(INT32_MAX);
    EXPECT_EQ(manHours.getPageCount(), -2);
}

TEST(ZOLPrintSettings, SelectorAndCheckboxesChangeOnlyTheirOwnSetting) {
    ZOLPrintSettings settings;
    settings.radioButtonChanged(ZOLPrintSettings::kAllWorksheetsTag);
    settings.radioButtonChanged(7); // not a choice of the selector
    EXPECT_TRUE(settings.printAllWorksheets());
    settings.radioButtonChanged(ZOLPrintSettings::kCurrentWorksheetTag);
    EXPECT_FALSE(settings.printAllWorksheets());

    EXPECT_TRUE(settings.checkboxChanged("printTiltCheckbox", true));
    EXPECT_FALSE(settings.checkboxChanged("printEverythingCheckbox", true));
    const auto dictionary = settings.getZolPrintSettings();
    for (const auto& [key, value] : dictionary)
        EXPECT_EQ(value, key == "PrintTilt") << key;
}

TEST(ZOLPrintSettings, OnlyAcceptWritesThePreferences) {
    ZOLMemoryPreferences preferences;
    preferences.setBoolForKey("PrintRebar", true);
    preferences.setBoolForKey("PrintAllWorksheets", true);

    ZOLPrintSettings cancelled(preferences);
    EXPECT_TRUE(cancelled.printRebar());
    EXPECT_TRUE(cancelled.printAllWorksheets());
    cancelled.setPrintRebar(false);
    cancelled.setPrintWall(true);
    // Cancel: the window goes away without writing anything.
    ZOLPrintSettings reopened(preferences);
    EXPECT_TRUE(reopened.printRebar());
    EXPECT_FALSE(reopened.printWall());

    reopened.setPrintRebar(false);
    reopened.checkboxChanged("printJobSummaryCheckbox", true);
    reopened.radioButtonChanged(ZOLPrintSettings::kCurrentWorksheetTag);
    reopened.acceptChanges(preferences);
    EXPECT_TRUE(reopened.acceptChanges());
    EXPECT_FALSE(preferences.boolForKey("PrintRebar"));
    EXPECT_FALSE(preferences.boolForKey("PrintAllWorksheets"));
    EXPECT_TRUE(preferences.boolForKey("PrintJobSummary"));

    const auto dictionary = ZOLPrintSettings(preferences).getZolPrintSettings();
    EXPECT_EQ(dictionary, reopened.getZolPrintSettings());
}
