#include "ui/xy/WidgetXy.h"

#include "app/gui/TextSize.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/RasterCanvas.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace ZARN {

namespace {

constexpr QSize kLeast(320, 240);

} // namespace

WidgetXy::WidgetXy(QWidget* pParent) : QWidget(pParent)
{
    setMinimumSize(kLeast);
    setFocusPolicy(Qt::StrongFocus);
}

XyScene WidgetXy::scene(const QSize& size, const Palette& palette) const
{
    return {mPoints, palette, QSizeF(size), static_cast<double>(textSize(*this, EText::eDrawn))};
}

void WidgetXy::setPoints(XyPoints points)
{
    mPoints = std::move(points);
    mCursor.reset();
    mGround = {};
    update();
}

void WidgetXy::setCursorAt(const std::optional<XyCursor>& cursor)
{
    mCursor = cursor;
    update();
}

void WidgetXy::setMessage(const QString& text)
{
    mMessage = text;
    update();
}

void WidgetXy::paintOn(Canvas& canvas, const QSize& size, const Palette& palette) const
{
    const XyScene scene = this->scene(size, palette);
    scene.draw(canvas);
    if (mCursor)
        scene.drawCursor(canvas, *mCursor);
}

void WidgetXy::drawGround()
{
    mGround = QImage((QSizeF(size()) * devicePixelRatioF()).toSize(), QImage::Format_RGB32);
    mGround.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&mGround);
    RasterCanvas canvas(painter);
    scene(size(), Palette::screen()).draw(canvas);
}

void WidgetXy::changeEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::StyleChange)
        mGround = {};
    QWidget::changeEvent(pEvent);
}

void WidgetXy::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (mGround.deviceIndependentSize().toSize() != size())
        drawGround();
    QPainter painter(this);
    painter.drawImage(0, 0, mGround);
    if (mCursor && !mPoints.points().empty()) {
        RasterCanvas canvas(painter);
        scene(size(), Palette::screen()).drawCursor(canvas, *mCursor);
    }
    if (!mMessage.isEmpty()) {
        painter.setPen(textColourOn(mPoints.points().empty() ? Palette::screen().graph.ground : Palette::screen().graph.labelGround));
        painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap, mMessage);
    }
}

void WidgetXy::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(pEvent);
    if (const std::optional<double> time = scene(size(), Palette::screen()).timeAt(pEvent->position()))
        Q_EMIT signalTime(*time);
}

void WidgetXy::contextMenuEvent(QContextMenuEvent* pEvent)
{
    Q_EMIT signalMenu(pEvent->globalPos());
}

} // namespace ZARN
