#pragma once

#include "ui/graph/model/GraphLayout.h"

namespace ZARN::Test {

/// A graph with one active trace of 1 Hz: value = time, from 0 to `last`.
struct OneTrace {
    explicit OneTrace(int last = 100)
    {
        model.setActive(0, true);
        for (int second = 0; second <= last; ++second) {
            model.setTime(second);
            model.putValue(0, second, false);
        }
        model.setGraphMode(eManual);
    }
    /// Times of the vertices for a window.
    std::vector<double> frameTimes(double xmin, double xmax)
    {
        model.setWindow(xmin, xmax);
        std::vector<double> times;
        for (const QPointF& vertex : model.parameter(0)->frame)
            times.push_back(xmin + vertex.x());
        return times;
    }
    GraphModel model;
};

/// The layout of a frame, and the model brought up to date for it.
inline GraphLayout layoutOf(GraphModel& model, const QSizeF& size = QSizeF(800, 500), bool withLegend = false)
{
    model.activateLegend(withLegend);
    model.calcRanges();
    GraphLayout layout(model, size, 11);
    model.setPlot(static_cast<int>(layout.plot().width()), layout.plot().height());
    model.calcFrame();
    return layout;
}

} // namespace ZARN::Test
