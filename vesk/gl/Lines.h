#pragma once

#include "vesk/gl/LineStyle.h"

#include <QPointF>

#include <vector>

namespace VESK::OpenGL {

class Device;

/// Single lines of one colour and width. Collects them and draws them with the matrix that is then in force.
class Lines {
public:
    void setColour(const QColor& colour) { mStyle.colour = colour; }
    void setLineWidth(double pixels) { mStyle.width = pixels; }
    /// Dashes and gaps of that length in pixels; 0 draws solid lines.
    void setStipple(double length) { mStyle.dash = length; }
    void setAntiAliasing(bool on) { mStyle.smooth = on; }
    void setStyle(const LineStyle& style) { mStyle = style; }

    void addLine(double x1, double y1, double x2, double y2);
    void clear() { mPoints.clear(); }
    void draw(Device& device) const;

private:
    LineStyle mStyle;
    std::vector<QPointF> mPoints; // two for each line
};

} // namespace VESK::OpenGL
