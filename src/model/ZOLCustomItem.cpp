#include "model/ZOLCustomItem.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "io/ZOLXMLWriter.h"

ZOLCustomItem::ZOLCustomItem() {
    clear();
}

void ZOLCustomItem::clear() {
    name_ = std::string();
    quantity_ = 0.0;
    unit_ = std::string();
    cost_ = 0.0;
    tiedToWorkbook_ = false;
    calculatorType_ = std::string();
    visible_ = true;
}

std::string ZOLCustomItem::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLCustomItem::appendXML(std::string& out) const {
    // The template keeps what the user typed; only markup characters are escaped.
    ZOLFormat::append(out,
                      "\t\t<CustomItem>\n"
                             "\t\t\t<Name>%@</Name>\n"
                             "\t\t\t<Quantity>%f</Quantity>\n"
                             "\t\t\t<Unit>%@</Unit>\n"
                             "\t\t\t<Cost>%f</Cost>\n"
                             "\t\t\t<TiedToWorkbook>%@</TiedToWorkbook>\n"
                             "\t\t\t<CalculatorType>%@</CalculatorType>\n"
                             "\t\t\t<Visible>%@</Visible>\n"
                             "\t\t</CustomItem>\n",
                             ZOLXMLWriter::escape(name_), quantity_, ZOLXMLWriter::escape(unit_),
                             cost_, ZOLText::boolText(tiedToWorkbook_),
                             ZOLXMLWriter::escape(calculatorType_), ZOLText::boolText(visible_));
}

void ZOLCustomItem::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case 84:
        name_ = value;
        break;
    case 85:
        quantity_ = ZOLText::leadingDouble(value);
        break;
    case 86:
        unit_ = value;
        break;
    case 87:
        cost_ = ZOLText::leadingDouble(value);
        break;
    case 88:
        tiedToWorkbook_ = ZOLText::boolValue(value);
        break;
    case 89:
        calculatorType_ = value;
        break;
    case 90:
        visible_ = ZOLText::boolValue(value);
        break;
    default:
        break;
    }
}
