#include "ui/data/JumpSlider.h"

#include <QMetaMethod>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace ZARN {

namespace {

constexpr int kNotch = 120; // eighths of a degree

} // namespace

void JumpSlider::mousePressEvent(QMouseEvent* pEvent)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QPoint point = pEvent->position().toPoint();
    if (pEvent->button() == Qt::LeftButton && !handle.contains(point)) {
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), point.x() - groove.left() - handle.width() / 2,
                                                 groove.width() - handle.width(), option.upsideDown));
    }
    QSlider::mousePressEvent(pEvent); // takes the handle, which is there now
}

void JumpSlider::wheelEvent(QWheelEvent* pEvent)
{
    static const QMetaMethod wheel = QMetaMethod::fromSignal(&JumpSlider::signalWheel);
    if (!isSignalConnected(wheel))
        return QSlider::wheelEvent(pEvent);
    mWheel += pEvent->angleDelta().y();
    if (const int notches = mWheel / kNotch) {
        mWheel %= kNotch;
        Q_EMIT signalWheel(notches);
    }
    pEvent->accept();
}

} // namespace ZARN
