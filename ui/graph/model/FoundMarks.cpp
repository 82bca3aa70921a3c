#include "ui/graph/model/FoundMarks.h"

#include "ui/canvas/ColourContrast.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kBar = 4.0; // pixels
constexpr double kShade = 0.18;

} // namespace

void FoundMarks::draw(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    const QColor colour = Palette::screen().found;
    canvas.push();
    canvas.clip(plot);
    for (const auto& [left, right] : columns()) {
        canvas.fillRect(QRectF(QPointF(left, plot.top()), QPointF(right, plot.bottom())), withAlpha(colour, kShade));
        canvas.fillRect(QRectF(QPointF(left, plot.bottom() - kBar), QPointF(right, plot.bottom())), colour);
    }
    canvas.pop();
}

std::vector<std::pair<double, double>> FoundMarks::columns() const
{
    std::vector<std::pair<double, double>> columns;
    const TimeWindow& window = mModel.window();
    for (const TimeSpan& span : mModel.scenery().found()) {
        if (span.end < window.begin() || span.start > window.end())
            continue;
        const double left = std::floor(mLayout.xOf(std::max(span.start, window.begin())));
        const double right = std::max(std::ceil(mLayout.xOf(std::min(span.end, window.end()))), left + 1.0);
        if (!columns.empty() && left <= columns.back().second)
            columns.back().second = std::max(columns.back().second, right);
        else
            columns.emplace_back(left, right);
    }
    return columns;
}

} // namespace ZARN
