#include "model/ZOLCustomItem.h"
#include "support/RecordFile.h"

#include <gtest/gtest.h>

TEST(ZOLCustomItem, TemplateCodesFillTheLineWhichIsWrittenWithMarkupEscaped) {
    EXPECT_TRUE(ZOLCustomItem().visible());
    EXPECT_FALSE(ZOLCustomItem().tiedToWorkbook());
    const CodeTexts line = {{85, "2.5 loads"}, {86, "Loads"}, {87, "375.10"},
                            {88, "YES"},       {89, "Tilt"},  {90, "false"}};
    ZOLCustomItem item = readRecord<ZOLCustomItem>(line);
    item.setValue(std::string("Sealant <gray> & \"caulk\""), 84); // markup escaped
    EXPECT_NE(item.getXMLString().find("<Name>Sealant &lt;gray&gt; &amp; &quot;caulk&quot;</Name>"),
              std::string::npos);
    expectOtherCodesIgnored(item, 84, 90);
    item.setUnit(std::nullopt); // an empty element read back
    EXPECT_NE(item.getXMLString().find("<Unit>(null)</Unit>"), std::string::npos);
}
