#include "ui/graph/model/CourseBand.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ColourContrast.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kEngineHeight = 3.0, kEngineGap = 1.0, kMarkHeight = 4.0, kLeastMark = 4.0; // pixels
constexpr double kTremble = 1.5; // pixels beside a mark that are on it
constexpr double kNear = 4.0;                                              // how far from a mark a click may fall
constexpr double kLeastContrast = 3.0; // of marks, some of them narrow
constexpr float kFlightShade = 0.09F;

/// How much of the flights' colour a phase has.
float shareOf(EFlightPhase phase)
{
    switch (phase) {
    case EFlightPhase::eGround: return 0.15F;
    case EFlightPhase::eTakeOff: return 1.0F;
    case EFlightPhase::eClimb: return 0.8F;
    case EFlightPhase::eLevel: return 0.5F;
    case EFlightPhase::eDescent: return 0.35F;
    default: return 0.0F;
    }
}

} // namespace

QString CourseBand::phaseName(EFlightPhase phase)
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("ZARN::CourseBand", text); };
    switch (phase) {
    case EFlightPhase::eGround: return translated(QT_TRANSLATE_NOOP("ZARN::CourseBand", "Ground"));
    case EFlightPhase::eTakeOff: return translated(QT_TRANSLATE_NOOP("ZARN::CourseBand", "Take-off"));
    case EFlightPhase::eClimb: return translated(QT_TRANSLATE_NOOP("ZARN::CourseBand", "Climb"));
    case EFlightPhase::eLevel: return translated(QT_TRANSLATE_NOOP("ZARN::CourseBand", "Level"));
    case EFlightPhase::eDescent: return translated(QT_TRANSLATE_NOOP("ZARN::CourseBand", "Descent"));
    default: return {};
    }
}

QRectF CourseBand::band() const
{
    const QRectF& plot = mLayout.plot();
    return plot.top() > 2 * mLayout.line() ? QRectF(plot.left(), 3, plot.width(), mLayout.line()) : QRectF();
}

QRectF CourseBand::area(double from, double until, const QRectF& rect) const
{
    const double left = std::clamp(std::round(mLayout.xOf(from)), rect.left(), rect.right());
    const double right = std::clamp(std::round(mLayout.xOf(until)), rect.left(), rect.right());
    return right > left ? QRectF(QPointF(left, rect.top()), QPointF(right, rect.bottom())) : QRectF();
}

void CourseBand::drawFlights(Canvas& canvas) const
{
    if (!mModel.scenery().course())
        return;
    // Opaque: blending so large an area costs more than all traces.
    const QColor shade = mixed(mModel.colours().background, textColourOn(mModel.colours().background), kFlightShade);
    for (const TimeSpan& flight : mModel.scenery().course()->flights) {
        const QRectF part = area(flight.start, flight.end, mLayout.plot());
        if (!part.isEmpty())
            canvas.fillRect(part, shade);
    }
}

void CourseBand::draw(Canvas& canvas) const
{
    if (!mModel.scenery().course())
        return;
    drawIncidents(canvas);
    if (band().isEmpty())
        return;
    drawPhases(canvas);
    drawEngine(canvas);
}

void CourseBand::drawPhases(Canvas& canvas) const
{
    std::vector<std::tuple<QPointF, QString, QColor>> names;
    for (const FlightPhases::Step& step : mModel.scenery().course()->phases) {
        const QRectF part = area(step.from, step.until, band().adjusted(0, 0, 0, -kEngineHeight - kEngineGap));
        if (part.isEmpty() || step.phase == EFlightPhase::eOff)
            continue;
        const QColor colour = mixed(mModel.colours().labelBackground, Palette::light().phaseFlight, shareOf(step.phase));
        canvas.fillRect(part, colour);
        canvas.lines(std::array{part.topLeft(), part.bottomLeft(), part.topRight(), part.bottomRight()}, {mModel.colours().label, 1.0});
        const QString name = phaseName(step.phase);
        if (canvasTextSize(name, mLayout.textSize(), false).width() + 4 < part.width())
            names.emplace_back(QPointF(part.center().x(), part.top() - 1), name, textColourOn(colour));
    }
    for (const auto& [place, name, colour] : names)
        canvas.text(place, name, {mLayout.textSize(), colour, false, Qt::AlignHCenter | Qt::AlignTop, false});
}

void CourseBand::drawEngine(Canvas& canvas) const
{
    QRectF line = band();
    line.setTop(line.bottom() - kEngineHeight);
    for (const TimeSpan& stretch : mModel.scenery().course()->engine) {
        const QRectF part = area(stretch.start, stretch.end, line);
        if (!part.isEmpty())
            canvas.fillRect(part, readableOn(mModel.colours().labelBackground, Palette::light().phaseEngine, kLeastContrast));
    }
}

QRectF CourseBand::mark(const TimeSpan& span) const
{
    const QRectF& plot = mLayout.plot();
    const double left = mLayout.xOf(span.start), right = mLayout.xOf(span.end);
    if (!(right >= plot.left()) || !(left <= plot.right()))
        return {};
    const double first = std::clamp(std::round(left), plot.left(), plot.right() - kLeastMark);
    const double last = std::clamp(std::round(right), first + kLeastMark, plot.right());
    return {first, plot.bottom() + 1, last - first, kMarkHeight};
}

void CourseBand::drawIncidents(Canvas& canvas) const
{
    const Palette& palette = Palette::light();
    for (const int state : {1, 2}) { // what is worse lies above
        for (const CycleCourse::Mark& incident : mModel.scenery().course()->incidents) {
            const QRectF place = incident.state == state ? mark(incident.span) : QRectF();
            if (!place.isEmpty())
                canvas.fillRect(place, readableOn(mModel.colours().labelBackground, state == 2 ? palette.limit : palette.warning, kLeastContrast));
        }
    }
}

std::optional<std::size_t> CourseBand::incidentAt(const QPointF& point) const
{
    const double top = mLayout.plot().bottom();
    if (!mModel.scenery().course() || point.y() < top - 1 || point.y() > top + kMarkHeight + kNear)
        return {};
    const std::vector<CycleCourse::Mark>& incidents = mModel.scenery().course()->incidents;
    std::optional<std::size_t> nearest;
    double least = kNear;
    for (std::size_t i = 0; i < incidents.size(); ++i) {
        const QRectF place = mark(incidents[i].span);
        const double distance = std::max({place.left() - point.x() - kTremble, point.x() - place.right() - kTremble, 0.0});
        if (place.isEmpty() || distance > least)
            continue;
        if (distance < least || !nearest || incidents[i].state > incidents[*nearest].state)
            nearest = i;
        least = distance;
    }
    return nearest;
}

} // namespace ZARN
