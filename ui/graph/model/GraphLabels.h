#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

/// Texts of the graph in boxes of the label background.
class GraphLabels {
public:
    struct Label {
        QPointF position; ///< of the text's corner or side that its alignment names
        QString text;
    };

    GraphLabels(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout) {}

    [[nodiscard]] CanvasText style(Qt::Alignment align) const;
    /// What can be told best from the graph's ground.
    [[nodiscard]] QColor contrast(double alpha = 1.0) const;
    void draw(Canvas& canvas, const Label& label, Qt::Alignment align) const;
    /// The same for many that do not overlap: all boxes, then all texts.
    void draw(Canvas& canvas, const std::vector<Label>& labels, Qt::Alignment align) const;

private:
    void drawBox(Canvas& canvas, const Label& label, const CanvasText& style) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
};

} // namespace ZARN
