#pragma once
#include "ui/ZOLEntryFields.h"

#include <QWidget>

#include <memory>

class ZOLTilt;
namespace Ui {
class ZOLTiltEntryViewController;
}

// The Tilt-Up tab: the height and length of the wall to cover, and the panels and inserts it
// takes, in parts, bundles and pounds, following every keystroke.
class ZOLTiltEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLTiltEntryViewController(QWidget* parent = nullptr);
    ~ZOLTiltEntryViewController() override;

    void setTiltData(std::shared_ptr<ZOLTilt> tiltData);
    const std::shared_ptr<ZOLTilt>& tiltData() const { return tiltData_; }

    // Shows the tilt-up record (creating a fresh one if there is none).
    void loadValues();
    void loadCalculatedValues();

signals:
    void edited();

private:
    ZOLTilt& tilt();

    std::unique_ptr<Ui::ZOLTiltEntryViewController> ui_;
    std::shared_ptr<ZOLTilt> tiltData_;
    ZOLEntryFields<ZOLTilt> fields_;
};
