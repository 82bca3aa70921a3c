#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/graph/model/CursorLabels.h"

namespace ZARN {

/// Draws the graph on a canvas: grid, bands and tick labels, then the traces, then everything that lies above. The canvas has been
/// cleared with the label background's colour.
class GraphScene {
public:
    /// Brings the model up to date for a view of that size. @param ratio pixels of the screen for each of the view's
    static GraphLayout prepare(GraphModel& model, const QSizeF& size, double textSize, double ratio);

    GraphScene(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout) {}

    void draw(Canvas& canvas);

    /// The strip that is dragged with its handle, and the height where the pointer is; none when < 0.
    void setDragged(int index, double y);

private:
    [[nodiscard]] CanvasText labelStyle(Qt::Alignment align) const;
    /// A text in a box of the label background.
    void drawLabel(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment align) const;
    /// The same for many that do not overlap: all boxes, then all texts.
    struct Label {
        QPointF position;
        QString text;
    };
    void drawLabels(Canvas& canvas, const std::vector<Label>& labels, Qt::Alignment align) const;
    void drawBox(Canvas& canvas, const Label& label, const CanvasText& style) const;
    [[nodiscard]] QColor contrast() const;
    /// Calls with each area of values: the strips, or the plot with the trace at the axis (null when nothing is shown).
    template <typename Visitor> void forEachArea(Visitor visit) const;

    void drawBands(Canvas& canvas) const;
    void drawTimeAxis(Canvas& canvas) const;
    void drawValueAxis(Canvas& canvas, const QRectF& area, int index) const;
    void drawTraces(Canvas& canvas);
    void drawTrace(Canvas& canvas, const GraphParameter& parameter, bool isHighlighted);
    void drawSamples(Canvas& canvas, const GraphParameter& parameter) const;
    void drawMarker(Canvas& canvas) const;
    void drawTopMarkers(Canvas& canvas, const CursorLabels& cursor) const;
    void drawHandles(Canvas& canvas) const;
    void drawCursor(Canvas& canvas, const CursorLabels& cursor) const;
    void drawMessage(Canvas& canvas) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    int mDragged = -1;
    double mDragY = 0.0;
    std::vector<QPointF> mPoints;
};

} // namespace ZARN
