#pragma once
#include <optional>
#include <vector>

class QComboBox;

// The wall-height boxes of the wall, rebar and man-hours tabs: the heights of a course list,
// each shown as feet and inches, and the record's height selected in it.
class ZOLWallHeightBox {
public:
    ZOLWallHeightBox() = delete;
    static void fill(QComboBox* box, const std::vector<double>& heights);
    // Selects the item equal to `height`. A height from a file that is on no step of the list
    // shows its own feet and inches, with no item selected.
    static void select(QComboBox* box, const std::vector<double>& heights, double height);
    // The height the user chose at `index`; nothing for an index off the list.
    static std::optional<double> chosen(QComboBox* box, const std::vector<double>& heights,
                                        int index);
};
