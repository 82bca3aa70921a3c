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

/// Three traces of 1 Hz from 0 to 100 s: the time, ten times it downwards, and 7 throughout.
struct Three {
    explicit Three(eDisplayMode mode = eSingleGraph)
    {
        model.settings().graphMode = eManual;
        model.settings().legendOn = true;
        model.settings().displayMode = mode;
        model.traces().setCount(3);
        for (const int index : {0, 1, 2}) {
            std::vector<double> times, values;
            for (int i = 0; i <= 100; ++i) {
                times.push_back(i);
                values.push_back(index == 0 ? i : index == 1 ? 1000 - 10 * i : 7);
            }
            model.traces().setActive(index, true);
            model.traces().setName(index, QString("Trace %1").arg(index), index == 2 ? "" : "kPa");
            model.putValues(index, times, values);
        }
        model.setWindow({20, 80});
        model.setCursorPosition(50);
    }
    [[nodiscard]] const QColor& colour(int index) const { return model.traces().at(index)->drawnColour; }
    GraphModel model;
};

inline bool isUpright(const RecordingCanvas::Line& line)
{
    return line.line.x1() == line.line.x2();
}

/// Where upright lines of that height stand in the plot.
inline std::vector<double> uprights(const Drawing& drawing, double top, double bottom, bool isOpaque)
{
    std::vector<double> result;
    for (const auto& line : drawing.drawnLines) {
        const bool isInside = line.line.x1() >= drawing.layout().plot().left();
        if (isInside && isUpright(line) && line.line.y1() == top && line.line.y2() == bottom && (line.pen.colour.alpha() == 255) == isOpaque)
            result.push_back(line.line.x1());
    }
    return result;
}

} // namespace ZARN::Test
