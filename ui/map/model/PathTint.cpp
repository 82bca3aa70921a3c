#include "ui/map/model/PathTint.h"

#include "analysis/SampleSeries.h"
#include "trace/TraceSet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr double kUnknownValue = std::numeric_limits<double>::quiet_NaN();
constexpr std::pair<const char*, PathColouring::EBy> kKeys[] = {
    {"altitude", PathColouring::eAltitude}, {"speed", PathColouring::eSpeed}, {"phase", PathColouring::ePhase}};
constexpr EFlightPhase kPhases[] = {EFlightPhase::eOff,   EFlightPhase::eGround, EFlightPhase::eTakeOff,
                                    EFlightPhase::eClimb, EFlightPhase::eLevel,  EFlightPhase::eDescent};

QColor between(const std::array<QColor, 5>& stops, double share)
{
    const double place = std::clamp(share, 0.0, 1.0) * static_cast<double>(stops.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), stops.size() - 2);
    const auto part = static_cast<float>(place - static_cast<double>(below));
    const auto mix = [part](float a, float b) { return a + (b - a) * part; };
    const QColor &a = stops[below], &b = stops[below + 1];
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

} // namespace

PathColouring PathColouring::of(const std::string& key)
{
    if (key.starts_with('='))
        return {eParameter, key.substr(1)};
    for (const auto& [name, by] : kKeys) {
        if (key == name)
            return {by, {}};
    }
    return {};
}

std::string PathColouring::key() const
{
    if (by == eParameter)
        return '=' + parameter;
    const auto found = std::ranges::find(kKeys, by, [](const auto& entry) { return entry.second; });
    return found == std::end(kKeys) ? std::string() : found->first;
}

QString PathTinter::title(const PathColouring& colouring)
{
    switch (colouring.by) {
    case PathColouring::eAltitude: return tr("Altitude");
    case PathColouring::eSpeed: return tr("Ground speed");
    case PathColouring::ePhase: return tr("Phase of flight");
    case PathColouring::eParameter: return QString::fromStdString(colouring.parameter);
    case PathColouring::ePlain: break;
    }
    return tr("One colour");
}

QString PathTinter::phaseName(EFlightPhase phase)
{
    switch (phase) {
    case EFlightPhase::eOff: return tr("Engine off");
    case EFlightPhase::eGround: return tr("Ground");
    case EFlightPhase::eTakeOff: return tr("Take-off");
    case EFlightPhase::eClimb: return tr("Climb");
    case EFlightPhase::eLevel: return tr("Level flight");
    case EFlightPhase::eDescent: return tr("Descent");
    }
    return {};
}

std::string PathTinter::unitOf(const char* type) const
{
    const ProfileParameter parameter = mContext.model().ofZarnType(type);
    return parameter.name.empty() ? std::string() : mContext.unitOf(parameter);
}

PathTint PathTinter::tint(const PathColouring& colouring, const RecordData* pRecord, const std::vector<FlightPhases::Step>& phases) const
{
    std::vector<double> values(mPoints.size());
    const auto take = [&](double FlightPathPoint::*pMember) {
        std::ranges::transform(mPoints, values.begin(), [pMember](const FlightPathPoint& point) { return point.*pMember; });
    };
    switch (colouring.by) {
    case PathColouring::eAltitude: take(&FlightPathPoint::altitude); return byValues(values, title(colouring), unitOf("Altitude"));
    case PathColouring::eSpeed: take(&FlightPathPoint::groundSpeed); return byValues(values, title(colouring), unitOf("GroundSpeed"));
    case PathColouring::ePhase: return byPhases(phases);
    case PathColouring::eParameter: break;
    case PathColouring::ePlain: return {};
    }
    const ProfileParameter* pParameter = mContext.model().find(colouring.parameter);
    if (pParameter && pRecord)
        return byValues(valuesOf(*pParameter, *pRecord), title(colouring), mContext.unitOf(*pParameter));
    return {};
}

/// The value in force at the time of each point: that of the last sample before it.
std::vector<double> PathTinter::valuesOf(const ProfileParameter& parameter, const RecordData& record) const
{
    const auto pTrace = TraceSet::one(record, mContext, parameter, ENumber::eDisplay);
    SampleSeries series;
    if (pTrace->decoder().isNumeric())
        pTrace->forEachRun([&series](const TraceRun& run) { series.append(run.times, run.numbers); });
    std::vector<double> values;
    values.reserve(mPoints.size());
    for (const FlightPathPoint& point : mPoints) {
        const auto place = series.lastAtOrBefore(point.time);
        values.push_back(place ? series.value(*place) : kUnknownValue);
    }
    return values;
}

PathTint PathTinter::byValues(const std::vector<double>& values, const QString& title, const std::string& unit) const
{
    PathTint result;
    double low = std::numeric_limits<double>::max(), high = -low;
    for (const double value : values) {
        if (std::isfinite(value)) {
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
    result.unit = QString::fromStdString(unit);
    result.title = unit.empty() ? title : QString(QLatin1String("%1 [%2]")).arg(title, result.unit);
    if (low > high) {
        result.entries = {{mColours.unknown, tr("%1: no values").arg(result.title)}};
        return result;
    }
    result.isScale = true;
    result.low = low;
    result.high = high;
    for (int i = 0; i < PathTint::kSteps; ++i)
        result.colours.push_back(between(mColours.scale, static_cast<double>(i) / (PathTint::kSteps - 1)));
    result.colours.push_back(mColours.unknown);
    const double step = std::max((high - low) / PathTint::kSteps, std::numeric_limits<double>::min());
    result.steps.reserve(values.size());
    for (const double value : values) {
        const double place = std::isfinite(value) ? std::clamp((value - low) / step, 0.0, PathTint::kSteps - 1.0) : PathTint::kUnknown;
        result.steps.push_back(static_cast<quint8>(place));
    }
    return result;
}

PathTint PathTinter::byPhases(const std::vector<FlightPhases::Step>& phases) const
{
    PathTint result;
    result.title = title({PathColouring::ePhase, {}});
    if (phases.empty())
        return result;
    result.colours.assign(PathTint::kSteps + 1, mColours.unknown);
    for (std::size_t i = 0; i < std::size(kPhases); ++i)
        result.colours[i] = mColours.phases[i];
    std::array<bool, std::size(kPhases)> isSeen{};
    auto step = phases.begin();
    for (const FlightPathPoint& point : mPoints) {
        while (step != phases.end() && step->until < point.time)
            ++step;
        const bool isKnown = step != phases.end() && step->from < point.time;
        result.steps.push_back(isKnown ? static_cast<quint8>(step->phase) : PathTint::kUnknown);
        if (isKnown)
            isSeen[static_cast<std::size_t>(step->phase)] = true;
    }
    for (std::size_t i = 0; i < isSeen.size(); ++i) {
        if (isSeen[i])
            result.entries.push_back({mColours.phases[i], phaseName(kPhases[i])});
    }
    return result;
}

} // namespace ZARN
