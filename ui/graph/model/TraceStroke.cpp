#include "ui/graph/model/TraceStroke.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Adds a piece to the one before, or apart from it.
void addPiece(std::vector<QPointF>& out, const QPointF& from, const QPointF& to)
{
    if (out.empty() || out.back() != from) {
        if (!out.empty())
            out.emplace_back(from.x(), std::numeric_limits<double>::quiet_NaN());
        out.push_back(from);
    }
    out.push_back(to);
}

} // namespace

void makeDashes(std::vector<QPointF>& points, double dash, double phase, double left, double right)
{
    std::vector<QPointF> out;
    out.reserve(points.size());
    const double period = 2 * dash;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF &from = points[i - 1], &to = points[i];
        const double first = std::max(from.x(), left), last = std::min(to.x(), right);
        if (!isFinite(from) || !isFinite(to) || std::max(from.x(), to.x()) < left || std::min(from.x(), to.x()) > right)
            continue;
        if (to.x() <= from.x() || std::abs(to.y() - from.y()) > period) {
            addPiece(out, from, to);
            continue;
        }
        const auto at = [&](double x) {
            return x == from.x() ? from : x == to.x() ? to : from + (to - from) * ((x - from.x()) / (to.x() - from.x()));
        };
        for (double start = std::floor((first + phase) / period) * period - phase; start < last; start += period) {
            const double begin = std::max(start, first), end = std::min(start + dash, last);
            if (begin < end)
                addPiece(out, at(begin), at(end));
        }
    }
    points = std::move(out);
}

} // namespace ZARN
