#pragma once
#include <QWidget>

#include <memory>

class ZOLOpenings;
class ZOLOpeningsTableModel;
class ZOLWall;
namespace Ui {
class ZOLOpeningsEntryViewController;
}

// The Openings tab: the worksheet's openings in an editable table, their totals, and the
// command that sends the totals to the wall record.
class ZOLOpeningsEntryViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLOpeningsEntryViewController(QWidget* parent = nullptr);
    ~ZOLOpeningsEntryViewController() override;

    void setOpeningData(std::shared_ptr<ZOLOpenings> openingData);
    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLOpenings>& openingData() const { return openingData_; }
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    // Reloads the table and the two totals.
    void loadValues();

    void addOpening();
    // Removes the selected row; does nothing when no row is selected.
    void removeOpening();
    void sendOpeningDataToWall();

signals:
    // The screen changed the openings list or the wall record.
    void edited();

private:
    std::unique_ptr<Ui::ZOLOpeningsEntryViewController> ui_;
    ZOLOpeningsTableModel* openingsModel_;
    std::shared_ptr<ZOLOpenings> openingData_;
    std::shared_ptr<ZOLWall> wallData_;
};
