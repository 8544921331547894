#include "ui/ZOLInfoPopup.h"
#include "ui_ZOLInfoPopup.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>

namespace {
// Image indexes of the information buttons. 3 is unused; the job summary's three buttons
// use 28 to 30.
struct IndexedImage {
    int32_t index;
    const char* name;
};
constexpr std::array<IndexedImage, 18> kImages{{
    {0, "Wall_Height_Info"},
    {1, "Wall_Length_Info"},
    {2, "In_Out_Corners_Info"},
    {4, "Angle_Info"},
    {5, "T_Block_Info"},
    {6, "Corbel_Info"},
    {7, "Curb_Info"},
    {8, "Taper_Top_Info"},
    {9, "Radius_Info"},
    {10, "Buck_Info"},
    {11, "Add_Remove_Straight_Info"},
    {12, "Add_Remove_Corner_Info"},
    {13, "Calora_Stick_Info"},
    {14, "Cut_Half_Block_Info"},
    {15, "Extenders_Info"},
    {28, "Custom_Item_Info"},
    {29, "Adjust_Tab_Info"},
    {30, "Custom_Item_Template_Info"},
}};
} // namespace

ZOLInfoPopup::ZOLInfoPopup(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ZOLInfoPopup>()) {
    ui_->setupUi(this);
    setModal(true);
}

ZOLInfoPopup::~ZOLInfoPopup() = default;

std::optional<std::string> ZOLInfoPopup::imageNameForIndex(int32_t index) {
    for (const auto& image : kImages)
        if (image.index == index)
            return std::string(image.name);
    return std::nullopt;
}

void ZOLInfoPopup::setImageIndex(int32_t index) {
    if (auto name = imageNameForIndex(index))
        setImageName(*name);
}

void ZOLInfoPopup::setImageName(const std::string& name) {
    imageName_ = name;
    // Titles read "Wall Height" for "Wall_Height_Info".
    QString title = QString::fromStdString(name);
    title.remove(QStringLiteral("_Info"));
    title.replace(QLatin1Char('_'), QLatin1Char(' '));
    setWindowTitle(title);
    auto renderer = std::make_unique<QSvgRenderer>(
        QStringLiteral(":/info/%1.svg").arg(QString::fromStdString(name)));
    if (renderer->isValid()) {
        renderer->setAspectRatioMode(Qt::KeepAspectRatio);
        renderer_ = std::move(renderer);
    } else {
        renderer_.reset();
    }
    renderImage();
}

bool ZOLInfoPopup::hasImage() const {
    return renderer_ != nullptr;
}

void ZOLInfoPopup::display(QWidget* parent, int32_t index) {
    ZOLInfoPopup popup(parent ? parent->window() : nullptr);
    popup.setImageIndex(index);
    popup.exec();
}

void ZOLInfoPopup::displayNamed(QWidget* parent, const std::optional<std::string>& name) {
    ZOLInfoPopup popup(parent ? parent->window() : nullptr);
    if (name)
        popup.setImageName(*name);
    else
        popup.renderImage();
    popup.exec();
}

void ZOLInfoPopup::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    renderImage();
}

void ZOLInfoPopup::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    renderImage();
}

void ZOLInfoPopup::renderImage() {
    QLabel* target = ui_->infoImage;
    if (!renderer_) {
        // No picture: a short note on the window's own background instead of an empty white
        // frame, and a pop-up only as large as the note.
        target->setPixmap(QPixmap());
        target->setStyleSheet(QString());
        target->setMinimumSize(0, 0);
        target->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        target->setText(tr("There is no illustration for this item."));
        if (!isVisible())
            resize(minimumSizeHint().expandedTo(QSize(360, 0)));
        return;
    }
    // Drawn at the screen's pixel density so that lines stay crisp on high-resolution screens.
    const qreal ratio = target->devicePixelRatioF();
    const QSize logical = target->contentsRect().size();
    if (logical.isEmpty())
        return;
    QPixmap pixmap(logical * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer_->render(&painter, QRectF(QPointF(0, 0), QSizeF(logical)));
    painter.end();
    target->setPixmap(pixmap);
}
