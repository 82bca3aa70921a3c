#pragma once

#include "ui/canvas/Canvas.h"

#include <utility>
#include <vector>

namespace ZARN::Test {

/// Draws nothing and remembers what was asked for. Scaling is not followed.
class RecordingCanvas : public Canvas {
public:
    void push() override { mSaved.push_back(mOffset); }
    void pop() override
    {
        mOffset = mSaved.back();
        mSaved.pop_back();
    }
    void translate(double x, double y) override { mOffset += QPointF(x, y); }
    void scale(double, double) override {}
    void clip(const QRectF&) override {}
    void lines(std::span<const QPointF>, const CanvasPen&) override {}
    void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) override { strips.emplace_back(points.size(), pen.colour); }
    void lineStrip(std::span<const QPointF> points, std::span<const QColor>, const CanvasPen& pen) override { lineStrip(points, pen); }
    void fillRect(const QRectF&, const QColor&) override {}
    void triangles(std::span<const QPointF>, const QColor&) override {}
    void text(const QPointF& position, const QString& text, const CanvasText& style) override
    {
        texts.emplace_back(QRectF(textOrigin(position, text, style) + mOffset, textSize(text, style)), text);
    }
    void image(const QRectF&, const QImage&) override {}

    std::vector<std::pair<QRectF, QString>> texts;             ///< boxes of horizontal texts, and what they say
    std::vector<std::pair<std::size_t, QColor>> strips;        ///< points and colour of each line strip

private:
    QPointF mOffset;
    std::vector<QPointF> mSaved;
};

} // namespace ZARN::Test
