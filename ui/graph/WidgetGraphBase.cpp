#include "ui/graph/WidgetGraphBase.h"

#include "app/gui/TextSize.h"
#include "app/gui/AccessibleText.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphDescription.h"
#include "ui/graph/model/GraphScene.h"

#include <QContextMenuEvent>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kRedrawInterval = 30;
constexpr int kRecalculationDelay = 50;
constexpr int kCursorDelay = 5000;
constexpr int kCountdown = 3;
constexpr double kPixelsAnAngle = 0.5; // of the wheel, where it does not tell pixels itself

QString colourName(float red, float green, float blue)
{
    return QColor::fromRgbF(std::clamp(red, 0.0F, 1.0F), std::clamp(green, 0.0F, 1.0F), std::clamp(blue, 0.0F, 1.0F)).name();
}

} // namespace

WidgetGraphBase::WidgetGraphBase(QWidget* pParent) : QWidget(pParent), mInteraction(mModel)
{
    ZARN::AccessibleText::give(*this, [this] { return ZARN::GraphDescription(mModel).text(); });
    setFocusPolicy(Qt::StrongFocus);
    grabGesture(Qt::PinchGesture);
    setMouseTracking(true);
    setMinimumSize(160, 120);
    setAccessibleName(tr("Graph of the selected parameters"));
    connectModel();
    mRedrawTimer.setParent(this);
    mRedrawTimer.setObjectName("redraw");
    mRecalculationTimer.setParent(this);
    mRecalculationTimer.setObjectName("recalculation");
    mRecalculationTimer.setSingleShot(true);
    mCursorTimer.setSingleShot(true);
    connect(&mRedrawTimer, &QTimer::timeout, this, &WidgetGraphBase::slotRedraw);
    connect(&mRecalculationTimer, &QTimer::timeout, this, &WidgetGraphBase::slotRecalculate);
    connect(&mCursorTimer, &QTimer::timeout, this, [this] { mModel.setCursorMoving(false); });
    mRedrawTimer.start(kRedrawInterval);
}

void WidgetGraphBase::connectModel()
{
    using ZARN::GraphModel;
    connect(&mModel, &GraphModel::signalRepaint, this, &WidgetGraphBase::requestFrame);
    connect(&mModel, &GraphModel::signalWindow, this, [this] {
        mCountdown = kCountdown;
        if (!mRecalculationTimer.isActive())
            mRecalculationTimer.start(kRecalculationDelay);
    });
    connect(&mModel, &GraphModel::signalCursor, this, &WidgetGraphBase::signalCursor);
    connect(&mModel, &GraphModel::signalMoveCursorFinished, this, &WidgetGraphBase::signalMoveCursorFinished);
    connect(&mModel, &GraphModel::signalMarker, this, &WidgetGraphBase::signalMarker);
    connect(&mModel, &GraphModel::signalManMode, this, &WidgetGraphBase::signalManMode);
    connect(&mModel, &GraphModel::signalMoveParameter, this, &WidgetGraphBase::signalMoveParameter);
}

void WidgetGraphBase::useSurface(ZARN::Surface::EKind kind)
{
    delete mpSurface;
    const ZARN::SurfacePainting painting{
        .background = mModel.colours().labelBackground,
        .update = [this](const QSize& size, double ratio) { updateFrame(size, ratio); },
        .paint =
            [this](ZARN::Canvas& canvas, VESK::OpenGL::Device*) {
                paint(canvas);
                mPacer.end();
            },
        .paintAbove = nullptr,
        .release = nullptr,
        .failed = [this](const QString&) { useSurface(ZARN::Surface::EKind::ePainter); },
    };
    mpSurface = ZARN::Surface::create(kind, painting, this);
    mpSurface->widget().setObjectName("graphSurface");
    mpSurface->widget().setGeometry(rect());
    mpSurface->widget().show();
    requestFrame();
}

void WidgetGraphBase::setXrange(float seconds)
{
    mModel.setWindow(mModel.window().ofWidth(static_cast<double>(seconds), mModel.settings().graphMode));
}

void WidgetGraphBase::setBackColor(float red, float green, float blue)
{
    set(&ZARN::GraphData::backColor, colourName(red, green, blue));
}

