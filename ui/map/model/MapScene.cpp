#include "ui/map/model/MapScene.h"

#include "app/Numeric.h"
#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/Triangulation.h"
#include "ui/map/model/Graticule.h"
#include "ui/map/model/PointerText.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <unordered_set>
#include <utility>

namespace ZARN {

namespace {

constexpr double kMargin = 8.0; // pixels between the window's edges and what stands in its corners
constexpr double kMessageSize = 16.0;
constexpr double kMetresPerMile = 1852.0;
constexpr double kMetresPerFoot = 0.3048;
constexpr int kCorners = 12; // of a dot
constexpr std::size_t kMostDots = 4000;
constexpr double kTextAboveBar = 7.0;
constexpr double kAboveCorner = 4.0;
constexpr double kLabelPadding = 3.0; // of the ground beside a text
constexpr double kDash = 6.0;  // pixels, of a way on which nothing was received
constexpr double kRestWidth = 0.45; // of that of the path: what is not looked at is thin as well as dim
constexpr double kArrow = 5.0; // pixels from the middle of a mark of the direction to its point
constexpr int kDotCell = 2;    // pixels: dots that lie closer together are one

void addDisc(std::vector<QPointF>& triangles, std::span<const QPointF> shape, const QPointF& middle)
{
    for (std::size_t i = 0; i < shape.size(); ++i)
        triangles.insert(triangles.end(), {middle, middle + shape[i], middle + shape[(i + 1) % shape.size()]});
}

QSizeF sizeOf(const OpenStreet::Camera& camera)
{
    return {static_cast<double>(camera.width()), static_cast<double>(camera.height())};
}

QString length(double amount, const char* unit)
{
    return QString(QLatin1String("%1 %2")).arg(amount, 0, 'g', 6).arg(QLatin1String(unit));
}

/// The text in lines of at most so many characters, broken at blanks, and within a word that is longer.
QStringList inLines(const QString& text, qsizetype most)
{
    QStringList lines{QString()};
    for (QString word : text.split(QLatin1Char(' '))) {
        if (!lines.back().isEmpty() && lines.back().size() + 1 + word.size() > most)
            lines.append(QString());
        else if (!lines.back().isEmpty())
            lines.back() += QLatin1Char(' ');
        for (; word.size() > most; word = word.mid(most))
            lines.insert(lines.size() - 1, word.left(most));
        lines.back() += word;
    }
    return lines;
}

} // namespace

MapScaleBar MapScaleBar::at(const OpenStreet::Camera& camera, double pixels, bool imperial)
{
    const double middle = 0.5 * camera.height(), width = camera.width();
    const OpenStreet::WorldPoint left = camera.windowToWorld({0.0, middle}), right = camera.windowToWorld({width, middle});
    const double across = std::hypot(right.x - left.x, right.y - left.y); // a turned map is seen from the side
    const double perPixel = across / width / camera.projection().scaleAt(camera.position().latitude);
    const double most = perPixel * pixels;
    double unit = 1.0;
    const char* pUnit = "m";
    if (imperial) {
        const bool isShort = most < kMetresPerMile;
        unit = isShort ? kMetresPerFoot : kMetresPerMile;
        pUnit = isShort ? "ft" : "NM";
    } else if (most >= 1000.0) {
        unit = 1000.0;
        pUnit = "km";
    }
    const double power = std::pow(10.0, std::floor(std::log10(most / unit)));
    const double digit = most / unit / power;
    const double amount = power * (digit >= 5.0 ? 5.0 : digit >= 2.0 ? 2.0 : 1.0);
    return {amount * unit, amount * unit / perPixel, length(amount, pUnit)};
}

std::span<const QPointF> MapScene::aircraftOutline()
{
    static constexpr std::array<QPointF, 22> right{QPointF{0, -15}, {1.6, -13.5}, {2.2, -10},    {2.2, -5},   {17, -2.5},  {17, 1},
                                                   {2.2, 1.5},      {1.4, 10},    {6.5, 12},     {6.5, 14.5}, {0.8, 13.8}, {-0.8, 13.8},
                                                   {-6.5, 14.5},    {-6.5, 12},   {-1.4, 10},    {-2.2, 1.5}, {-17, 1},    {-17, -2.5},
                                                   {-2.2, -5},      {-2.2, -10},  {-1.6, -13.5}, {0, -15}};
    return std::span(right).first(right.size() - 1);
}

bool MapScene::setNote(const QString& note)
{
    return std::exchange(mNote, note) != note;
}

void MapScene::setCourse(const CycleCourse& course, const std::vector<TimeSpan>& gaps)
{
    mPath.setGaps(gaps);
    mWhole.setGaps(gaps);
    mMarks.set(course, mPath);
    mHeldPositions = course.heldPositions;
}

bool MapScene::setTint(PathTint tint)
{
    const auto isNone = [](const PathTint& one) { return one.isPlain() && !one.hasLegend(); };
    if (isNone(tint) && isNone(mTint))
        return false;
    mTint = std::move(tint);
    ++mTintGeneration;
    return true;
}

bool MapScene::setPointer(const std::optional<QPointF>& place)
{
    const bool isOther = mPointer.has_value() != place.has_value() || (place && *mPointer != *place);
    mPointer = place;
    return isOther;
}

bool MapScene::setShown(const std::optional<TimeSpan>& span)
{
    return std::exchange(mShown, span) != span;
}

void MapScene::update(const OpenStreet::Camera& camera)
{
    const std::size_t all = mPath.points().size();
    const auto [first, last] = mShown ? mPath.within(*mShown) : std::pair(std::size_t(0), all);
    mGeometry.update(mPath, camera, {first, last, mTint.isPlain() ? nullptr : &mTint, mTintGeneration});
    const bool isPart = first > 0 || last < all;
    const MapPath& rest = mWhole.isEmpty() ? mPath : mWhole;
    mRest.update(rest, camera, {0, isPart || !mWhole.isEmpty() ? rest.points().size() : 0});
    if (mIsPlain)
        mPlaces.update(camera, mStyle);
}

void MapScene::drawGround(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const CanvasText style{mStyle.textSize, mStyle.colours.gridText, false, Qt::AlignLeft | Qt::AlignBottom};
    if (mIsPlain) { // the labels keep clear of the scale bar, and of what stands in the corners
        const double bottom = std::min(std::floor(barBottom(sizeOf(camera)) - kTextAboveBar - labelHeight()),
                                       camera.height() - mStyle.sources.height() - kMargin - kAboveCorner);
        Graticule(camera, mStyle.gridSpacing).draw(canvas, {mStyle.colours.grid, mStyle.gridWidth}, style, bottom, mStyle.tools,
                                                    [&](const QRectF& box) { return mPlaces.areIn(box, camera); });
        mPlaces.draw(canvas, camera, mStyle);
    }
    drawRest(canvas);
    drawPath(canvas);
    drawWrongFixes(canvas, camera);
    drawEvents(canvas, camera);
    mMarks.draw(canvas, camera, mPath, mStyle, corners(sizeOf(camera)).covers());
}

void MapScene::drawAbove(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    drawAircraft(canvas, camera);
    drawScaleBar(canvas, camera);
    if (const auto legend = corners(sizeOf(camera)).legend)
        PathLegend(mTint, mStyle).draw(canvas, legend->box, legend->form);
    drawSelection(canvas);
    if (mMessage.isEmpty())
        return;
    const double width = canvas.textSize(mMessage, {kMessageSize}).width(), room = camera.width() - 2.0 * kMargin;
    drawLabel(canvas, {0.5 * camera.width(), 0.5 * camera.height()}, mMessage, Qt::AlignCenter, kMessageSize * std::min(1.0, room / width));
}

void MapScene::drawPath(Canvas& canvas) const
{
    canvas.push();
    canvas.translate(mGeometry.offset().x(), mGeometry.offset().y());
    for (const PathGeometry::Strip& strip : mGeometry.strips()) {
        const double dash = strip.isDashed ? kDash : 0.0;
        if (strip.colours.empty()) {
            canvas.lineStrip(strip.points, {mStyle.colours.path, mStyle.pathWidth, true, dash});
            continue;
        }
        canvas.lineStrip(strip.points, strip.colours, {mStyle.colours.path, mStyle.pathWidth, true, dash});
    }
    drawArrows(canvas);
    canvas.pop();
}

void MapScene::drawRest(Canvas& canvas) const
{
    canvas.push();
    canvas.translate(mRest.offset().x(), mRest.offset().y());
    for (const PathGeometry::Strip& strip : mRest.strips())
        canvas.lineStrip(strip.points, {mStyle.colours.pathDim, kRestWidth * mStyle.pathWidth, true, strip.isDashed ? kDash : 0.0});
    canvas.pop();
}

void MapScene::drawArrows(Canvas& canvas) const
{
    std::vector<QPointF> outer, inner;
    const auto add = [](std::vector<QPointF>& triangles, const PathGeometry::Arrow& arrow, double size) {
        const QPointF along = arrow.way * size, across = QPointF(-arrow.way.y(), arrow.way.x()) * (0.8 * size);
        triangles.insert(triangles.end(), {arrow.place + along, arrow.place - along + across, arrow.place - along - across});
    };
    const double size = kArrow * std::clamp(mStyle.pathWidth / 3.0, 0.6, 1.0); // a thin path on paper has small ones
    for (const PathGeometry::Arrow& arrow : mGeometry.arrows()) {
        add(outer, arrow, size + 2.0);
        add(inner, arrow, size);
    }
    canvas.triangles(outer, mStyle.colours.markRim);
    canvas.triangles(inner, mTint.isPlain() ? mStyle.colours.path : mStyle.colours.pathRim);
}

void MapScene::drawWrongFixes(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, mPath.origin());
    const std::vector<QPointF> dot = circle(2.5, kCorners);
    std::vector<QPointF> triangles;
    for (const OpenStreet::WorldPoint& fix : mPath.wrongFixes()) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(fix);
        if (triangles.size() < 3 * kCorners * kMostDots)
            addDisc(triangles, dot, {start.x + at.x, start.y + at.y});
    }
    canvas.triangles(triangles, mStyle.colours.wrongFix);
}

