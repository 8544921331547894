// The print settings behind the window: what the window cannot ask for, and what accept writes.
// The page counts and first use are checked on the window itself.
#include "report/ZOLPrintSettings.h"

#include <gtest/gtest.h>

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
