#include "model/ZOLOpening.h"

#include "calc/ZOLCalculatorMaster.h"
#include "calc/ZOLOpeningsCalculator.h"
#include "io/ZOLFormat.h"
#include "io/ZOLText.h"
#include "model/ZOLFileProperty.h"

using OC = ZOLOpeningsCalculator;

double ZOLOpening::getNetSquareFeet() const {
    // The buck allowance belongs to the linear feet only, never to the area.
    return ZOLCalculatorMaster::calculateSqFtWithWidth(openingWidth_, openingHeight_, true);
}

double ZOLOpening::getNetLinearFeet() const {
    return OC::calculateLFOpeningsWithOpeningHeight(openingHeight_, openingWidth_);
}

double ZOLOpening::getTotalSquareFeet() const {
    return getNetSquareFeet() * numberOfOpenings_;
}

double ZOLOpening::getTotalLinearFeet() const {
    return getNetLinearFeet() * numberOfOpenings_;
}

double ZOLOpening::getTotalLinearFeetOfBuck() const {
    return OC::calculateLFZolBuckWithOpeningHeight(openingHeight_, openingWidth_, useSill_) *
           numberOfOpenings_;
}

void ZOLOpening::appendXML(std::string& out) const {
    using F = ZOLFormat;
    out += "\t\t\t\t\t<Opening>\n";
    F::append(out, "\t\t\t\t\t\t<RowNumber>%d</RowNumber>\n", rowNumber_);
    F::append(out, "\t\t\t\t\t\t<NumberOfOpenings>%d</NumberOfOpenings>\n", numberOfOpenings_);
    F::append(out, "\t\t\t\t\t\t<OpeningWidth>%f</OpeningWidth>\n", openingWidth_);
    F::append(out, "\t\t\t\t\t\t<OpeningHeight>%f</OpeningHeight>\n", openingHeight_);
    F::append(out, "\t\t\t\t\t\t<UseSill>%@</UseSill>\n", ZOLText::boolText(useSill_));
    out += "\t\t\t\t\t</Opening>\n";
}

std::string ZOLOpening::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLOpening::setValue(const std::optional<std::string>& value, int32_t forProperty) {
    switch (forProperty) {
    case ZOLFileProperty::RowNumber:
        rowNumber_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::NumberOfOpenings:
        numberOfOpenings_ = ZOLText::leadingInt(value);
        break;
    case ZOLFileProperty::OpeningWidth:
        openingWidth_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::OpeningHeight:
        openingHeight_ = ZOLText::leadingDouble(value);
        break;
    case ZOLFileProperty::UseSill:
        useSill_ = ZOLText::boolValue(value);
        break;
    default: // another record's element
        break;
    }
}
