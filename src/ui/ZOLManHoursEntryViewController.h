#pragma once
#include "ui/ZOLEntryFields.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <string>

class QComboBox;
class ZOLManHours;
class ZOLWall;
namespace Ui {
class ZOLManHoursEntryViewController;
}

// The Man-Hours tab: the labour facts of the worksheet with the rating of each, and the
// man-hour rate, hours, days and labour cost that follow from them as the user types.
class ZOLManHoursEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLManHoursEntryViewController(QWidget* parent = nullptr);
    ~ZOLManHoursEntryViewController() override;

    void setManHourData(std::shared_ptr<ZOLManHours> manHourData);
    const std::shared_ptr<ZOLManHours>& manHourData() const { return manHourData_; }
    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    // Shows the man-hours record (creating a fresh one if there is none) in every control.
    void loadValues();
    void loadCalculatedValues();
    // Copies corners and Ts, special courses, openings, wall area and height from the wall.
    void pullDataFromWall();

    // The illustration a control opens, by the control's name; nothing for a control that has
    // none (among them the corbel and wall-height buttons, whose keys name their fields).
    static std::optional<std::string> infoKeyForControl(const QString& objectName);

signals:
    void edited();

private:
    ZOLManHours& manHours();
    void comboBoxSelectionDidChange(QComboBox* box, int index);
    void displayInfo(const QObject* sender);

    std::unique_ptr<Ui::ZOLManHoursEntryViewController> ui_;
    std::shared_ptr<ZOLManHours> manHourData_;
    std::shared_ptr<ZOLWall> wallData_;
    ZOLEntryFields<ZOLManHours> fields_;
};
