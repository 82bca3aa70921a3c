#pragma once

#include "support/RecordingCanvas.h"
#include "ui/graph/model/GraphFrame.h"
#include "ui/graph/model/GraphScene.h"

namespace ZARN::Test {

/// A graph with one active trace of 1 Hz: value = time, from 0 to `last`.
struct OneTrace {
    explicit OneTrace(int last = 100)
    {
        model.traces().setActive(0, true);
        for (int second = 0; second <= last; ++second) {
            model.setTime(second);
            model.putValue(0, second, false);
        }
        model.settings().graphMode = eManual;
    }
    GraphModel model;
};

/// Where things lie in a view of that size.
inline GraphLayout layoutOf(GraphModel& model, const QSizeF& size = QSizeF(800, 500), bool withLegend = false)
{
    model.settings().legendOn = withLegend;
    return {model, size, 11};
}

/// All that is painted of a graph in a view of that size.
struct Drawing : RecordingCanvas {
    Drawing(const GraphModel& model, const QSizeF& size)
    {
        frame.update(model, size, 11, 1);
        GraphScene(model, frame).draw(*this);
    }
    [[nodiscard]] const GraphLayout& layout() const { return frame.layout(); }
    GraphFrame frame;
};

} // namespace ZARN::Test
