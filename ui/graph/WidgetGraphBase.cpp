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
    connect(&mModel, &GraphModel::signalRecalculate, this, [this] {
        if (!mRecalculationTimer.isActive())
            mRecalculationTimer.start(kRecalculationDelay);
    });
    connect(&mModel, &GraphModel::signalCursor, this, &WidgetGraphBase::signalCursor);
    connect(&mModel, &GraphModel::signalMoveCursorFinished, this, &WidgetGraphBase::signalMoveCursorFinished);
    connect(&mModel, &GraphModel::signalMarker, this, &WidgetGraphBase::signalMarker);
    connect(&mModel, &GraphModel::signalManMode, this, &WidgetGraphBase::signalManMode);
    connect(&mModel, &GraphModel::signalMoveParameter, this, &WidgetGraphBase::signalMoveParameter);
}

void WidgetGraphBase::useSurface(CreateSurface createSurface)
{
    delete mpSurface;
    const ZARN::GraphPainting painting{
        [this](ZARN::Canvas& canvas, const QSize& size, double ratio) { paint(canvas, size, ratio); },
        [this] { useSurface(&ZARN::createPainterSurface); },
    };
    mpSurface = createSurface(painting, this);
    mpSurface->setGeometry(rect());
    mpSurface->show();
    requestFrame();
}

void WidgetGraphBase::setColour(ZARN::GraphColour ZARN::GraphColours::*pMember, const ZARN::GraphColour& colour)
{
    ZARN::GraphColours colours = mModel.colours();
    colours.*pMember = colour;
    mModel.setColours(colours);
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

void WidgetGraphBase::paintOn(ZARN::Canvas& canvas, const QSizeF& size, double ratio)
{
    const ZARN::GraphLayout layout = ZARN::GraphScene::prepare(mModel, size, textSize(), ratio);
    canvas.fillRect(QRectF(QPointF(), size), mModel.colours().labelBackground.colour());
    ZARN::GraphScene(mModel, layout).draw(canvas);
}

void WidgetGraphBase::paint(ZARN::Canvas& canvas, const QSize& size, double ratio)
{
    mFrameWanted = false;
    mPacer.begin();
    ++mFrames;
    mLayout = ZARN::GraphScene::prepare(mModel, size, textSize(), ratio);
    mInteraction.setLayout(mLayout);
    canvas.fillRect(QRectF(QPointF(), QSizeF(size)), mModel.colours().labelBackground.colour());
    ZARN::GraphScene scene(mModel, mLayout);
    scene.setDragged(mInteraction.draggedStrip(), mInteraction.dragY());
    scene.draw(canvas);
    mPacer.end();
}

void WidgetGraphBase::requestFrame()
{
    mFrameWanted = true;
    if (mpSurface && (!mIsPaced || mPacer.isDue()))
        mpSurface->update();
}

void WidgetGraphBase::slotRedraw()
{
    if (mFrameWanted && mpSurface && isVisible() && mPacer.isDue())
        mpSurface->update();
}

void WidgetGraphBase::slotRecalculate()
{
    if (mModel.recalculate())
        mRecalculationTimer.start(kRecalculationDelay);
}

void WidgetGraphBase::keyPressEvent(QKeyEvent* pEvent)
{
    const bool isMoved = mModel.isCursorMoving();
    if (!mInteraction.keyPressed(pEvent->key(), pEvent->modifiers()))
        return QWidget::keyPressEvent(pEvent);
    if (isMoved || mModel.isCursorMoving())
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
        mpSurface->setGeometry(rect());
    requestFrame();
}

void WidgetGraphBase::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        requestFrame();
}
