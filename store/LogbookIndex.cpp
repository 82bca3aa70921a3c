#include "store/LogbookIndex.h"

#include "store/FlightVerdict.h"
#include "store/PlacedFlights.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <tuple>

namespace ZARN {

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

double realOr(const Statement& row, int column, double otherwise)
{
    return row.isNull(column) ? otherwise : row.real(column);
}

bool holds(const QString& text, const QString& wanted)
{
    return text.contains(wanted, Qt::CaseInsensitive);
}

std::vector<bool> holders(const std::vector<QString>& texts, const QString& wanted)
{
    std::vector<bool> found;
    for (const QString& text : texts)
        found.push_back(holds(text, wanted));
    return found;
}

void add(std::optional<double>& sum, double value)
{
    if (!std::isnan(value))
        sum = sum.value_or(0.0) + value;
}

/// The number that flights are put in order by; unknown ones come before all others.
double rank(double value)
{
    return std::isnan(value) ? -std::numeric_limits<double>::infinity() : value;
}

} // namespace

std::size_t LogbookIndex::Texts::of(const std::string& text)
{
    const auto [found, isNew] = places.try_emplace(text, texts.size());
    if (isNew)
        texts.push_back(QString::fromStdString(text));
    return found->second;
}

LogbookIndex::LogbookIndex(Database& database, const RecordingCopies& copies) : mDatabase(database)
{
    read(copies);
}

void LogbookIndex::read(const RecordingCopies& copies)
{
    mFlights.clear();
    mCycles.clear();
    mCycleOf.clear();
    mEngines = mCards = {};
    readCycles(copies);
    readFlights(copies);
    place();
    readVerdicts();
    std::ranges::sort(mFlights, [this](const Flight& a, const Flight& b) {
        const Cycle &one = mCycles[a.cycle], &other = mCycles[b.cycle];
        return std::tie(a.at, one.card, one.number, a.number, a.id) < std::tie(b.at, other.card, other.number, b.number, b.id);
    });
}

void LogbookIndex::readCycles(const RecordingCopies& copies)
{
    Statement& found = mDatabase.prepared("SELECT cycle_id, engine_id, coalesce(card.name, ''), verdict, engine_running, cycle.card_id, "
                                          "number, fuel IS NOT NULL FROM cycle LEFT JOIN card USING (card_id)");
    found.with({});
    while (found.next()) {
        mCycleOf.emplace(found.text(0), mCycles.size());
        mCycles.push_back({mEngines.of(found.text(1)), mCards.of(found.text(2)), mCycles.size(), verdictOfKey(found.text(3)), realOr(found, 4, kUnknown),
                           found.integer(5), found.integer(6), found.integer(7) != 0});
    }
    for (const auto& [id, copy] : copies.copies()) {
        const auto cycle = mCycleOf.find(id), counted = mCycleOf.find(copy.of);
        if (cycle == mCycleOf.end() || counted == mCycleOf.end())
            continue;
        mCycles[cycle->second].recording = counted->second;
        mCycles[cycle->second].running = copy.counted.value_or(kUnknown);
    }
}

void LogbookIndex::readFlights(const RecordingCopies& copies)
{
    Statement& found = mDatabase.prepared(
        "SELECT flight_id, cycle_id, number, date_time, landing_time - take_off_time, total_fuel, total_climb, start_time, end_time FROM flight");
    found.with({});
    while (found.next()) {
        const auto cycle = mCycleOf.find(found.text(1));
        if (cycle == mCycleOf.end() || copies.isToldElsewhere(found.integer(0)))
            continue;
        const double fuel = mCycles[cycle->second].hasFuel ? realOr(found, 5, kUnknown) : kUnknown;
        const EVerdict verdict = verdictOfFlight(mCycles[cycle->second].verdict, 0);
        mFlights.push_back({found.integer(0), cycle->second, found.integer(2), found.text(3), !found.isNull(3), realOr(found, 4, 0.0), fuel,
                            realOr(found, 6, kUnknown), verdict, {found.real(7), found.real(8)}});
    }
}

