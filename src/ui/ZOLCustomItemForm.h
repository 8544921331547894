#pragma once
#include <QDialog>

#include <memory>

class ZOLCustomItem;
namespace Ui {
class ZOLCustomItemForm;
}

// The form of one job summary line: name, quantity, unit and price per unit, with Add (Save
// for a line that exists) and Cancel. Return accepts, Escape cancels. The line takes the
// form's values only when the form is accepted, and only those the user changed, so that
// saving a line does not round what the fields show.
//
// A line generated from the worksheets keeps its name and quantity: the next reload would
// put its quantity back, and a renamed line would no longer be found and would come again.
class ZOLCustomItemForm : public QDialog {
    Q_OBJECT

public:
    // The form of `customItem`, or of a new line when none is given.
    explicit ZOLCustomItemForm(std::shared_ptr<ZOLCustomItem> customItem,
                               QWidget* parent = nullptr);
    ~ZOLCustomItemForm() override;

    // The line the form edits: the one given, or the new line.
    const std::shared_ptr<ZOLCustomItem>& customItem() const { return customItem_; }
    // The price per unit as it stands in the form: the number its text starts with.
    double pricePerUnit() const;

    void accept() override;

private:
    void updateAcceptButton();

    std::unique_ptr<Ui::ZOLCustomItemForm> ui_;
    std::shared_ptr<ZOLCustomItem> customItem_;
    bool generated_ = false;
};
