#include "model/ZOLOpenings.h"

ZOLOpenings::ZOLOpenings() {
    clear();
}

void ZOLOpenings::clear() {
    openingList_ = {};
}

void ZOLOpenings::addOpeningObject(std::shared_ptr<ZOLOpening> opening) {
    openingList_.push_back(std::move(opening));
}

double ZOLOpenings::getTotalSquareFeet() const {
    double total = 0.0;
    for (const auto& opening : openingList_)
        if (opening)
            total += opening->getTotalSquareFeet();
    return total;
}

double ZOLOpenings::getTotalLinearFeet() const {
    double total = 0.0;
    for (const auto& opening : openingList_)
        if (opening)
            total += opening->getTotalLinearFeet();
    return total;
}

double ZOLOpenings::getTotalLinearFeetOfBuck() const {
    double total = 0.0;
    for (const auto& opening : openingList_)
        if (opening)
            total += opening->getTotalLinearFeetOfBuck();
    return total;
}

void ZOLOpenings::appendXML(std::string& out) const {
    out += "\t\t\t<OpeningData>\n\t\t\t\t<OpeningList>\n";
    for (const auto& opening : openingList_)
        if (opening)
            opening->appendXML(out);
    out += "\t\t\t\t</OpeningList>\n\t\t\t</OpeningData>\n";
}

std::string ZOLOpenings::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}