/// Few flights have no date, and only their cards have to be looked through for their places; few have one that has to be set right.
void LogbookIndex::place()
{
    std::unordered_map<int64_t, std::string> places;
    const std::string undated = placedFlights("WHERE cycle.card_id IN (SELECT card_id FROM flight JOIN cycle USING (cycle_id) WHERE flight.date_time IS NULL)") +
                                "SELECT flight_id, at FROM placed WHERE date_time IS NULL";
    const std::string late = "SELECT flight_id, " + clockOf("flight.date_time") +
                             " FROM cycle CROSS JOIN flight USING (cycle_id) WHERE cycle.number = 0 AND flight.date_time IS NOT NULL";
    for (const std::string& sql : {undated, late}) {
        Statement& found = mDatabase.prepared(sql).with({});
        while (found.next())
            places.emplace(found.integer(0), found.text(1));
    }
    for (Flight& flight : mFlights) {
        if (const auto place = places.find(flight.id); place != places.end())
            flight.at = place->second;
    }
}

void LogbookIndex::readVerdicts()
{
    std::unordered_map<int64_t, int64_t> states;
    Statement& found = mDatabase.prepared(std::string("SELECT flight.flight_id, max(state) FROM incident JOIN flight ON ") + kDuringFlight + " GROUP BY 1");
    found.with({});
    while (found.next())
        states.emplace(found.integer(0), found.integer(1));
    for (Flight& flight : mFlights) {
        if (const auto state = states.find(flight.id); state != states.end())
            flight.verdict = verdictOfFlight(flight.verdict, state->second);
    }
}

LogbookIndex::Found LogbookIndex::find(const QString& text)
{
    Found found{holders(mEngines.texts, text), holders(mCards.texts, text), std::vector<bool>(mFlights.size())};
    Statement& aircraft = mDatabase.prepared("SELECT engine_id, name FROM aircraft").with({});
    while (aircraft.next()) {
        const auto engine = mEngines.places.find(aircraft.text(0));
        if (engine != mEngines.places.end() && holds(QString::fromStdString(aircraft.text(1)), text))
            found.engines[engine->second] = true;
    }
    findNotes(text, found.flights);
    findIncidents(text, found.flights);
    return found;
}

/// A note is of the flight that it stands in; one that stands in none is of all flights of its cycle.
void LogbookIndex::findNotes(const QString& text, std::vector<bool>& flights)
{
    struct Time {
        double seconds = 0.0;
        bool isInFlight = false;
    };
    std::unordered_map<std::size_t, std::vector<Time>> times; // of the notes, by recording
    Statement& notes = mDatabase.prepared("SELECT cycle_id, text, time FROM note").with({});
    while (notes.next()) {
        const auto cycle = mCycleOf.find(notes.text(0));
        if (cycle != mCycleOf.end() && holds(QString::fromStdString(notes.text(1)), text))
            times[mCycles[cycle->second].recording].push_back({notes.real(2)});
    }
    const auto forEach = [&](auto act) {
        for (std::size_t i = 0; i < mFlights.size() && !times.empty(); ++i) {
            const auto found = times.find(mCycles[mFlights[i].cycle].recording);
            for (std::size_t note = 0; found != times.end() && note < found->second.size(); ++note)
                flights[i] = act(found->second[note], mFlights[i].span) || flights[i];
        }
    };
    forEach([](Time& note, const TimeSpan& flight) {
        note.isInFlight |= flight.holds(note.seconds);
        return flight.holds(note.seconds);
    });
    forEach([](const Time& note, const TimeSpan&) { return !note.isInFlight; });
}

