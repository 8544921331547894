#include "model/ZOLCustomItem.h"

#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "io/ZOLXMLWriter.h"
#include "model/ZOLFileProperty.h"

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
    case ZOLFileProperty::Name:
        name_ = value;
        break;
    case ZOLFileProperty::Quantity:
        quantity_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::Unit:
        unit_ = value;
        break;
    case ZOLFileProperty::Cost:
        cost_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::TiedToWorkbook:
        tiedToWorkbook_ = ZOLText::boolValue(value);
        break;
    case ZOLFileProperty::CalculatorType:
        calculatorType_ = value;
        break;
    case ZOLFileProperty::Visible:
        visible_ = ZOLText::boolValue(value);
        break;
    default:
        break;
    }
}
