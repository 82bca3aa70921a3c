// The cursor of GraphScene and what it tells.

#include "ui/graph/model/GraphScene.h"

namespace ZARN {

void GraphScene::drawCursor(Canvas& canvas, const CursorLabels& cursor) const
{
    if (!cursor.x())
        return;
    const QRectF& plot = mLayout.plot();
    const std::array upright{QPointF(*cursor.x(), plot.top()), QPointF(*cursor.x(), plot.bottom() - 1)};
    canvas.lines(upright, {contrast()});
    if (cursor.y()) {
        const std::array level{QPointF(plot.left(), *cursor.y()), QPointF(plot.right() - 1, *cursor.y())};
        QColor colour = contrast();
        colour.setAlphaF(0.7F);
        canvas.lines(level, {colour, 1.0, false, 3.0});
    }
    for (const CursorLabels::Label& label : cursor.labels())
        drawLabel(canvas, label.position, label.text, label.align);
}

} // namespace ZARN
