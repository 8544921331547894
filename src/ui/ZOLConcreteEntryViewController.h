#pragma once
#include "ui/ZOLEntryFields.h"

#include <QWidget>

#include <cstdint>
#include <memory>

class ZOLConcrete;
class ZOLWall;
namespace Ui {
class ZOLConcreteEntryViewController;
}

// The Concrete tab: footing, wall, slab and piles, with the volume and weight of each pour and
// the totals following every edit. Volumes show in cubic yards or cubic metres; the entered
// sizes are never converted.
class ZOLConcreteEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLConcreteEntryViewController(QWidget* parent = nullptr);
    ~ZOLConcreteEntryViewController() override;

    void setConcreteData(std::shared_ptr<ZOLConcrete> concreteData);
    const std::shared_ptr<ZOLConcrete>& concreteData() const { return concreteData_; }
    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    // Shows the concrete record (creating a fresh one if there is none) in every control.
    void loadValues();
    void loadCalculatedValues();
    // Copies the wall's total height, length and block size from the wall record.
    void pullWallData();

signals:
    void edited();

private:
    ZOLConcrete& concrete();
    void changeMeasurement(int32_t measurement);

    std::unique_ptr<Ui::ZOLConcreteEntryViewController> ui_;
    std::shared_ptr<ZOLConcrete> concreteData_;
    std::shared_ptr<ZOLWall> wallData_;
    ZOLEntryFields<ZOLConcrete> fields_;
};
