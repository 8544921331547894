#include "model/ZOLCustomItem.h"

#include <gtest/gtest.h>

TEST(ZOLCustomItemTest, NewLineIsAVisibleUserLineOfNothing) {
    ZOLCustomItem item;
    EXPECT_EQ(item.name(), "");
    EXPECT_EQ(item.unit(), "");
    EXPECT_EQ(item.calculatorType(), "");
    EXPECT_EQ(item.quantity(), 0.0);
    EXPECT_EQ(item.cost(), 0.0);
    EXPECT_FALSE(item.tiedToWorkbook());
    EXPECT_TRUE(item.visible());

    item.setName(std::string("x"));
    item.setVisible(false);
    item.setTiedToWorkbook(true);
    item.clear();
    EXPECT_EQ(item.name(), "");
    EXPECT_TRUE(item.visible());
    EXPECT_FALSE(item.tiedToWorkbook());
}

TEST(ZOLCustomItemTest, TemplateReaderCodesFillTheirOwnFields) {
    ZOLCustomItem item;
    item.setValue(std::string("Dumpster & haul"), 84);
    item.setValue(std::string("2.5 loads"), 85);
    item.setValue(std::string("Loads"), 86);
    item.setValue(std::string("375.10"), 87);
    item.setValue(std::string("YES"), 88);
    item.setValue(std::string("Tilt"), 89);
    item.setValue(std::string("false"), 90);
    EXPECT_EQ(item.name(), "Dumpster & haul");
    EXPECT_DOUBLE_EQ(item.quantity(), 2.5);
    EXPECT_EQ(item.unit(), "Loads");
    EXPECT_DOUBLE_EQ(item.cost(), 375.10);
    EXPECT_TRUE(item.tiedToWorkbook());
    EXPECT_EQ(item.calculatorType(), "Tilt");
    EXPECT_FALSE(item.visible());

    // Codes of the price list and of the records are not the line's.
    item.setValue(std::string("99"), 83);
    item.setValue(std::string("99"), 91);
    item.setValue(std::string("99"), 0);
    EXPECT_DOUBLE_EQ(item.quantity(), 2.5);
    EXPECT_DOUBLE_EQ(item.cost(), 375.10);

    // An empty element leaves the name absent; the template then writes it as "(null)".
    item.setValue(std::nullopt, 84);
    item.setValue(std::nullopt, 85);
    EXPECT_FALSE(item.name().has_value());
    EXPECT_EQ(item.quantity(), 0.0);
    EXPECT_NE(item.getXMLString().find("<Name>(null)</Name>"), std::string::npos);
}

TEST(ZOLCustomItemTest, ElementIsWrittenVerbatimWithSixDecimals) {
    ZOLCustomItem item;
    item.setName(std::string("Sealant <gray> & caulk"));
    item.setQuantity(12.5);
    item.setUnit(std::string("Tubes"));
    item.setCost(3.0);
    EXPECT_EQ(item.getXMLString(), "\t\t<CustomItem>\n"
                                   "\t\t\t<Name>Sealant <gray> & caulk</Name>\n"
                                   "\t\t\t<Quantity>12.500000</Quantity>\n"
                                   "\t\t\t<Unit>Tubes</Unit>\n"
                                   "\t\t\t<Cost>3.000000</Cost>\n"
                                   "\t\t\t<TiedToWorkbook>false</TiedToWorkbook>\n"
                                   "\t\t\t<CalculatorType></CalculatorType>\n"
                                   "\t\t\t<Visible>true</Visible>\n"
                                   "\t\t</CustomItem>\n");
}
