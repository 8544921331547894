#pragma once
#include <memory>
#include <string>

class ZOLConcrete;
class ZOLManHours;
class ZOLOpenings;
class ZOLRebar;
class ZOLTilt;
class ZOLWall;

// One named page of the estimate. It owns one record of each estimate kind;
// records are replaced, never shared with another worksheet.
class ZOLWorksheet {
public:
    // "Worksheet 1" with six default records.
    ZOLWorksheet();
    explicit ZOLWorksheet(std::string name);
    // Empties the name and clears every record in place (the record objects
    // stay).
    void clear();

    const std::string& name() const { return name_; }
    void setName(std::string value) { name_ = std::move(value); }
    const std::shared_ptr<ZOLConcrete>& concreteData() const { return concreteData_; }
    void setConcreteData(std::shared_ptr<ZOLConcrete> value) { concreteData_ = std::move(value); }
    const std::shared_ptr<ZOLOpenings>& openingData() const { return openingData_; }
    void setOpeningData(std::shared_ptr<ZOLOpenings> value) { openingData_ = std::move(value); }
    const std::shared_ptr<ZOLRebar>& rebarData() const { return rebarData_; }
    void setRebarData(std::shared_ptr<ZOLRebar> value) { rebarData_ = std::move(value); }
    const std::shared_ptr<ZOLTilt>& tiltData() const { return tiltData_; }
    void setTiltData(std::shared_ptr<ZOLTilt> value) { tiltData_ = std::move(value); }
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }
    void setWallData(std::shared_ptr<ZOLWall> value) { wallData_ = std::move(value); }
    const std::shared_ptr<ZOLManHours>& manHourData() const { return manHourData_; }
    void setManHourData(std::shared_ptr<ZOLManHours> value) { manHourData_ = std::move(value); }

    // The "Worksheet" element of the workbook file: the name attribute, then the
    // records in the file's fixed order concrete, openings, rebar, tilt-up, wall,
    // man hours.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;

private:
    std::string name_;
    std::shared_ptr<ZOLConcrete> concreteData_;
    std::shared_ptr<ZOLOpenings> openingData_;
    std::shared_ptr<ZOLRebar> rebarData_;
    std::shared_ptr<ZOLTilt> tiltData_;
    std::shared_ptr<ZOLWall> wallData_;
    std::shared_ptr<ZOLManHours> manHourData_;
};
