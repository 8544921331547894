// The print settings behind the window: what the window cannot ask for. The page counts, first
// use and what accept and cancel keep are checked on the window itself.
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
