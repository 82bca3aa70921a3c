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

    /// @param colour in place of that of all labels
    [[nodiscard]] CanvasText style(Qt::Alignment align, const std::optional<QColor>& colour = std::nullopt) const;
    /// What can be told best from the graph's ground.
    [[nodiscard]] QColor contrast(double alpha = 1.0) const;
    /// On the line of the trace that stands out.
    [[nodiscard]] QColor highlight() const;
    /// The mark of a trace at the left end of its line in a list: in one piece, or in two or three as its stroke is dashed or dotted.
    void drawSwatch(Canvas& canvas, const QPointF& line, int index, const QColor& colour) const;
    void draw(Canvas& canvas, const Label& label, Qt::Alignment align) const;
    /// The same for many that do not overlap: all boxes, then all texts.
    void draw(Canvas& canvas, const std::vector<Label>& labels, Qt::Alignment align,
              const std::optional<QColor>& colour = std::nullopt) const;
    /// How much of a list is seen, and where: at the right edge of its rows.
    void drawScrollBar(Canvas& canvas, const QRectF& list, const VisibleRows& rows) const;

private:
    void drawBox(Canvas& canvas, const Label& label, const CanvasText& style) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
};

} // namespace ZARN
