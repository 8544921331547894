#pragma once
#include <QWidget>

#include <memory>
#include <string>

class ZOLWall;
namespace Ui {
class ZOLWallInfoViewController;
}

// The Wall Info tab: the wall's geometry and derived quantities, read-only.
class ZOLWallInfoViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLWallInfoViewController(QWidget* parent = nullptr);
    ~ZOLWallInfoViewController() override;

    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }
    void setWorksheetName(std::string worksheetName);

    // Shows the title and every value of the wall (creating a fresh wall if there is none).
    void loadValues();

signals:
    // Never emitted: the page only reads the wall. Kept so every screen offers the same hook.
    void edited();

private:
    std::unique_ptr<Ui::ZOLWallInfoViewController> ui_;
    std::shared_ptr<ZOLWall> wallData_;
    std::string worksheetName_;
};
