#include "model/ZOLWorksheet.h"

#include "io/ZOLFormat.h"
#include "io/ZOLXMLWriter.h"
#include "model/ZOLConcrete.h"
#include "model/ZOLManHours.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLRebar.h"
#include "model/ZOLTilt.h"
#include "model/ZOLWall.h"

ZOLWorksheet::ZOLWorksheet() : ZOLWorksheet(std::string("Worksheet 1")) {}

ZOLWorksheet::ZOLWorksheet(std::string name) : name_(std::move(name)) {
    concreteData_ = std::make_shared<ZOLConcrete>();
    manHourData_ = std::make_shared<ZOLManHours>();
    openingData_ = std::make_shared<ZOLOpenings>();
    rebarData_ = std::make_shared<ZOLRebar>();
    tiltData_ = std::make_shared<ZOLTilt>();
    wallData_ = std::make_shared<ZOLWall>();
}

void ZOLWorksheet::clear() {
    name_ = std::string();
    if (concreteData_)
        concreteData_->clear();
    if (openingData_)
        openingData_->clear();
    if (rebarData_)
        rebarData_->clear();
    if (tiltData_)
        tiltData_->clear();
    if (wallData_)
        wallData_->clear();
    if (manHourData_)
        manHourData_->clear();
}

std::string ZOLWorksheet::getXMLString() const {
    std::string out;
    appendXML(out);
    return out;
}

void ZOLWorksheet::appendXML(std::string& out) const {
    // The name goes between double quotes with its markup characters escaped, so that a
    // quotation mark in a name cannot end the attribute.
    ZOLFormat::append(out, "\t\t<Worksheet Name=\"%@\">\n", ZOLXMLWriter::escape(name_));
    if (concreteData_)
        concreteData_->appendXML(out);
    if (openingData_)
        openingData_->appendXML(out);
    if (rebarData_)
        rebarData_->appendXML(out);
    if (tiltData_)
        tiltData_->appendXML(out);
    if (wallData_)
        wallData_->appendXML(out);
    if (manHourData_)
        manHourData_->appendXML(out);
    out += "\t\t</Worksheet>\n";
}
