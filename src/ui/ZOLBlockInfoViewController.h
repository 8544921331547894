#pragma once
#include <QWidget>

#include <memory>

class ZOLBlockInfoTableModel;
class ZOLWall;
namespace Ui {
class ZOLBlockInfoViewController;
}

// The Block Info tab: part by part, the counts, bundles and weights of the wall, the total
// weight in full bundles, the truck loads, and the waste allowance of the straight blocks.
class ZOLBlockInfoViewController : public QWidget {
    Q_OBJECT

public:
    explicit ZOLBlockInfoViewController(QWidget* parent = nullptr);
    ~ZOLBlockInfoViewController() override;

    void setWallData(std::shared_ptr<ZOLWall> wallData);
    const std::shared_ptr<ZOLWall>& wallData() const { return wallData_; }

    void loadValues();

signals:
    // The waste allowance was changed.
    void edited();

private:
    void comboBoxSelectionDidChange(int index);

    std::unique_ptr<Ui::ZOLBlockInfoViewController> ui_;
    ZOLBlockInfoTableModel* partModel_;
    std::shared_ptr<ZOLWall> wallData_;
};
