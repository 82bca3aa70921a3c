#pragma once

#include "ui/canvas/FramePacer.h"
#include "ui/graph/GraphSurface.h"
#include "ui/graph/model/GraphInteraction.h"

#include <QTimer>
#include <QWidget>

namespace ZARN {

class GraphScene;
}

/// What the two graph widgets have in common, which is all but the surface that they are drawn on: the model behind every operation, the
/// events, the timers and the frame. Where the surface cannot draw, the toolkit's painter takes over.
class WidgetGraphBase : public QWidget {
    Q_OBJECT

public:
    explicit WidgetGraphBase(QWidget* pParent = nullptr);

    [[nodiscard]] ZARN::GraphModel& model() { return mModel; }
    [[nodiscard]] const ZARN::GraphModel& model() const { return mModel; }

    void setXmin(float seconds) { mModel.setXmin(seconds); }
    void setXmax(float seconds) { mModel.setXmax(seconds); }
    void setYmin(float value) { mModel.setYmin(value); }
    void setYmax(float value) { mModel.setYmax(value); }
    void setT0(float seconds) { mModel.setT0(seconds); }
    void setXrange(float seconds) { mModel.setXrange(seconds); }
    void zoomToMarker() { mModel.zoomToMarker(); }
    void setTime(double seconds) { mModel.setTime(seconds); }
    void setCursorPosition(double seconds) { mModel.setCursorPosition(seconds); }
    void setCursorMode(ZARN::eCursorMode mode) { mModel.setCursorMode(mode); }
    void setDisplayMode(ZARN::eDisplayMode mode) { mModel.setDisplayMode(mode); }
    void setGraphMode(ZARN::eGraphMode mode) { mModel.setGraphMode(mode); }
    void setBackColor(float red, float green, float blue) { setColour(&ZARN::GraphColours::background, {red, green, blue}); }
    void setGridColor(float red, float green, float blue) { setColour(&ZARN::GraphColours::grid, {red, green, blue}); }
    void setLabelColor(float red, float green, float blue) { setColour(&ZARN::GraphColours::label, {red, green, blue}); }
    void setLabelBackColor(float red, float green, float blue) { setColour(&ZARN::GraphColours::labelBackground, {red, green, blue}); }
    void activateGrid(bool on) { mModel.activateGrid(on); }
    void activateCursor(bool on) { mModel.activateCursor(on); }
    void activateLegend(bool on) { mModel.activateLegend(on); }
    void activateSamples(int index, bool on) { mModel.activateSamples(index, on); }
    void setActive(int index, bool on) { mModel.setActive(index, on); }
    void setMaxParameters(int count) { mModel.setMaxParameters(count); }
    void setPrecision(int index, int digits) { mModel.setPrecision(index, digits); }
    void setParameterColor(int index, float red, float green, float blue) { mModel.setParameterColor(index, red, green, blue); }
    void setParameterName(int index, const QString& name, const QString& unit) { mModel.setParameterName(index, name, unit); }
    void setAutoScaleY(bool on) { mModel.setAutoScaleY(on); }
    void setAutoScaleYSpread(double spread) { mModel.setAutoScaleYSpread(spread); }
    void setYRange(double lower, double upper) { mModel.setYRange(lower, upper); }
    void setYRangeOn(bool on) { mModel.setYRangeOn(on); }
    [[nodiscard]] bool getYRangeOn() const { return mModel.getYRangeOn(); }
    void setMarker(double start, double end) { mModel.setMarker(start, end); }
    void setOfflineMode(bool on) { mModel.setOfflineMode(on); }
    void setShiftPressed(bool on) { mInteraction.setShiftPressed(on); }
    void setClickMovesCursor(bool on) { mInteraction.setClickMovesCursor(on); }
    void setPanningAllowed(bool on) { mInteraction.setPanningAllowed(on); }
    void putValue(int index, double value, bool repaint) { mModel.putValue(index, value, repaint); }
    bool getValue(int index, double time, double& value) const { return mModel.getValue(index, time, value); }
    void getParameterRangeX(int index, double& first, double& last) const { mModel.getParameterRangeX(index, first, last); }
    void getParameterRangeY(int index, double& lower, double& upper) const { mModel.getParameterRangeY(index, lower, upper); }
    [[nodiscard]] double getCurrentAverageValue() const { return mModel.getCurrentAverageValue(); }
    [[nodiscard]] int nrActive() const { return mModel.nrActive(); }
    void clear() { mModel.clear(); }
    void reset() { mModel.reset(); }
    void addTopMarker(int index, double seconds) { mModel.addTopMarker(index, seconds); }
    void recalcFrameBuffer() { mModel.recalcFrameBuffer(); }
    static void getAutoPara(double min, double max, double length, double spacing, float& step, int& subdivisions);
    static void getAutoFormat(float step, QString& format);

    /// Draws the present graph on any canvas (pictures, PDF), without what only the moment shows.
    void paintOn(ZARN::Canvas& canvas, const QSizeF& size, double ratio);
    /// While on, changes are drawn when a frame is due and not at once: for a view time that runs on.
    void setPaced(bool on) { mIsPaced = on; }
    /// Where things lie in the frame that was drawn last.
    [[nodiscard]] const ZARN::GraphLayout& layoutOfFrame() const { return mLayout; }
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

protected:
    using CreateSurface = QWidget* (*)(const ZARN::GraphPainting&, QWidget*);
    /// Puts the surface in place; called by the constructors of the derived classes.
    void useSurface(CreateSurface createSurface);

    void keyPressEvent(QKeyEvent* pEvent) override;
    void keyReleaseEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void setColour(ZARN::GraphColour ZARN::GraphColours::*pMember, const ZARN::GraphColour& colour);
    void connectModel();
    void paint(ZARN::Canvas& canvas, const QSize& size, double ratio);
    void requestFrame();
    void slotRedraw();
    void slotRecalculate();
    [[nodiscard]] double textSize() const;

    ZARN::GraphModel mModel;
    ZARN::GraphInteraction mInteraction;
    ZARN::GraphLayout mLayout;
    QWidget* mpSurface = nullptr;
    QTimer mRedrawTimer;
    QTimer mRecalculationTimer;
    QTimer mCursorTimer;
    ZARN::FramePacer mPacer;
    bool mIsPaced = false;
    bool mFrameWanted = true;
    int mFrames = 0;
};
