#pragma once
#include "ui/ZOLEntryFields.h"

#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class ZOLRebar;
class ZOLWall;
namespace Ui {
class ZOLRebarEntryViewController;
}

// The Rebar tab: the wall's length and height, two sets of horizontal bars, the vertical bars
// and the dowels, with the length of each set and the totals per bar size following every edit.
class ZOLRebarEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLRebarEntryViewController(QWidget* parent = nullptr);
    ~ZOLRebarEntryViewController() override;

    void setRebarData(std::shared_ptr<ZOLRebar> rebarData);
    const std::shared_ptr<ZOLRebar>& rebarData() const { return rebarData_; }
    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    // Shows the rebar record (creating a fresh one if there is none). The spacing and dowel
    // fields keep what they show: they are written only by typing.
    void loadValues();
    void loadCalculatedValues();
    // Copies the wall's height (on a 4-inch step) and length from the wall record.
    void pullWallData();

    // The list position (from 0) whose total each of the four total lines shows.
    int32_t totalSizeIndex(int line) const { return totalSizeIndex_.at(static_cast<size_t>(line)); }

signals:
    void edited();

private:
    ZOLRebar& rebar();
    void hideTotals();
    void changeMeasurement(int32_t measurement);
    void comboBoxSelectionDidChange(QComboBox* box, int index);
    void selectSize(QComboBox* box, int32_t size);
    // The name of a stored size in the record's list, or what the screen shows instead.
    QString sizeName(int32_t size);

    std::unique_ptr<Ui::ZOLRebarEntryViewController> ui_;
    std::shared_ptr<ZOLRebar> rebarData_;
    std::shared_ptr<ZOLWall> wallData_;
    ZOLEntryFields<ZOLRebar> fields_;
    std::array<int32_t, 4> totalSizeIndex_{};
};
