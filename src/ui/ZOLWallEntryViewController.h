#pragma once
#include "ui/ZOLEntryFields.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QToolButton;
class ZOLStepper;
class ZOLWall;
namespace Ui {
class ZOLWallEntryViewController;
}

// The Wall tab: height, length, block size, corners, special courses, openings and buck,
// blocks added by hand, calora sticks and accessories. Every edit goes straight into the
// worksheet's wall record; the take-off beside the fields follows each keystroke.
class ZOLWallEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLWallEntryViewController(QWidget* parent = nullptr);
    ~ZOLWallEntryViewController() override;

    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    // Shows the wall record (creating a fresh one if there is none) in every control.
    void loadValues();
    // Enables each shape's controls only for the block sizes that make that shape.
    void toggleControlsAvailable();

signals:
    // The screen changed the wall record.
    void edited();

private:
    ZOLWall& wall();
    // After a keystroke has written the field's value into the wall.
    void controlTextDidChange(QLineEdit* edit);
    void comboBoxSelectionDidChange(QComboBox* box, int index);
    void checkboxChanged(QCheckBox* box);
    void addStraightBlockStep();
    void addCornerBlockStep();
    void displayInfo(QObject* sender);
    void selectItem(QComboBox* box, int32_t value);
    void loadWallHeight();
    // The read-only results: total height and the take-off summary.
    void refreshResults();

    std::unique_ptr<Ui::ZOLWallEntryViewController> ui_;
    std::shared_ptr<ZOLWall> wallData_;
    ZOLEntryFields<ZOLWall> fields_;
    std::vector<std::pair<QToolButton*, int32_t>> infoButtons_;
};
