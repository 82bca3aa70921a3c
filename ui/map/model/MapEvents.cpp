#include "ui/map/model/MapEvents.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kOneDot = 3.0; // pixels by which dots may lie apart that nobody can point at one by one

} // namespace

void MapEvents::add(const EventList& list)
{
    mAll.reserve(mAll.size() + list.events().size());
    for (const Event& event : list.events())
        mAll.push_back({event.time, event.colour, list.text(event), list.source(event).parameter, {}});
}

void MapEvents::setNotes(const std::vector<CycleNote>& notes)
{
    mNotes.clear();
    for (const CycleNote& note : notes)
        mNotes.push_back({note.time, {}, note.text.toStdString(), {}, {}, true});
}

bool MapEvents::place(const MapPath& path)
{
    const std::vector<MapEvent> before = std::exchange(mDots, {});
    placeAll(mAll, path);
    placeAll(mNotes, path); // above the others: there are few of them
    return !std::ranges::equal(before, mDots, [](const MapEvent& a, const MapEvent& b) {
        return a.colour == b.colour && a.isNote == b.isNote && a.place.x == b.place.x && a.place.y == b.place.y;
    });
}

void MapEvents::placeAll(const std::vector<MapEvent>& events, const MapPath& path)
{
    const OpenStreet::Projection mercator(OpenStreet::ProjectionType::eMercator);
    for (const MapEvent& event : events) {
        if (!path.spans(event.time))
            continue;
        const FlightPathPoint at = path.positionAt(event.time);
        const OpenStreet::WorldPoint place = mercator.toWorld({at.latitude, at.longitude});
        mDots.push_back(event);
        mDots.back().place = {std::remainder(place.x - path.origin().x, OpenStreet::Projection::kWorldWidth), place.y - path.origin().y};
    }
}

std::vector<const MapEvent*> MapEvents::near(const MapPath& path, const OpenStreet::Camera& camera, const OpenStreet::WindowPoint& point,
                                             double viewTime) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, path.origin());
    using Order = std::pair<double, double>; // steps of distance, seconds
    std::vector<std::pair<Order, const MapEvent*>> found;
    for (const MapEvent& event : mDots) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(event.place);
        const double distance = std::hypot(start.x + at.x - point.x, start.y + at.y - point.y);
        if (distance <= kRadius + 2.0)
            found.emplace_back(Order{std::floor(distance / kOneDot), std::fabs(event.time - viewTime)}, &event);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<const MapEvent*> result;
    for (std::size_t i = 0; i < std::min(found.size(), kMostTips); ++i)
        result.push_back(found[i].second);
    return result;
}

QString MapEvents::text(const std::vector<const MapEvent*>& events, const TimeReference& times)
{
    QStringList lines;
    for (const MapEvent* pEvent : events)
        lines << times.textAt(pEvent->time) + QLatin1String("  ") + QString::fromStdString(pEvent->text);
    return lines.join(QLatin1Char('\n'));
}

} // namespace ZARN
