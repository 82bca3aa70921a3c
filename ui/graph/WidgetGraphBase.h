#pragma once

#include "ui/canvas/FramePacer.h"
#include "ui/gl/Surface.h"
#include "ui/graph/model/GraphFrame.h"
#include "ui/graph/model/GraphInteraction.h"

#include <QTimer>
#include <QWidget>

/// What the two graph widgets have in common, which is all but the surface that they are drawn on: the model behind every operation, the
/// events, the timers and the frame. Where the surface cannot draw, the toolkit's painter takes over.
class WidgetGraphBase : public QWidget {
    Q_OBJECT

public:
    explicit WidgetGraphBase(QWidget* pParent = nullptr);

    [[nodiscard]] ZARN::GraphModel& model() { return mModel; }
    [[nodiscard]] const ZARN::GraphModel& model() const { return mModel; }

    void setXmin(float seconds) { mModel.setWindow(mModel.window().from(static_cast<double>(seconds))); }
    void setXmax(float seconds) { mModel.setWindow(mModel.window().to(static_cast<double>(seconds))); }
    void setYmin(float value) { setScale(&ZARN::ValueScale::lower, static_cast<double>(value)); }
    void setYmax(float value) { setScale(&ZARN::ValueScale::upper, static_cast<double>(value)); }
    void setT0(float seconds) { mModel.setWindow(mModel.window().startingAt(static_cast<double>(seconds))); }
    void setXrange(float seconds);
    void zoomToMarker() { mModel.zoomToMarker(); }
    void setTime(double seconds) { mModel.setTime(seconds); }
    void setCursorPosition(double seconds) { mModel.setCursorPosition(seconds); }
    void setCursorMode(ZARN::eCursorMode mode) { set(&ZARN::GraphData::cursorMode, mode); }
    void setDisplayMode(ZARN::eDisplayMode mode) { set(&ZARN::GraphData::displayMode, mode); }
    void setGraphMode(ZARN::eGraphMode mode) { set(&ZARN::GraphData::graphMode, mode); }
    void setBackColor(float red, float green, float blue);
    void setGridColor(float red, float green, float blue);
    void setLabelColor(float red, float green, float blue);
    void setLabelBackColor(float red, float green, float blue);
    void activateGrid(bool on) { set(&ZARN::GraphData::gridOn, on); }
    void activateCursor(bool on) { set(&ZARN::GraphData::cursorOn, on); }
    void activateLegend(bool on) { set(&ZARN::GraphData::legendOn, on); }
    void activateSamples(int index, bool on) { mModel.traces().setSamplesVisible(index, on); }
    void setActive(int index, bool on) { mModel.traces().setActive(index, on); }
    void setMaxParameters(int count) { mModel.traces().setCount(count); }
    void setPrecision(int index, int digits) { mModel.traces().setPrecision(index, digits); }
    void setParameterColor(int index, float red, float green, float blue);
    void setParameterName(int index, const QString& name, const QString& unit) { mModel.traces().setName(index, name, unit); }
    void setAutoScaleY(bool on) { setScale(&ZARN::ValueScale::isAutomatic, on); }
    void setAutoScaleYSpread(double spread) { setScale(&ZARN::ValueScale::spread, spread); }
    void setYRange(double lower, double upper) { setScale(&ZARN::ValueScale::reference, ZARN::ValueSpan{lower, upper}); }
    void setYRangeOn(bool on) { setScale(&ZARN::ValueScale::isReferenceShown, on); }
    [[nodiscard]] bool getYRangeOn() const { return mModel.settings().scale.isReferenceShown; }
    void setMarker(double start, double end) { mModel.setMarker({start, end}); }
    void setOfflineMode(bool on) { mModel.setOfflineMode(on); }
    void setShiftPressed(bool on) { mInteraction.setShiftPressed(on); }
    void setPanningAllowed(bool on) { mInteraction.setPanningAllowed(on); }
    void putValue(int index, double value, bool repaint) { mModel.putValue(index, value, repaint); }
    bool getValue(int index, double time, double& value) const;
    void getParameterRangeX(int index, double& first, double& last) const;
    void getParameterRangeY(int index, double& lower, double& upper) const;
    [[nodiscard]] double getCurrentAverageValue() const;
    [[nodiscard]] int nrActive() const { return mModel.traces().count(); }
    void clear() { mModel.clear(); }
    void reset() { mModel.reset(); }
    void addTopMarker(int index, double seconds) { mModel.addTopMarker({index, seconds}); }
    void recalcFrameBuffer() { mFrame.traces().update(mModel.traces(), mModel.window()); }
    static void getAutoPara(double min, double max, double length, double spacing, float& step, int& subdivisions);
    static void getAutoFormat(float step, QString& format);

    /// Draws the present graph on any canvas (pictures, PDF), without what only the moment shows.
    void paintOn(ZARN::Canvas& canvas, const QSizeF& size, double ratio) const;
    /// While on, changes are drawn when a frame is due and not at once: for a view time that runs on.
    void setPaced(bool on) { mIsPaced = on; }
    /// Where things lie in the frame that was drawn last.
    [[nodiscard]] const ZARN::GraphLayout& layoutOfFrame() const { return mFrame.layout(); }
    /// How many frames were drawn so far.
    [[nodiscard]] int frameCount() const { return mFrames; }

Q_SIGNALS:
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float start, float end);
    void signalManMode();
    void signalMoveParameter(int from, int to);
    /// The right button was clicked without moving, or the menu key was pressed, at a point of the screen.
    void signalMenu(const QPoint& point);
    /// The user is about to change something with keys, pointer, wheel or fingers, or goes on.
    void signalHand();

protected:
    bool event(QEvent* pEvent) override;
    /// Puts a surface in place; called by the constructors of the derived classes.
    void useSurface(ZARN::Surface::EKind kind);

    void keyPressEvent(QKeyEvent* pEvent) override;
    void keyReleaseEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    template <typename Value> void set(Value ZARN::GraphData::*pMember, const Value& value)
    {
        mModel.settings().*pMember = value;
        mModel.settingsChanged();
    }
    template <typename Value> void setScale(Value ZARN::ValueScale::*pMember, const Value& value)
    {
        mModel.settings().scale.*pMember = value;
        mModel.settingsChanged();
    }
    void connectModel();
    void pinched(double scale, const QPointF& point);
    void updateFrame(const QSize& size, double ratio);
    void paint(ZARN::Canvas& canvas) const;
    void requestFrame();
    void slotRedraw();
    void slotRecalculate();
    [[nodiscard]] double textSize() const;

    ZARN::GraphModel mModel;
    ZARN::GraphInteraction mInteraction;
    ZARN::GraphFrame mFrame;
    ZARN::Surface* mpSurface = nullptr;
    QTimer mRedrawTimer;
    QTimer mRecalculationTimer;
    QTimer mCursorTimer;
    ZARN::FramePacer mPacer;
    bool mIsPaced = false;
    bool mFrameWanted = true;
    int mFrames = 0;
    int mCountdown = 0; // runs of the recalculation that are left
};
