#pragma once

#include "vesk/gl/LineStyle.h"
#include "vesk/gl/Vertex.h"

#include <QPointF>

#include <optional>
#include <span>
#include <vector>

namespace VESK::OpenGL {

/// Makes the triangles of wide, smooth and dashed lines, which core profiles do not offer. Points name pixels: the line runs through their
/// middles. Lines with a coordinate that is not finite are left out.
class Strokes {
public:
    /// @param ratio pixels of the screen for each pixel of the view
    Strokes(const LineStyle& style, double ratio);

    /// A line between two points in pixels of the view, the matrix applied. @param offset where its dashes begin, in pixels
    void addLine(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour, double offset = 0.0);
    /// Lines from each point to the next. Corners that turn little are mitred, sharp ones are rounded.
    /// @param colours one for each point, or one for all
    void addStrip(std::span<const QPointF> points, std::span<const VertexColour> colours);

    [[nodiscard]] const std::vector<Vertex>& triangles() const { return mTriangles; }
    /// Lines of at most one pixel of the screen need no triangles.
    [[nodiscard]] static bool isThin(const LineStyle& style, double ratio)
    {
        return style.width * ratio <= 1.0 && !style.smooth && style.dash <= 0;
    }

private:
    /// A point of a line, and where from it the edge at its left begins; the right one lies opposite.
    struct End {
        QPointF point;
        QPointF side;
        VertexColour colour{};
    };

    /// A line with blunt ends.
    void addPiece(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour);
    void addPiece(const End& from, const End& to);
    /// Fills the corner between two lines that meet at a point.
    void addJoint(const QPointF& point, const VertexColour& colour);
    void addDashed(std::span<const QPointF> points, std::span<const VertexColour> colours);
    /// The side of the corner at a point, or nothing where a mitre would stand out or reach beyond the lines.
    [[nodiscard]] std::optional<QPointF> mitre(const QPointF& before, const QPointF& at, const QPointF& after) const;
    [[nodiscard]] QPointF side(const QPointF& from, const QPointF& to) const;
    /// Points are moved by half a pixel: they name pixels' middles.
    [[nodiscard]] Vertex vertex(const QPointF& at, double distance, const VertexColour& colour) const;

    LineStyle mStyle;
    double mRatio;
    double mHalf;  // of the width, in pixels of the view
    double mReach; // how far from the middle something is drawn: smooth lines fade over half a pixel of the screen more at each side
    std::vector<Vertex> mTriangles;
};

} // namespace VESK::OpenGL