void MapScene::drawSelection(Canvas& canvas) const
{
    if (!mSelection)
        return;
    QColor ground = mStyle.colours.selection;
    ground.setAlpha(40);
    canvas.fillRect(*mSelection, ground);
    canvas.outline(*mSelection, {mStyle.colours.selection, 1.0});
}

void MapScene::drawEvents(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, mPath.origin());
    const std::vector<QPointF> inner = circle(MapEvents::kRadius, kCorners), outer = circle(MapEvents::kRadius + 1.2, kCorners);
    std::map<QRgb, std::vector<QPointF>> discs; // one drawing a colour
    std::vector<QPointF> rims;
    std::unordered_set<qint64> taken;
    for (const MapEvent& event : mEvents.dots()) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(event.place);
        const QPointF middle(start.x + at.x, start.y + at.y);
        if (!QRectF(-kMargin, -kMargin, camera.width() + 2 * kMargin, camera.height() + 2 * kMargin).contains(middle))
            continue;
        const QRgb colour = (event.isNote ? mStyle.colours.note : event.colour.isValid() ? event.colour : mStyle.colours.event).rgb();
        const auto cell = static_cast<qint64>(middle.x()) / kDotCell * 100000 + static_cast<qint64>(middle.y()) / kDotCell;
        if (taken.size() >= kMostDots || !taken.insert(cell * 0x1000000 + static_cast<qint64>(colour & 0xffffffU)).second)
            continue;
        addDisc(rims, outer, middle);
        addDisc(discs[colour], inner, middle);
    }
    canvas.triangles(rims, mStyle.colours.eventRim);
    for (const auto& [colour, triangles] : discs)
        canvas.triangles(triangles, QColor(colour));
}

