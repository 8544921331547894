#pragma once
#include <QDialog>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class QSvgRenderer;
namespace Ui {
class ZOLInfoPopup;
}

// The information pop-up of the entry screens: one illustration of what a field measures,
// picked by the image index of the button that opened it or by the illustration's name.
// Illustrations are the SVG resources ":/info/NAME.svg".
class ZOLInfoPopup : public QDialog {
    Q_OBJECT

public:
    explicit ZOLInfoPopup(QWidget* parent = nullptr);
    ~ZOLInfoPopup() override;

    // The illustration name of an image index ("Wall_Height_Info" for 0); absent for an index
    // that names no illustration.
    static std::optional<std::string> imageNameForIndex(int32_t index);

    // Shows the illustration of the index; an index without one shows the empty pop-up.
    void setImageIndex(int32_t index);
    void setImageName(const std::string& name);
    // The illustration asked for, whether or not its picture could be loaded.
    const std::optional<std::string>& imageName() const { return imageName_; }
    // Whether the picture of the illustration was found and read.
    bool hasImage() const;

    // Opens the pop-up modally over the window of parent and waits until it is closed. An
    // index of -1 opens it without an illustration.
    static void display(QWidget* parent, int32_t index);
    // The same, by illustration name; nothing opens the pop-up without an illustration.
    static void displayNamed(QWidget* parent, const std::optional<std::string>& name);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void renderImage();

    std::unique_ptr<Ui::ZOLInfoPopup> ui_;
    std::unique_ptr<QSvgRenderer> renderer_;
    std::optional<std::string> imageName_;
};
