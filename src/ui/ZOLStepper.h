#pragma once
#include <QWidget>

class QToolButton;

// A pair of up and down arrows that steps a whole number, shown beside the text field that
// displays it (the field stays the place to type; the arrows add or remove one at a time).
// Keyboard: Up/Down step once, Page Up/Page Down step ten.
class ZOLStepper : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)

public:
    explicit ZOLStepper(QWidget* parent = nullptr);

    int value() const { return value_; }
    // Sets the value within the range without emitting stepped(): used when the field was typed.
    void setValue(int value);
    int minimum() const { return minimum_; }
    void setMinimum(int minimum);
    int maximum() const { return maximum_; }
    void setMaximum(int maximum);
    int singleStep() const { return singleStep_; }
    void setSingleStep(int step) { singleStep_ = step; }

    // A user step of count increments; clamps to the range and emits stepped() on a change.
    void stepBy(int count);

    QSize sizeHint() const override;

signals:
    // The user moved the value with the arrows or the keyboard.
    void stepped(int value);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void updateArrows();

    QToolButton* up_;
    QToolButton* down_;
    int value_ = 0;
    int minimum_ = 0;
    int maximum_ = 99;
    int singleStep_ = 1;
};
