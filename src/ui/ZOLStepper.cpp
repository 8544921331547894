#include "ui/ZOLStepper.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

ZOLStepper::ZOLStepper(QWidget* parent)
    : QWidget(parent), up_(new QToolButton(this)), down_(new QToolButton(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 1, 2, 1);
    layout->setSpacing(0);
    for (QToolButton* b : {up_, down_}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setAutoRepeat(true);
        b->setFixedSize(16, 12);
        b->setAutoRaise(false);
        layout->addWidget(b);
    }
    up_->setArrowType(Qt::UpArrow);
    down_->setArrowType(Qt::DownArrow);
    up_->setAccessibleName(tr("Add one"));
    down_->setAccessibleName(tr("Remove one"));
    connect(up_, &QToolButton::clicked, this, [this] { stepBy(1); });
    connect(down_, &QToolButton::clicked, this, [this] { stepBy(-1); });
    updateArrows();
}

void ZOLStepper::setValue(int value) {
    value_ = std::clamp(value, minimum_, std::max(minimum_, maximum_));
    updateArrows();
}

void ZOLStepper::setMinimum(int minimum) {
    minimum_ = minimum;
    setValue(value_);
}

void ZOLStepper::setMaximum(int maximum) {
    maximum_ = maximum;
    setValue(value_);
}

void ZOLStepper::stepBy(int count) {
    // Widened so that a step near the int range cannot overflow before the clamp.
    const long long wanted = static_cast<long long>(value_) +
                             static_cast<long long>(count) * static_cast<long long>(singleStep_);
    const long long clamped = std::clamp<long long>(wanted, minimum_, std::max(minimum_, maximum_));
    if (clamped == value_)
        return;
    value_ = static_cast<int>(clamped);
    updateArrows();
    emit stepped(value_);
}

QSize ZOLStepper::sizeHint() const {
    return {20, 26};
}

void ZOLStepper::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        stepBy(1);
        break;
    case Qt::Key_Down:
        stepBy(-1);
        break;
    case Qt::Key_PageUp:
        stepBy(10);
        break;
    case Qt::Key_PageDown:
        stepBy(-10);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void ZOLStepper::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    const int notches = event->angleDelta().y() / 120;
    if (notches != 0)
        stepBy(notches);
    event->accept();
}

void ZOLStepper::paintEvent(QPaintEvent*) {
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void ZOLStepper::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange)
        updateArrows();
    QWidget::changeEvent(event);
}

void ZOLStepper::updateArrows() {
    up_->setEnabled(isEnabled() && value_ < maximum_);
    down_->setEnabled(isEnabled() && value_ > minimum_);
}