void MapScene::drawAircraft(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    if (mPath.isEmpty())
        return;
    const OpenStreet::WindowPoint at = camera.geoToWindow({mAircraft.latitude, mAircraft.longitude});
    const double track = std::isfinite(mAircraft.track) ? mAircraft.track : 0.0;
    const QTransform turn = QTransform().rotate(track);
    const double scale = camera.metresPerPixel();
    std::vector<QPointF> outline;
    for (const QPointF& point : aircraftOutline()) {
        const QPointF seen = turn.map(point); // lies flat on the map, and is turned with it
        const OpenStreet::WindowPoint step = camera.worldToWindowVector({seen.x() * scale, -seen.y() * scale});
        outline.emplace_back(at.x + step.x, at.y + step.y);
    }
    canvas.polygon(outline, mStyle.colours.aircraft);
    outline.push_back(outline.front());
    canvas.lineStrip(outline, {mStyle.colours.aircraftRim, 1.5, true});
}

MapScaleBar MapScene::scaleBar(const OpenStreet::Camera& camera) const
{
    return MapScaleBar::at(camera, longestBar(sizeOf(camera)), mIsImperial);
}

double MapScene::longestBar(const QSizeF& window) const
{
    return std::min(mStyle.barLength, 0.4 * window.width());
}

