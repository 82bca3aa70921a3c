#include "report/ReportMap.h"

#include "analysis/EventList.h"
#include "report/ReportMarks.h"

namespace ZARN {

namespace {

constexpr double kSmallestRange = 500.0; // metres
constexpr double kLineScale = 0.7;       // of the map's lines
constexpr double kSourceSize = 5.0;      // of the names of those who made the map
constexpr std::size_t kMostMarks = 2000;

} // namespace

ReportMap::ReportMap(const LoadedCard& loaded, const EventList& limits)
{
    mBaseMap.loadBuiltIn();
    mBaseMap.setColours(MapStyle::paper().ground());
    mScene.path().setPoints(*loaded.pPath);
    mScene.setImperial(loaded.context.unit() == EUnit::eImperial);
    mScene.setPlain(true);
    mScene.places().open(OpenStreet::DetailFile::builtInFolder());
    for (const Event& event : limits.events()) {
        const bool isShown = event.time >= loaded.startTime && event.time <= loaded.endTime && mScene.path().spans(event.time);
        if (isShown && mExceeded.size() < kMostMarks)
            mExceeded.push_back(event.time);
    }
}

bool ReportMap::isSmall() const
{
    constexpr int kSide = 100; // any square will do
    return isEmpty() || mScene.path().fit(kSide, kSide).range < 2 * kSmallestRange;
}

void ReportMap::draw(QPainter& painter, Canvas& canvas, const QRectF& place)
{
    const int width = static_cast<int>(place.width());
    const int height = static_cast<int>(place.height());
    const MapFit fit = mScene.path().fit(width, height);
    OpenStreet::Camera camera;
    camera.setWindowSize(width, height);
    camera.setPosition({fit.latitude, fit.longitude});
    camera.setVisibleRange(std::max(fit.range, kSmallestRange), 0);
    mScene.update(camera);
    canvas.push();
    canvas.translate(place.left(), place.top());
    canvas.clip(QRectF(0, 0, width, height));
    mBaseMap.paint(painter, camera, kLineScale);
    mScene.drawGround(canvas, camera);
    drawMarks(canvas, camera);
    mScene.drawScaleBar(canvas, camera);
    canvas.text({width - 4.0, height - 3.0}, QStringLiteral("Natural Earth, GSHHG, GeoNames, OurAirports"),
                {kSourceSize, Palette::print().map.gridText, false, Qt::AlignRight | Qt::AlignBottom});
    canvas.outline(QRectF(0, 0, width, height), {Palette::print().map.frame, kLineScale});
    canvas.pop();
}

void ReportMap::drawMarks(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const MapPath& path = mScene.path();
    const Palette::Map& colours = Palette::print().map;
    const auto windowPoint = [&camera](const FlightPathPoint& point) {
        const OpenStreet::WindowPoint at = camera.geoToWindow({point.latitude, point.longitude});
        return QPointF(at.x, at.y);
    };
    ReportMarks marks(QSizeF(camera.width(), camera.height()));
    marks.add(windowPoint(path.points().front()), colours.begin);
    marks.add(windowPoint(path.points().back()), colours.end);
    for (const double time : mExceeded)
        marks.addToGroup(windowPoint(path.positionAt(time)), colours.exceeded);
    marks.draw(canvas);
}

} // namespace ZARN
