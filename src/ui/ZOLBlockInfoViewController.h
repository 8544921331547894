#pragma once
#include "calc/ZOLWallData.h"

#include <QWidget>

#include <memory>

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

    // One row per part type, radius blocks and accessories included.
    static constexpr int kRowCount = ZOLWallData::kPartTypeCount;
    // The column identifiers of the part table, in column order.
    static QString columnIdentifier(int column);

signals:
    // The waste allowance was changed.
    void edited();

private:
    void comboBoxSelectionDidChange(int index);
    QString cellText(int row, const QString& identifier) const;

    std::unique_ptr<Ui::ZOLBlockInfoViewController> ui_;
    std::shared_ptr<ZOLWall> wallData_;
};
