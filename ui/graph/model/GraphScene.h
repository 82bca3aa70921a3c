#pragma once

#include "ui/graph/model/CursorLabels.h"
#include "ui/graph/model/GraphFrame.h"
#include "ui/graph/model/GraphInteraction.h"
#include "ui/graph/model/StateSteps.h"

namespace ZARN {

/// Draws the graph on a canvas: axes, then the traces, then everything that lies above. Drawing changes nothing.
class GraphScene {
public:
    /// @param frame up to date with the model
    GraphScene(const GraphModel& model, const GraphFrame& frame, const DraggedStrip& dragged = {})
        : mModel(model), mFrame(frame), mLayout(frame.layout()), mLabels(model, mLayout), mDragged(dragged)
    {
    }

    void draw(Canvas& canvas) const;

private:
    void drawTraces(Canvas& canvas) const;
    /// What the traces are compared with, dimmed behind them.
    void drawGhost(Canvas& canvas, std::vector<QPointF>& points) const;
    /// Vertices to pixels.
    void place(const std::vector<QPointF>& vertices, int index, std::vector<QPointF>& points) const;
    [[nodiscard]] std::map<int, std::vector<StateSteps::Run>> stateRuns() const;
    void drawTrace(Canvas& canvas, int index, int wider, std::vector<QPointF>& points) const;
    static void drawSamples(Canvas& canvas, std::span<const QPointF> points, const QColor& colour);
    void drawMarker(Canvas& canvas) const;
    void drawTopMarkers(Canvas& canvas, const CursorLabels& cursor) const;
    void drawHandles(Canvas& canvas) const;
    void drawMessage(Canvas& canvas) const;

    const GraphModel& mModel;
    const GraphFrame& mFrame;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
    const DraggedStrip mDragged;
};

} // namespace ZARN
