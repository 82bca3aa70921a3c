#pragma once

#include "ui/canvas/RasterCanvas.h"
#include "ui/canvas/StripImage.h"

#include <vector>

namespace ZARN {

/// A canvas on the painter of a window in memory, which draws thirty traces often: long thin strips are filled as spans, many times faster
/// than the painter's own lines. The painter's transformation is the identity at first. Ends what it draws when it is destroyed.
class WindowCanvas : public RasterCanvas {
public:
    /// @param strips kept by the caller from one frame to the next, for its memory  @param size of the window in its own pixels
    /// @param ratio pixels of the screen for each of them
    WindowCanvas(QPainter& painter, StripImage& strips, const QSize& size, double ratio);
    ~WindowCanvas() override;

    using RasterCanvas::lineStrip;
    void lines(std::span<const QPointF> points, const CanvasPen& pen) override;
    void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) override;

protected:
    QPainter& ready() override;

private:
    /// Whether all of them are upright or level, solid, one pixel wide and on whole pixels.
    [[nodiscard]] bool takesLines(std::span<const QPointF> points, const CanvasPen& pen) const;
    [[nodiscard]] bool takesStrip(std::span<const QPointF> points, const CanvasPen& pen) const;
    [[nodiscard]] QRect clipPixels() const;

    StripImage& mStrips;
    QSize mSize;
    double mRatio;
    bool mHasStrips = false;
    std::vector<QPointF> mPixels;
};

} // namespace ZARN
