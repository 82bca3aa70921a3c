#pragma once

#include "ui/canvas/Canvas.h"

#include <QLineF>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace ZARN::Test {

/// Draws nothing and remembers what was asked for, where it would stand in the view. Scaling is not followed.
class RecordingCanvas : public Canvas {
public:
    struct Line {
        QLineF line;
        CanvasPen pen;
    };
    struct Strip {
        std::vector<QPointF> points;
        std::vector<QColor> colours; ///< of the points, where they have their own
        CanvasPen pen;
        QRectF clip;
    };
    struct Area {
        QRectF rect;
        QColor colour;
        QRectF clip;
    };
    struct Shape {
        std::vector<QPointF> corners; ///< of triangles
        QColor colour;
        [[nodiscard]] QRectF box() const
        {
            const auto [left, right] = std::ranges::minmax(corners, {}, &QPointF::x);
            const auto [top, bottom] = std::ranges::minmax(corners, {}, &QPointF::y);
            return {QPointF(left.x(), top.y()), QPointF(right.x(), bottom.y())};
        }
    };

    void push() override { mSaved.emplace_back(mOffset, mClip); }
    void pop() override
    {
        std::tie(mOffset, mClip) = mSaved.back();
        mSaved.pop_back();
    }
    void translate(double x, double y) override { mOffset += QPointF(x, y); }
    void scale(double, double) override {}
    void clip(const QRectF& rect) override { mClip = mClip.intersected(rect.translated(mOffset)); }
    void lines(std::span<const QPointF> points, const CanvasPen& pen) override
    {
        for (std::size_t i = 1; i < points.size(); i += 2)
            drawnLines.push_back({QLineF(points[i - 1] + mOffset, points[i] + mOffset), pen});
    }
    void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) override { lineStrip(points, {}, pen); }
    void lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen) override
    {
        strips.push_back({moved(points), {colours.begin(), colours.end()}, pen, mClip});
    }
    void fillRect(const QRectF& rect, const QColor& colour) override { areas.push_back({rect.translated(mOffset), colour, mClip}); }
    void triangles(std::span<const QPointF> points, const QColor& colour) override
    {
        if (!points.empty())
            shapes.push_back({moved(points), colour});
    }
    void text(const QPointF& position, const QString& text, const CanvasText& style) override
    {
        texts.emplace_back(QRectF(textOrigin(position, text, style) + mOffset, textSize(text, style)), text);
    }
    void image(const QRectF&, const QImage&) override {}

    /// The box of a text that is drawn once; an empty one when it is drawn never or more often.
    [[nodiscard]] QRectF boxOf(const QString& wanted) const
    {
        std::vector<QRectF> found;
        for (const auto& [box, text] : texts) {
            if (text == wanted)
                found.push_back(box);
        }
        return found.size() == 1 ? found.front() : QRectF();
    }

    std::vector<std::pair<QRectF, QString>> texts; ///< boxes of horizontal texts, and what they say
    std::vector<Line> drawnLines;
    std::vector<Strip> strips;
    std::vector<Area> areas;
    std::vector<Shape> shapes;

private:
    [[nodiscard]] std::vector<QPointF> moved(std::span<const QPointF> points) const
    {
        std::vector<QPointF> result(points.begin(), points.end());
        for (QPointF& point : result)
            point += mOffset;
        return result;
    }

    QPointF mOffset;
    QRectF mClip{-1e9, -1e9, 2e9, 2e9};
    std::vector<std::pair<QPointF, QRectF>> mSaved;
};

} // namespace ZARN::Test
