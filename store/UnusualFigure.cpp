#include "store/UnusualFigure.h"

#include "analysis/IncidentText.h"
#include "profile/DisplayUnit.h"
#include "store/StoreText.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace ZARN {

namespace {

using Place = TrendPoint::Place;

constexpr const char* kLast = "~"; // behind every date
constexpr int64_t kNoCard = std::numeric_limits<int64_t>::max();

/// The figures before a flight: those of the store, and of the cycle's own flights those that were found now.
std::vector<double> figuresBefore(const Trend* pTrend, const CycleHead& cycle, std::vector<std::pair<Place, double>> own,
                                  const Place& flight)
{
    if (pTrend) {
        for (const TrendPoint& point : pTrend->points) {
            if (point.cycleId != cycle.id)
                own.emplace_back(point.place, point.median);
        }
    }
    std::erase_if(own, [&flight](const auto& other) { return other.first >= flight; });
    std::ranges::sort(own);
    std::vector<double> figures;
    for (const auto& [place, figure] : own)
        figures.push_back(figure);
    return figures;
}

/// Those that a store tells: of parameters of one name the first that there is in a phase of a flight.
std::vector<KeyValue> toldOf(const KeyValueTable& table)
{
    std::set<std::tuple<int, EFlightPhase, std::string>> names;
    std::vector<KeyValue> told;
    for (const KeyValue& value : table.values) {
        if (names.emplace(value.flight, value.phase, storeText(table.sources[value.source].parameter)).second)
            told.push_back(value);
    }
    return told;
}

} // namespace

std::vector<Place> placesOf(StoreReader& store, const std::string& engine, const CycleHead& cycle, std::span<const RecordFlight> flights)
{
    std::vector<Place> places = store.places(engine, cycle.id);
    for (std::size_t i = places.size(); i < flights.size(); ++i) {
        const std::string date = storeDate(flights[i].dateTime);
        places.push_back({date.empty() ? kLast : date, kNoCard, cycle.number, static_cast<int64_t>(i + 1)});
    }
    return places;
}

std::vector<UnusualFigure> findUnusual(StoreReader& store, const CycleHead& cycle, std::span<const RecordFlight> flights,
                                       const CycleReview& review)
{
    const std::string engine = store.engineOf(cycle.engine.id);
    const std::vector<Trend> trends = store.trends(engine);
    const std::vector<Place> places = placesOf(store, engine, cycle, flights);
    const std::vector<KeyValueSource>& sources = review.keyValues.sources;
    const std::vector<KeyValue> values = toldOf(review.keyValues);
    std::vector<UnusualFigure> found;
    for (const KeyValue& value : values) {
        const KeyValueSource& source = sources[value.source];
        const auto trend = std::ranges::find_if(trends, [&](const Trend& other) {
            return other.parameter == storeText(source.parameter) && other.phase == phaseKey(value.phase) && other.unit == storeText(source.unit);
        });
        std::vector<std::pair<Place, double>> own;
        for (const KeyValue& other : values) {
            if (sources[other.source].parameter == source.parameter && other.phase == value.phase && other.flight != value.flight)
                own.emplace_back(places[static_cast<std::size_t>(other.flight - 1)], other.values.median);
        }
        const std::vector<double> earlier = figuresBefore(trend == trends.end() ? nullptr : &*trend, cycle, std::move(own),
                                                          places[static_cast<std::size_t>(value.flight - 1)]);
        const TrendJudgement judgement = judgeFigure(value.values.median, earlier, source.precision);
        if (judgement.isUnusual || judgement.isDrifting)
            found.push_back({value.flight, source, value.phase, value.values.median, judgement});
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const UnusualFigure& one) { return std::abs(one.judgement.z.value_or(0.0)); });
    return found;
}

QString UnusualText::sentence(const UnusualFigure& unusual) const
{
    const int decimals = unusual.source.precision;
    const Distribution& band = unusual.judgement.band;
    const DisplayUnit shown(mContext, unusual.source.parameter, unusual.source.unit);
    const auto number = [&](double value) { return mLocale.toString(shown.value(value), 'f', decimals); };
    const QString unit = shown.unit().empty() ? QString() : " " + QString::fromStdString(shown.unit());
    const QString text = tr("%1 %2 %3, in the %4 flights before %5 to %6")
                             .arg(QString::fromStdString(unusual.source.parameter), IncidentText::phaseText(unusual.phase),
                                  number(unusual.median) + unit, QString::number(band.samples), number(band.p05), number(band.p95) + unit);
    if (!unusual.judgement.isDrifting)
        return text;
    return unusual.judgement.isUnusual ? tr("%1, and drifting").arg(text) : tr("%1, drifting").arg(text);
}

QStringList UnusualText::sentences(std::span<const UnusualFigure> figures, bool namesFlights, std::size_t most) const
{
    QStringList lines;
    for (const UnusualFigure& figure : figures.first(std::min(figures.size(), most)))
        lines.append(namesFlights ? tr("flight %1, %2").arg(figure.flight).arg(sentence(figure)) : sentence(figure));
    if (figures.size() > most)
        lines.append(tr("%1 more figures; the trends in the logbook have them all").arg(figures.size() - most));
    return lines;
}

} // namespace ZARN
