#pragma once
#include "model/ZOLOpening.h"

#include <memory>
#include <string>
#include <vector>

// The openings of one worksheet's wall. The list is never changed in place: an edit builds a
// new list and stores it whole.
class ZOLOpenings {
public:
    ZOLOpenings();
    void clear();

    const std::vector<std::shared_ptr<ZOLOpening>>& openingList() const { return openingList_; }
    void setOpeningList(std::vector<std::shared_ptr<ZOLOpening>> list) {
        openingList_ = std::move(list);
    }
    // Appends one row to the list.
    void addOpeningObject(std::shared_ptr<ZOLOpening> opening);

    // Sums over the rows, in list order.
    double getTotalSquareFeet() const;
    double getTotalLinearFeet() const;
    double getTotalLinearFeetOfBuck() const;

    // The "OpeningData" element of the workbook file, rows in list order.
    std::string getXMLString() const;
    void appendXML(std::string& out) const;

private:
    std::vector<std::shared_ptr<ZOLOpening>> openingList_;
};
