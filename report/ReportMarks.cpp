#include "report/ReportMarks.h"

#include "ui/canvas/Canvas.h"
#include "ui/canvas/Triangulation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ZARN {

namespace {

constexpr double kRadius = 3.5; // points
constexpr double kGap = 0.7;
constexpr double kTextSize = 6.0;
constexpr int kDirections = 16;
constexpr int kFarthest = 30; // steps of a radius

QPointF towards(int direction, double distance)
{
    const double angle = direction * 2.0 * std::numbers::pi / kDirections;
    return {distance * std::cos(angle), distance * std::sin(angle)};
}

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

std::vector<QPointF> disc(const QPointF& middle, double radius)
{
    std::vector<QPointF> points = circle(radius, kDirections);
    for (QPointF& point : points)
        point += middle;
    return points;
}

} // namespace

double ReportMarks::Mark::radius() const
{
    return count == 1 ? kRadius : kRadius + 2.0 * static_cast<double>(QString::number(count).size());
}

void ReportMarks::add(const QPointF& at, const QColor& colour)
{
    mMarks.push_back({at, at, colour});
}

void ReportMarks::addToGroup(const QPointF& at, const QColor& colour)
{
    const auto group = std::find_if(mMarks.begin(), mMarks.end(),
                                    [&](const Mark& mark) { return mark.colour == colour && distance(mark.at, at) < 2 * kRadius + kGap; });
    if (group == mMarks.end())
        add(at, colour);
    else
        ++group->count;
}

bool ReportMarks::isFree(const QPointF& place, std::size_t number) const
{
    const double radius = mMarks[number].radius() + kGap;
    if (place.x() < radius || place.y() < radius || place.x() > mSize.width() - radius || place.y() > mSize.height() - radius)
        return false;
    return std::none_of(mMarks.begin(), mMarks.begin() + static_cast<std::ptrdiff_t>(number),
                        [&](const Mark& other) { return distance(other.place, place) < other.radius() + radius; });
}

QPointF ReportMarks::freePlace(std::size_t number) const
{
    for (int step = 0; step < kFarthest; ++step) {
        for (int direction = 0; direction < (step == 0 ? 1 : kDirections); ++direction) {
            const QPointF place = mMarks[number].at + towards(direction, step * kRadius);
            if (isFree(place, number))
                return place;
        }
    }
    return mMarks[number].at;
}

void ReportMarks::settle()
{
    for (std::size_t i = 0; i < mMarks.size(); ++i)
        mMarks[i].place = freePlace(i);
}

void ReportMarks::draw(Canvas& canvas)
{
    settle();
    for (const Mark& mark : mMarks) {
        if (mark.place != mark.at)
            canvas.lines(std::vector<QPointF>{mark.at, mark.place}, {Qt::black, 0.7});
    }
    for (const Mark& mark : mMarks) {
        canvas.polygon(disc(mark.place, mark.radius()), Qt::black);
        canvas.polygon(disc(mark.place, mark.radius() - 0.8), mark.colour);
        if (mark.count > 1)
            canvas.text(mark.place, QString::number(mark.count), {kTextSize, Qt::black, true, Qt::AlignHCenter | Qt::AlignVCenter, false});
    }
}

} // namespace ZARN