void LogbookIndex::findIncidents(const QString& text, std::vector<bool>& flights)
{
    std::set<int64_t> ids;
    Statement& titles = mDatabase.prepared("SELECT DISTINCT title FROM incident").with({});
    Statement& incidents = mDatabase.prepared("SELECT flight_id FROM incident WHERE title = ? AND flight_id IS NOT NULL");
    while (titles.next()) {
        if (!holds(QString::fromStdString(titles.text(0)), text))
            continue;
        incidents.with({titles.text(0)});
        while (incidents.next())
            ids.insert(incidents.integer(0));
    }
    for (std::size_t i = 0; i < mFlights.size(); ++i)
        flights[i] = flights[i] || ids.contains(mFlights[i].id);
}

std::vector<std::size_t> LogbookIndex::chosen(const LogbookFilter& filter)
{
    const std::string from = filter.from.isValid() ? filter.from.toString(Qt::ISODate).toStdString() : std::string();
    const std::string end = filter.until.isValid() ? filter.until.addDays(1).toString(Qt::ISODate).toStdString() : std::string("~");
    const auto engine = mEngines.places.find(filter.engine);
    const QString wanted = filter.text.simplified();
    const Found found = wanted.isEmpty() ? Found() : find(wanted);
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < mFlights.size(); ++i) {
        const Flight& flight = mFlights[i];
        const Cycle& cycle = mCycles[flight.cycle];
        const bool isInTime = flight.hasDate ? flight.at >= from && flight.at < end : !filter.from.isValid() && !filter.until.isValid();
        const bool isOfEngine = filter.engine.empty() || (engine != mEngines.places.end() && cycle.engine == engine->second);
        const bool isOfVerdict = filter.verdict.empty() || verdictKey(flight.verdict) == filter.verdict;
        if (isInTime && isOfEngine && isOfVerdict &&
            (wanted.isEmpty() || found.engines[cycle.engine] || found.cards[cycle.cardName] || found.flights[i]))
            places.push_back(i);
    }
    return places;
}

void LogbookIndex::sort(std::vector<std::size_t>& places, ELogbookOrder order, bool isDescending) const
{
    const auto by = [&](auto key) { std::ranges::stable_sort(places, {}, [&](std::size_t place) { return key(mFlights[place]); }); };
    switch (order) {
    case ELogbookOrder::eDate: break; // as they stand
    case ELogbookOrder::eEngine: by([this](const Flight& flight) -> const QString& { return mEngines.texts[mCycles[flight.cycle].engine]; }); break;
    case ELogbookOrder::eVerdict: by([](const Flight& flight) { return flight.verdict; }); break;
    case ELogbookOrder::eFlightTime: by([](const Flight& flight) { return flight.flightTime; }); break;
    case ELogbookOrder::eFuel: by([](const Flight& flight) { return rank(flight.fuel); }); break;
    case ELogbookOrder::eClimb: by([](const Flight& flight) { return rank(flight.climb); }); break;
    }
    if (isDescending)
        std::ranges::reverse(places);
}

LogbookTotals LogbookIndex::totals(const std::vector<std::size_t>& places) const
{
    LogbookTotals totals;
    totals.flights = places.size();
    std::vector<bool> isCounted(mCycles.size());
    for (const std::size_t place : places) {
        const Flight& flight = mFlights[place];
        totals.flightTime += flight.flightTime;
        add(totals.fuel, flight.fuel);
        totals.flightsWithoutFuel += std::isnan(flight.fuel);
        if (isCounted[flight.cycle])
            continue;
        isCounted[flight.cycle] = true;
        add(totals.running, mCycles[flight.cycle].running);
        totals.cyclesWithoutEngine += std::isnan(mCycles[flight.cycle].running);
    }
    return totals;
}

LogbookSelection LogbookIndex::select(const LogbookFilter& filter, ELogbookOrder order, bool isDescending)
{
    std::vector<std::size_t> places = chosen(filter);
    LogbookSelection selection{{}, totals(places)};
    sort(places, order, isDescending);
    for (const std::size_t place : places)
        selection.flights.push_back(mFlights[place].id);
    return selection;
}

} // namespace ZARN