double MapScene::barBottom(const QSizeF& window) const
{
    const bool isNarrow = longestBar(window) + mStyle.sources.width() + 3.0 * kMargin > window.width(); // no room beside what stands in the corner
    return window.height() - kMargin - (isNarrow ? mStyle.sources.height() + kAboveCorner : 0.0);
}

MapCorners MapScene::corners(const QSizeF& window) const
{
    MapCorners result;
    result.window = window;
    result.tools = QRectF(QPointF(), mStyle.tools);
    const double bottom = barBottom(window);
    result.bar = QRectF(QPointF(0.0, bottom - kTextAboveBar - labelHeight()), QPointF(kMargin + longestBar(window), bottom));
    const QPointF corner(window.width() - kMargin, window.height() - kMargin);
    result.sources = QRectF(corner - QPointF(mStyle.sources.width(), mStyle.sources.height()), mStyle.sources);
    for (const TextLine& line : linesAbove(window, {PointerText::longest(), mNote, mHeldPositions})) {
        // What is broken into lines may be broken otherwise, too.
        const double width = line.isWhole ? canvasTextSize(line.text, mStyle.textSize, false).width() + kMargin + kLabelPadding : window.width();
        result.words |= QRectF(0.0, line.bottom - labelHeight(), width, labelHeight());
    }
    if (!mPath.isEmpty())
        result.place(PathLegend(mTint, mStyle));
    return result;
}

void MapScene::drawScaleBar(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const MapScaleBar bar = scaleBar(camera);
    const double bottom = barBottom(sizeOf(camera));
    const double right = kMargin + bar.pixels;
    drawLabel(canvas, {kMargin, bottom - kTextAboveBar}, bar.text, Qt::AlignLeft | Qt::AlignBottom, mStyle.textSize);
    canvas.fillRect({kMargin, bottom - 5.0, bar.pixels, 5.0}, mStyle.colours.textGround);
    canvas.fillRect({kMargin, bottom - 2.0, bar.pixels, 2.0}, mStyle.colours.text);
    canvas.fillRect({kMargin, bottom - 5.0, 2.0, 5.0}, mStyle.colours.text);
    canvas.fillRect({right - 2.0, bottom - 5.0, 2.0, 5.0}, mStyle.colours.text);
    QString pointed;
    if (mPointer)
        pointed = PointerText::at(camera.windowToGeo({mPointer->x(), mPointer->y()}), mPath.isEmpty() ? nullptr : &mAircraft);
    for (const TextLine& line : linesAbove(sizeOf(camera), {pointed, mNote, mHeldPositions}))
        drawLabel(canvas, {kMargin, line.bottom}, line.text, Qt::AlignLeft | Qt::AlignBottom, mStyle.textSize);
}

/// Texts one above the other at the left edge, from the scale bar upwards, each in as many lines as it takes.
std::vector<MapScene::TextLine> MapScene::linesAbove(const QSizeF& window, const QStringList& texts) const
{
    std::vector<TextLine> result;
    double bottom = std::min(barBottom(window) - kTextAboveBar - labelHeight() - 6.0, window.height() - mStyle.sources.height() - 2.0 * kMargin);
    // Characters are all of one width.
    const double characters = (window.width() - 2.0 * kMargin) / canvasTextSize(QStringLiteral("x"), mStyle.textSize, false).width();
    for (const QString& text : texts) {
        if (text.isEmpty())
            continue;
        const QStringList lines = inLines(text, std::max<qsizetype>(saturatingCast<int>(characters), 1));
        double y = bottom - labelHeight() * static_cast<double>(lines.size() - 1);
        bottom = y - labelHeight() - 4.0;
        for (const QString& line : lines) {
            result.push_back({y, line, lines.size() == 1});
            y += labelHeight();
        }
    }
    return result;
}

void MapScene::drawLabel(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment align, double textSize) const
{
    const CanvasText style{textSize, mStyle.colours.text, false, align};
    const QSizeF size = canvas.textSize(text, style);
    const double left = align & Qt::AlignHCenter ? position.x() - 0.5 * size.width() : position.x();
    const double top = position.y() - (align & Qt::AlignVCenter ? 0.5 : 1.0) * size.height();
    canvas.fillRect({left - kLabelPadding, top, size.width() + 2.0 * kLabelPadding, size.height()}, mStyle.colours.textGround);
    canvas.text(position, text, style);
}

} // namespace ZARN
