#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/map/model/MapStyle.h"
#include "ui/map/model/PathTint.h"

namespace ZARN {

/// Tells what the colours of the path mean: a scale with its values, or colours with their words. A plain value that refers to what it tells of.
class PathLegend {
public:
    enum EForm { eFull, eLine };

    PathLegend(const PathTint& tint, const MapStyle& style) : mTint(tint), mStyle(style) {}

    /// What it takes: with a title, or on one line, the ends of the scale beside it. Empty where there is nothing to tell.
    [[nodiscard]] QSizeF size(EForm form) const;
    /// @param box of that size
    void draw(Canvas& canvas, const QRectF& box, EForm form) const;
    /// A value of the scale, with as many decimals as tell it from the others.
    [[nodiscard]] static QString number(double value, double range);

private:
    void drawBar(Canvas& canvas, const QRectF& place) const;
    void drawScale(Canvas& canvas, const QRectF& place) const;
    void drawScaleLine(Canvas& canvas, const QRectF& place) const;
    void drawEntries(Canvas& canvas, const QRectF& place, EForm form) const;
    [[nodiscard]] QString end(double value, bool isLast) const;
    [[nodiscard]] double width(const QString& text) const;
    [[nodiscard]] double line() const { return 1.4 * mStyle.textSize; }
    [[nodiscard]] CanvasText text(Qt::Alignment align) const { return {mStyle.textSize, mStyle.colours.label, false, align}; }

    const PathTint& mTint;
    const MapStyle& mStyle;
};

} // namespace ZARN
