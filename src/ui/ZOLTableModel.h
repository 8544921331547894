#pragma once
#include <QAbstractTableModel>
#include <QString>

#include <vector>

// What the tables of the screens share: a fixed set of headed columns, and a row count that
// follows the records the way a worksheet's rows do (lines added or dropped at the end, the
// rows that stay keep their selection) while every cell is read again from the records.
class ZOLTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Heading {
        QString text;
        // Left empty, the heading sits where the header puts every heading.
        Qt::Alignment alignment = {};
    };

    explicit ZOLTableModel(std::vector<Heading> headings, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

protected:
    // Shows `rows` rows and repaints every cell from the records.
    void showRows(int rows);
    // The cell's row is one the table shows and the column one of its headings.
    bool isShown(const QModelIndex& index) const;

private:
    std::vector<Heading> headings_;
    int rows_ = 0;
};
