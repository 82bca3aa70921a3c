#pragma once

#include <QSlider>

namespace ZARN {

/// A horizontal slider whose handle comes to where the groove is pressed, and can be dragged on from there.
class JumpSlider : public QSlider {
    Q_OBJECT

public:
    explicit JumpSlider(QWidget* pParent = nullptr) : QSlider(Qt::Horizontal, pParent) {}

Q_SIGNALS:
    /// Notches of the mouse wheel, upwards positive. Whoever listens moves the slider.
    void signalWheel(int notches);

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;

private:
    int mWheel = 0; ///< turned, but not yet a notch
};

} // namespace ZARN