void WidgetGraphBase::setGridColor(float red, float green, float blue)
{
    set(&ZARN::GraphData::gridColor, colourName(red, green, blue));
}

void WidgetGraphBase::setLabelColor(float red, float green, float blue)
{
    set(&ZARN::GraphData::labelColor, colourName(red, green, blue));
}

void WidgetGraphBase::setLabelBackColor(float red, float green, float blue)
{
    set(&ZARN::GraphData::labelBackColor, colourName(red, green, blue));
}

void WidgetGraphBase::setParameterColor(int index, float red, float green, float blue)
{
    mModel.traces().setColour(index, QColor(colourName(red, green, blue)));
}

bool WidgetGraphBase::getValue(int index, double time, double& value) const
{
    const ZARN::GraphParameter* pTrace = mModel.traces().at(index);
    const auto position = pTrace ? pTrace->samples.lastAtOrBefore(time) : std::nullopt;
    if (position)
        value = pTrace->samples.value(*position);
    return position.has_value();
}

void WidgetGraphBase::getParameterRangeX(int index, double& first, double& last) const
{
    const ZARN::GraphParameter* pTrace = mModel.traces().at(index);
    const bool isEmpty = !pTrace || pTrace->samples.empty();
    first = isEmpty ? 0.0 : pTrace->samples.time(0);
    last = isEmpty ? 0.0 : pTrace->samples.time(pTrace->samples.size() - 1);
}

void WidgetGraphBase::getParameterRangeY(int index, double& lower, double& upper) const
{
    const ZARN::ValueSpan span = mModel.traces().at(index) ? mModel.valueSpan(index) : ZARN::ValueSpan{};
    lower = span[0];
    upper = span[1];
}

double WidgetGraphBase::getCurrentAverageValue() const
{
    double sum = 0.0;
    for (const int index : mModel.traces().shown())
        sum += mModel.traces().at(index)->samples.average();
    return nrActive() > 0 ? sum / nrActive() : 0.0;
}

void WidgetGraphBase::getAutoPara(double min, double max, double length, double spacing, float& step, int& subdivisions)
{
    ZARN::getAutoPara(min, max, length, spacing, step, subdivisions);
}

void WidgetGraphBase::getAutoFormat(float step, QString& format)
{
    ZARN::getAutoFormat(step, format);
}

double WidgetGraphBase::textSize() const
{
    return ZARN::textSize(*this, ZARN::EText::eDrawn);
}

void WidgetGraphBase::paintOn(ZARN::Canvas& canvas, const QSizeF& size, double ratio) const
{
    ZARN::GraphFrame frame;
    frame.update(mModel, size, textSize(), ratio);
    ZARN::GraphScene(mModel, frame).draw(canvas);
}

void WidgetGraphBase::updateFrame(const QSize& size, double ratio)
{
    mFrameWanted = false;
    mPacer.begin();
    ++mFrames;
    mModel.extendToPresent();
    mFrame.update(mModel, size, textSize(), ratio);
    mInteraction.setLayout(mFrame.layout());
}

void WidgetGraphBase::paint(ZARN::Canvas& canvas) const
{
    ZARN::GraphScene(mModel, mFrame, mInteraction.dragged()).draw(canvas);
}

void WidgetGraphBase::requestFrame()
{
    mFrameWanted = true;
    if (mpSurface && (!mIsPaced || mPacer.isDue()))
        mpSurface->requestFrame();
}

void WidgetGraphBase::slotRedraw()
{
    if (mFrameWanted && mpSurface && isVisible() && mPacer.isDue())
        mpSurface->requestFrame();
}

void WidgetGraphBase::slotRecalculate()
{
    if (!mFrame.traces().isCurrent(mModel.traces(), mModel.window()))
        requestFrame();
    if (mCountdown-- >= 1)
        mRecalculationTimer.start(kRecalculationDelay);
}

void WidgetGraphBase::keyPressEvent(QKeyEvent* pEvent)
{
    const bool isMoved = mModel.cursor().isMoving;
    Q_EMIT signalHand();
    if (!mInteraction.keyPressed(pEvent->key(), pEvent->modifiers()))
        return QWidget::keyPressEvent(pEvent);
    if (isMoved || mModel.cursor().isMoving)
        mCursorTimer.start(kCursorDelay);
}

