#include "ui/map/MapProfile.h"

#include "ui/canvas/RasterCanvas.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kLines = 4.5; // of text, that it is high

} // namespace

MapProfile::MapProfile(QWidget* pParent) : QWidget(pParent)
{
    setObjectName(QStringLiteral("mapProfile"));
    setAccessibleName(tr("Altitude of the flight"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::PointingHandCursor);
}

void MapProfile::setPath(const MapPath& path, const QString& unit, double start)
{
    mStrip.set(path, unit, start);
    update();
}

void MapProfile::setShown(const std::optional<TimeSpan>& span)
{
    mStrip.setShown(span);
    update();
}

void MapProfile::setTime(double time)
{
    const bool isSeen = std::lround(mStrip.placeOf(time, width())) != std::lround(mStrip.placeOf(mTime, width()));
    mTime = time;
    if (isSeen)
        update();
}

QSize MapProfile::sizeHint() const
{
    return {200, static_cast<int>(kLines * fontMetrics().height())};
}

void MapProfile::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), mStyle.colours.stripGround);
    RasterCanvas canvas(painter);
    mStrip.draw(canvas, size(), mTime, mStyle);
}

void MapProfile::pick(double x)
{
    if (!mStrip.isEmpty())
        Q_EMIT signalTime(mStrip.timeAt(x, width()));
}

void MapProfile::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() == Qt::LeftButton)
        pick(pEvent->position().x());
    else
        QWidget::mousePressEvent(pEvent);
}

void MapProfile::mouseMoveEvent(QMouseEvent* pEvent)
{
    if (pEvent->buttons() & Qt::LeftButton)
        pick(pEvent->position().x());
}

void MapProfile::keyPressEvent(QKeyEvent* pEvent)
{
    const double step = pEvent->key() == Qt::Key_Left ? -1.0 : pEvent->key() == Qt::Key_Right ? 1.0 : 0.0;
    if (step == 0.0)
        return QWidget::keyPressEvent(pEvent);
    pick(mStrip.placeOf(mTime, width()) + step);
}

void MapProfile::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() != QEvent::FontChange && pEvent->type() != QEvent::StyleChange)
        return;
    mStyle.colours = Palette::screen().map;
    mStyle.textSize = QFontInfo(font()).pixelSize() - 1.0;
    updateGeometry();
    update();
}

} // namespace ZARN
