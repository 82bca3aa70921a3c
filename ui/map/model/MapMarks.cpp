#include "ui/map/model/MapMarks.h"

#include "analysis/IncidentText.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/Triangulation.h"
#include "ui/map/model/LabelRoom.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr double kRadius = 7.0; // pixels

} // namespace

void MapMarks::add(const MapPath& path, double time, Mark mark)
{
    if (!path.spans(time) || mMarks.size() >= kMost)
        return;
    const FlightPathPoint at = path.positionAt(time);
    const OpenStreet::WorldPoint place = OpenStreet::Projection(OpenStreet::ProjectionType::eMercator).toWorld({at.latitude, at.longitude});
    mark.place = {std::remainder(place.x - path.origin().x, OpenStreet::Projection::kWorldWidth), place.y - path.origin().y};
    mMarks.push_back(std::move(mark));
}

void MapMarks::set(const CycleCourse& course, const MapPath& path)
{
    mMarks.clear();
    for (const TimeSpan& flight : course.flights) {
        add(path, flight.start, {eTakeOff, tr("Take-off"), {}, {}});
        add(path, flight.end, {eLanding, tr("Landing"), {}, {}});
    }
    for (const CycleCourse::Mark& incident : course.incidents)
        add(path, incident.moment.time, {incident.state >= 2 ? eLimit : eWarning, IncidentText::laneless(incident.title), {}, incident});
}

std::vector<QPointF> MapMarks::outline(EShape shape)
{
    switch (shape) {
    case eTakeOff: return {{0, -kRadius}, {kRadius, kRadius}, {-kRadius, kRadius}};
    case eLanding: return {{-kRadius, -kRadius}, {kRadius, -kRadius}, {0, kRadius}};
    case eWarning: return {{0, -kRadius}, {kRadius, 0}, {0, kRadius}, {-kRadius, 0}};
    case eLimit: break;
    }
    return circle(kRadius, 8);
}

QColor MapMarks::colour(EShape shape, const MapStyle& style)
{
    switch (shape) {
    case eTakeOff: return style.colours.begin;
    case eLanding: return style.colours.end;
    case eWarning: return style.colours.exceeded;
    case eLimit: break;
    }
    return style.colours.limit;
}

void MapMarks::draw(Canvas& canvas, const OpenStreet::Camera& camera, const MapPath& path, const MapStyle& style,
                    std::span<const QRectF> covers) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, path.origin());
    LabelRoom room(QRectF(0, 0, camera.width(), camera.height()));
    for (const QRectF& cover : covers)
        room.block(cover);
    const CanvasText text{style.textSize, style.colours.label};
    for (const Mark& mark : mMarks) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(mark.place);
        const QPointF middle(start.x + at.x, start.y + at.y);
        if (!room.area().contains(middle))
            continue;
        std::vector<QPointF> shape = outline(mark.shape);
        for (QPointF& corner : shape)
            corner += middle;
        const QColor fill = colour(mark.shape, style);
        canvas.polygon(shape, fill);
        shape.push_back(shape.front());
        canvas.lineStrip(shape, {textColourOn(fill), 1.2, true});
        if (const auto box = room.take(middle, kRadius + 2.0, canvas.textSize(mark.text, text))) {
            canvas.fillRect(box->adjusted(-2, 0, 2, 0), style.colours.textGround);
            canvas.text(box->topLeft(), mark.text, text);
        }
    }
}

const CycleCourse::Mark* MapMarks::incidentAt(const MapPath& path, const OpenStreet::Camera& camera, const QPointF& place) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, path.origin());
    for (auto mark = mMarks.rbegin(); mark != mMarks.rend(); ++mark) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(mark->place);
        if (mark->incident && std::hypot(start.x + at.x - place.x(), start.y + at.y - place.y()) <= kRadius + 2.0)
            return &*mark->incident;
    }
    return nullptr;
}

} // namespace ZARN