void WidgetGraphBase::keyReleaseEvent(QKeyEvent* pEvent)
{
    if (!mInteraction.keyReleased(pEvent->key()))
        QWidget::keyReleaseEvent(pEvent);
}

void WidgetGraphBase::mousePressEvent(QMouseEvent* pEvent)
{
    Q_EMIT signalHand();
    mInteraction.pressed(pEvent->button(), pEvent->position(), pEvent->modifiers());
}

void WidgetGraphBase::mouseMoveEvent(QMouseEvent* pEvent)
{
    if (pEvent->buttons() != Qt::NoButton)
        Q_EMIT signalHand();
    mInteraction.moved(pEvent->position());
    setCursor(mInteraction.shape());
}

void WidgetGraphBase::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    Q_EMIT signalHand();
    if (pEvent->button() != Qt::LeftButton || !mInteraction.doublePressed(pEvent->position(), pEvent->modifiers()))
        mousePressEvent(pEvent);
}

void WidgetGraphBase::mouseReleaseEvent(QMouseEvent* pEvent)
{
    const bool isMenu = mInteraction.released(pEvent->button(), pEvent->position());
    setCursor(mInteraction.shape());
    if (isMenu)
        Q_EMIT signalMenu(pEvent->globalPosition().toPoint());
}

void WidgetGraphBase::contextMenuEvent(QContextMenuEvent* pEvent)
{
    // With the mouse the menu comes when the button is released, for a press begins to pan.
    if (pEvent->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT signalMenu(mapToGlobal(rect().center()));
}

void WidgetGraphBase::wheelEvent(QWheelEvent* pEvent)
{
    Q_EMIT signalHand();
    mInteraction.moved(pEvent->position());
    const QPoint angle = pEvent->angleDelta();
    // Some systems turn the wheel sideways while a modifier is held; without one it is a touch pad or a wheel that tilts.
    if (std::abs(angle.x()) > std::abs(angle.y()) && pEvent->modifiers() == Qt::NoModifier)
        mInteraction.swiped(pEvent->pixelDelta().x() != 0 ? pEvent->pixelDelta().x() : angle.x() * kPixelsAnAngle);
    else if (angle != QPoint())
        mInteraction.wheel(angle.y() != 0 ? angle.y() : angle.x(), pEvent->modifiers());
    pEvent->accept();
}

bool WidgetGraphBase::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::NativeGesture) { // of a touch pad
        const auto* pGesture = static_cast<QNativeGestureEvent*>(pEvent);
        if (pGesture->gestureType() != Qt::ZoomNativeGesture)
            return QWidget::event(pEvent);
        pinched(1 + pGesture->value(), pGesture->position());
        return true;
    }
    if (pEvent->type() == QEvent::Gesture) { // of a touch screen
        const auto* pPinch = static_cast<QPinchGesture*>(static_cast<QGestureEvent*>(pEvent)->gesture(Qt::PinchGesture));
        if (!pPinch)
            return QWidget::event(pEvent);
        pinched(pPinch->scaleFactor() / pPinch->lastScaleFactor(), mapFromGlobal(pPinch->centerPoint()));
        return true;
    }
    return QWidget::event(pEvent);
}

void WidgetGraphBase::pinched(double scale, const QPointF& point)
{
    Q_EMIT signalHand();
    mInteraction.moved(point);
    mInteraction.zoom(1 / scale);
}

void WidgetGraphBase::leaveEvent(QEvent*)
{
    mInteraction.left();
}

void WidgetGraphBase::focusOutEvent(QFocusEvent* pEvent)
{
    mInteraction.forgetKeys();
    QWidget::focusOutEvent(pEvent);
}

void WidgetGraphBase::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    if (mpSurface)
        mpSurface->widget().setGeometry(rect());
    requestFrame();
}

void WidgetGraphBase::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::StyleChange && mModel.settings().followScreen())
        mModel.settingsChanged();
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        requestFrame();
}
