#include "ui/graph/WidgetGraphBase.h"

#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphScene.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kRedrawInterval = 30;
constexpr int kRecalculationDelay = 50;
constexpr int kCursorDelay = 5000;
constexpr int kCountdown = 3;

QString colourName(float red, float green, float blue)
{
    return QColor::fromRgbF(std::clamp(red, 0.0F, 1.0F), std::clamp(green, 0.0F, 1.0F), std::clamp(blue, 0.0F, 1.0F)).name();
}

} // namespace

WidgetGraphBase::WidgetGraphBase(QWidget* pParent) : QWidget(pParent), mInteraction(mModel)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(160, 120);
    setAccessibleName(tr("Graph of the selected parameters"));
    connectModel();
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
    return std::clamp(static_cast<double>(QFontInfo(font()).pixelSize()) - 1.0, 8.0, 40.0);
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
    mInteraction.pressed(pEvent->button(), pEvent->position(), pEvent->modifiers());
}

void WidgetGraphBase::mouseMoveEvent(QMouseEvent* pEvent)
{
    mInteraction.moved(pEvent->position());
    setCursor(mInteraction.isPanning() && pEvent->buttons().testFlag(Qt::RightButton) ? Qt::ClosedHandCursor : Qt::ArrowCursor);
}

void WidgetGraphBase::mouseReleaseEvent(QMouseEvent* pEvent)
{
    const bool isMenu = mInteraction.released(pEvent->button(), pEvent->position());
    unsetCursor();
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
    mInteraction.moved(pEvent->position());
    // Some systems turn the wheel sideways while a modifier is held.
    const int delta = pEvent->angleDelta().y() != 0 ? pEvent->angleDelta().y() : pEvent->angleDelta().x();
    if (delta != 0)
        mInteraction.wheel(delta, pEvent->modifiers());
    pEvent->accept();
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
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        requestFrame();
}
