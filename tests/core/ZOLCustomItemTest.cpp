#include "model/ZOLCustomItem.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

TEST(ZOLCustomItemTest, TemplateCodesFillTheLineWhichIsWrittenVerbatim) {
    ZOLCustomItem item;
    EXPECT_TRUE(item.visible());
    EXPECT_FALSE(item.tiedToWorkbook());
    const char* texts[] = {
        "Sealant <gray> & caulk", "2.5 loads", "Loads", "375.10", "YES", "Tilt", "false"};
    for (int32_t code = 84; code <= 90; ++code)
        item.setValue(std::string(texts[code - 84]), code);
    item.setValue(std::string("99"), 83); // codes of other records change nothing
    item.setValue(std::string("99"), 91);
    expectGoldenFile("xml/customitem-filled.xml", item.getXMLString());
    item.setUnit(std::nullopt); // an empty element read back
    EXPECT_NE(item.getXMLString().find("<Unit>(null)</Unit>"), std::string::npos);
}
