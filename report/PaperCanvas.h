#pragma once

#include "ui/canvas/RasterCanvas.h"

namespace ZARN {

/// A canvas on paper: texts are set in the proportional font, to be read rather than to be redrawn sixty times a second.
class PaperCanvas : public RasterCanvas {
public:
    using RasterCanvas::RasterCanvas;

    [[nodiscard]] QSizeF textSize(const QString& text, const CanvasText& style) const override { return size(text, style); }

    // Without a painter, as a layout needs them.
    [[nodiscard]] static QSizeF size(const QString& text, const CanvasText& style);
    /// The words in lines that are no wider than that, a word that is too wide in pieces. @param most lines; the end of what does not fit
    /// into them is marked
    [[nodiscard]] static QStringList wrapped(const QString& text, double width, const CanvasText& style, qsizetype most);
    /// As much of the text as fits, its end marked when that is not all.
    [[nodiscard]] static QString shortened(const QString& text, double width, const CanvasText& style);

protected:
    [[nodiscard]] QFont font(const CanvasText& style) const override;
    [[nodiscard]] QPointF snapped(const QPointF& point) const override { return point; }
};

} // namespace ZARN
