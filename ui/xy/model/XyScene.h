#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/canvas/Palette.h"
#include "ui/graph/model/ValueScale.h"
#include "ui/xy/model/XyPoints.h"

#include <optional>

namespace ZARN {

/// Where the view time is on the axes, and what is told of it there.
struct XyCursor {
    double x = 0.0;
    double y = 0.0;
    QString text;
};

/// Draws one parameter over another on a canvas: the limits as bands, the points in the colours of their scale, the axes. Drawing changes
/// nothing. Refers to the points.
class XyScene {
public:
    /// @param size of the view  @param textSize em height in pixels
    XyScene(const XyPoints& points, const Palette& palette, const QSizeF& size, double textSize);

    void draw(Canvas& canvas) const;
    void drawCursor(Canvas& canvas, const XyCursor& cursor) const;
    /// The time of the point nearest to a place of the view; none where no point is near.
    [[nodiscard]] std::optional<double> timeAt(const QPointF& place) const;

    [[nodiscard]] const QRectF& plot() const { return mPlot; }
    /// Where two values lie in the view.
    [[nodiscard]] QPointF placeOf(double x, double y) const;

private:
    [[nodiscard]] QPointF placeOf(const XyPoint& point) const;
    static constexpr std::size_t kColours = 256;
    void mixColours();
    [[nodiscard]] const QColor& colourOf(double share) const;
    [[nodiscard]] double shareOf(const XyPoint& point) const;
    [[nodiscard]] CanvasText style(Qt::Alignment align) const { return {mTextSize, mPalette.graph.label, false, align, false}; }
    void drawBands(Canvas& canvas) const;
    void drawPoints(Canvas& canvas) const;
    void drawAxisX(Canvas& canvas) const;
    void drawAxisY(Canvas& canvas) const;
    void drawScale(Canvas& canvas) const;
    [[nodiscard]] QString scaleLabel(double value) const;

    const XyPoints& mPoints;
    const Palette& mPalette;
    QSizeF mSize;
    double mTextSize, mLine, mCharacter;
    QRectF mPlot;
    QRectF mScale; ///< of the colours
    std::array<QColor, kColours> mColours;
    ValueSpan mSpanX, mSpanY;
};

} // namespace ZARN
