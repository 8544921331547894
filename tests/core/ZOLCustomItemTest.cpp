#include "model/ZOLCustomItem.h"

#include <gtest/gtest.h>

TEST(ZOLCustomItemTest, TemplateCodesFillTheLineAndOthersAreIgnored) {
    ZOLCustomItem item;
    EXPECT_TRUE(item.visible());
    EXPECT_FALSE(item.tiedToWorkbook());
    const char* texts[] = {"Dumpster", "2.5 loads", "Loads", "375.10", "YES", "Tilt", "false"};
    for (int32_t code = 84; code <= 90; ++code)
        item.setValue(std::string(texts[code - 84]), code);
    item.setValue(std::string("99"), 83);
    item.setValue(std::string("99"), 91);
    EXPECT_EQ(item.name(), "Dumpster");
    EXPECT_DOUBLE_EQ(item.quantity(), 2.5);
    EXPECT_EQ(item.unit(), "Loads");
    EXPECT_DOUBLE_EQ(item.cost(), 375.10);
    EXPECT_TRUE(item.tiedToWorkbook());
    EXPECT_EQ(item.calculatorType(), "Tilt");
    EXPECT_FALSE(item.visible());
}

TEST(ZOLCustomItemTest, ElementIsWrittenVerbatim) {
    ZOLCustomItem item;
    item.setName(std::string("Sealant <gray> & caulk"));
    item.setQuantity(12.5);
    item.setUnit(std::nullopt); // an empty element read back
    item.setCost(3.0);
    EXPECT_EQ(item.getXMLString(), "\t\t<CustomItem>\n"
                                   "\t\t\t<Name>Sealant <gray> & caulk</Name>\n"
                                   "\t\t\t<Quantity>12.500000</Quantity>\n"
                                   "\t\t\t<Unit>(null)</Unit>\n"
                                   "\t\t\t<Cost>3.000000</Cost>\n"
                                   "\t\t\t<TiedToWorkbook>false</TiedToWorkbook>\n"
                                   "\t\t\t<CalculatorType></CalculatorType>\n"
                                   "\t\t\t<Visible>true</Visible>\n"
                                   "\t\t</CustomItem>\n");
}
