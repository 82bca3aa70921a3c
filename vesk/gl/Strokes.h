#pragma once

#include "vesk/gl/LineStyle.h"
#include "vesk/gl/Vertex.h"

#include <QPointF>

#include <span>
#include <vector>

namespace VESK::OpenGL {

/// Makes the triangles of wide, smooth and dashed lines, which core profiles do not offer. Points name pixels: the line runs through their
/// middles. Lines with a coordinate that is not finite are left out.
class Strokes {
public:
    /// @param ratio pixels of the screen for each pixel of the view
    Strokes(const LineStyle& style, double ratio) : mStyle(style), mRatio(ratio) {}

    /// A line between two points in pixels of the view, the matrix applied. @param offset where its dashes begin, in pixels
    void addLine(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour, double offset = 0.0);
    /// Fills the corner between two lines of a strip that meet at a point.
    void addJoint(const QPointF& point, const VertexColour& colour);

    [[nodiscard]] const std::vector<Vertex>& triangles() const { return mTriangles; }
    /// Lines of at most one pixel of the screen need no triangles.
    [[nodiscard]] static bool isThin(const LineStyle& style, double ratio) { return style.width * ratio <= 1.0 && !style.smooth && style.dash <= 0; }

private:
    void addPiece(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour);

    LineStyle mStyle;
    double mRatio;
    std::vector<Vertex> mTriangles;
};

} // namespace VESK::OpenGL
