#include "ui/map/model/MapCorners.h"

#include <algorithm>
#include <array>

namespace ZARN {

namespace {

constexpr double kMargin = 8.0; // pixels from the window's edges
constexpr double kGap = 4.0;    // at least, between two of them
// Of the window's width and height, and in pixels: where less is free, a path takes all of it.
constexpr double kLeastPart = 0.2;
constexpr double kLeastArea = 60.0;

bool isTaken(const QRectF& box, std::span<const QRectF> covers)
{
    return std::ranges::any_of(covers, [&box](const QRectF& cover) { return cover.intersects(box); });
}

/// The parts of a window that nothing covers and that have room for a path.
std::vector<QRectF> areasBeside(const QSizeF& window, std::span<const QRectF> covers)
{
    std::vector<double> lefts{0.0}, rights{window.width()}, tops{0.0}, bottoms{window.height()};
    for (const QRectF& cover : covers) {
        lefts.push_back(cover.right());
        rights.push_back(cover.left());
        tops.push_back(cover.bottom());
        bottoms.push_back(cover.top());
    }
    std::vector<QRectF> result;
    for (const double left : lefts) {
        for (const double right : rights) {
            if (right - left <= std::max(kLeastPart * window.width(), kLeastArea))
                continue;
            for (const double top : tops) {
                for (const double bottom : bottoms) {
                    const QRectF area(QPointF(left, top), QPointF(right, bottom));
                    if (area.height() > std::max(kLeastPart * window.height(), kLeastArea) && !isTaken(area, covers))
                        result.push_back(area);
                }
            }
        }
    }
    return result;
}

bool isRoomLeft(const QSizeF& window, std::span<const QRectF> covers)
{
    return !areasBeside(window, covers).empty();
}

} // namespace

void MapCorners::place(const PathLegend& pathLegend)
{
    const QRectF room(kMargin, kMargin, window.width() - 2 * kMargin, window.height() - 2 * kMargin);
    const QRectF taken[] = {tools, sources, bar, words};
    legend.reset();
    for (const double top : {kMargin, tools.bottom() + kGap}) {
        for (const auto form : {PathLegend::eFull, PathLegend::eLine}) {
            const QSizeF size = pathLegend.size(form);
            const QRectF box(QPointF(room.right() - size.width(), top), size);
            if (size.isEmpty() || !room.contains(box) || isTaken(box.adjusted(-kGap, -kGap, kGap, kGap), taken))
                continue;
            const bool isRoomy = isRoomLeft(window, std::array{tools, sources, bar, box});
            if (isRoomy || !legend)
                legend = Legend{box, form};
            if (isRoomy)
                return;
        }
    }
}

std::vector<QRectF> MapCorners::covers() const
{
    std::vector<QRectF> result;
    for (const QRectF& box : {tools, sources, bar}) {
        if (!box.isEmpty())
            result.push_back(box);
    }
    if (legend)
        result.push_back(legend->box);
    return result;
}

std::vector<QRectF> MapCorners::freeAreas(const QSizeF& window, std::span<const QRectF> covers)
{
    std::vector<QRectF> result = areasBeside(window, covers);
    const std::vector<QRectF> all = result;
    std::erase_if(result, [&all](const QRectF& area) {
        return std::ranges::any_of(all, [&area](const QRectF& other) { return other != area && other.contains(area); });
    });
    const auto order = [](const QRectF& a, const QRectF& b) { return a.width() * a.height() > b.width() * b.height(); };
    std::ranges::sort(result, order);
    if (result.empty())
        result.emplace_back(QPointF(), window);
    return result;
}

} // namespace ZARN
