#include "ui/ZOLWallHeightBox.h"

#include "calc/ZOLCalculatorMaster.h"

#include <QComboBox>

void ZOLWallHeightBox::fill(QComboBox* box, const std::vector<double>& heights) {
    for (double height : heights)
        box->addItem(QString::fromStdString(ZOLCalculatorMaster::convertFeetToText(height)));
}

void ZOLWallHeightBox::select(QComboBox* box, const std::vector<double>& heights, double height) {
    int found = -1;
    for (size_t i = 0; i < heights.size(); ++i) {
        if (heights[i] == height) {
            found = static_cast<int>(i);
            break;
        }
    }
    box->setPlaceholderText(
        found < 0 ? QString::fromStdString(ZOLCalculatorMaster::convertFeetToText(height))
                  : QString());
    box->setCurrentIndex(found);
}

std::optional<double> ZOLWallHeightBox::chosen(QComboBox* box, const std::vector<double>& heights,
                                               int index) {
    if (index < 0 || static_cast<size_t>(index) >= heights.size())
        return std::nullopt;
    box->setPlaceholderText(QString());
    return heights[static_cast<size_t>(index)];
}
