#pragma once
#include <QDialog>

#include <memory>

namespace Ui {
class ZOLTabToggle;
}

// The window that chooses which estimates add their lines to the job summary: one switch each
// for the wall, rebar, concrete, tilt-up and man-hours lines. The job summary takes the
// switches back however the window is closed, OK, Escape or its close box alike.
class ZOLTabToggle : public QDialog {
    Q_OBJECT

public:
    // The workbook's five summarize switches.
    struct Switches {
        bool wall = true;
        bool rebar = true;
        bool concrete = true;
        bool tilt = true;
        bool manHours = true;
    };

    explicit ZOLTabToggle(QWidget* parent = nullptr);
    ~ZOLTabToggle() override;

    void setSwitches(const Switches& switches);
    // The switches as they stand in the window.
    Switches switches() const;

private:
    std::unique_ptr<Ui::ZOLTabToggle> ui_;
};
