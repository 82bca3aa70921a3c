#pragma once

#include "ui/canvas/RasterCanvas.h"

namespace ZARN {

/// A canvas on paper: texts are set in the proportional font, to be read rather than to be redrawn sixty times a second.
class PaperCanvas : public RasterCanvas {
public:
    using RasterCanvas::RasterCanvas;

    [[nodiscard]] QSizeF textSize(const QString& text, const CanvasText& style) const override;
    /// The words in lines that are no wider than that; a word that is too wide is cut, its end marked.
    [[nodiscard]] QStringList wrapped(const QString& text, double width, const CanvasText& style) const;
    /// As much of the text as fits, its end marked when that is not all.
    [[nodiscard]] QString shortened(const QString& text, double width, const CanvasText& style) const;

protected:
    [[nodiscard]] QFont font(const CanvasText& style) const override;
    [[nodiscard]] QPointF snapped(const QPointF& point) const override { return point; }
};

} // namespace ZARN
