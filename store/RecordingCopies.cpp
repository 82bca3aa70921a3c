#include "store/RecordingCopies.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <tuple>

namespace ZARN {

namespace {

constexpr double kSameMoment = 2.0;      // seconds: dates are whole ones
constexpr double kClockSetRight = 60.0;  // seconds: a clock that is set right goes back by less
constexpr const char* kFirstDate = "2010"; // a clock before was never set

// A cycle without a beginning is dated by that of its first file, while its times count from power-up.
constexpr const char* kRows = "SELECT rowid, strftime('%s', date_time) - CASE WHEN number = 0 THEN start_time ELSE 0 END, start_time, end_time, "
                              "engine_running, engine_id, card_id, number FROM cycle WHERE date_time >= ?1 AND end_time - start_time >= 0";

double overlap(const TimeSpan& a, const TimeSpan& b)
{
    return std::max(0.0, std::min(a.end, b.end) - std::max(a.start, b.start));
}

double length(const TimeSpan& span)
{
    return span.end - span.start;
}

/// How much of a span others cover together.
double covered(const TimeSpan& span, std::vector<TimeSpan> others)
{
    std::ranges::sort(others, {}, &TimeSpan::start);
    double seconds = 0.0, reached = span.start;
    for (const TimeSpan& other : others) {
        seconds += overlap({reached, std::max(reached, span.end)}, other);
        reached = std::max(reached, other.end);
    }
    return seconds;
}

} // namespace

RecordingCopies::RecordingCopies(Database& database) : mDatabase(database)
{
    Statement& found = database.prepared(kRows).with({kFirstDate}); // in the order of the file, which is read once
    std::unordered_map<std::string, Rows> engines;
    while (found.next())
        add(found, engines[found.text(5)]);
    for (auto& [engine, rows] : engines)
        resolve(engine, rows);
}

RecordingCopies::RecordingCopies(Database& database, const std::string& engine, const std::optional<ShownRecording>& shown) : mDatabase(database)
{
    Statement& found = database.prepared(kRows + std::string(" AND engine_id = ?2")).with({kFirstDate, engine});
    Rows rows;
    while (found.next())
        add(found, rows);
    if (shown && shown->powerUp.isValid())
        addShown(*shown, rows);
    resolve(engine, rows);
}

void RecordingCopies::add(const Statement& found, Rows& rows)
{
    const std::optional<double> running = found.isNull(4) ? std::nullopt : std::optional(found.real(4));
    if (!found.isNull(1)) // as of a date that is none
        rows.push_back({found.integer(0), found.real(1), {found.real(2), found.real(3)}, running,
                        found.isNull(6) ? std::nullopt : std::optional(found.integer(6)), found.integer(7)});
}

void RecordingCopies::addShown(const ShownRecording& shown, Rows& rows)
{
    Statement& found = mDatabase.prepared("SELECT rowid FROM cycle WHERE cycle_id = ?").with({shown.cycle.id});
    const int64_t id = found.next() ? found.integer(0) : 0;
    found.run(); // to its end
    auto row = std::ranges::find(rows, id, &Row::id);
    if (row == rows.end())
        row = rows.insert(row, {id, static_cast<double>(shown.powerUp.toSecsSinceEpoch()), shown.span, {}, {}, 0, shown.cycle.engine.ecuSerial});
    row->isShown = true;
}

void RecordingCopies::resolve(const std::string& engine, Rows& rows)
{
    countClockBacks(engine, rows);
    std::ranges::sort(rows, {}, &Row::powerUp);
    Rows counted;
    for (auto first = rows.begin(); first != rows.end();) {
        auto last = first + 1;
        while (last != rows.end() && last->powerUp - (last - 1)->powerUp <= kSameMoment)
            ++last;
        if (last - first == 1)
            counted.push_back(*first);
        else
            resolveMoment(engine, Rows(first, last), counted);
        first = last;
    }
    countOverlaps(engine, counted);
}

/// A unit writes a recording onto its card once: two of one moment there are two recordings, by a clock that began anew.
bool RecordingCopies::isClockSet(const Rows& rows)
{
    std::set<int64_t> cards;
    Statement& found = mDatabase.prepared("SELECT DISTINCT card_id FROM file WHERE cycle_id = (SELECT cycle_id FROM cycle WHERE rowid = ?)");
    bool isSet = true;
    for (const Row& row : rows) {
        found.with({row.id});
        while (found.next())
            isSet = cards.insert(found.integer(0)).second && isSet;
    }
    return isSet;
}

void RecordingCopies::readNames(Rows& rows)
{
    Statement& found = mDatabase.prepared("SELECT cycle_id, ecu_serial FROM cycle LEFT JOIN cycle_unit USING (cycle_id) WHERE cycle.rowid = ?");
    for (Row& row : rows) {
        found.with({row.id});
        while (found.next()) {
            row.cycleId = found.text(0);
            row.ecu = found.isNull(1) ? row.ecu : std::optional(found.integer(1));
        }
    }
}

bool RecordingCopies::isSame(const Row& row, const Row& other)
{
    const bool isOtherUnit = row.ecu && other.ecu && *row.ecu != *other.ecu;
    return !isOtherUnit && std::abs(row.powerUp - other.powerUp) <= kSameMoment && overlap(row.span, other.span) > kSameMoment;
}

void RecordingCopies::resolveMoment(const std::string& engine, Rows rows, Rows& counted)
{
    const auto isLong = [](const Row& row) { return length(row.span) > kSameMoment; };
    const auto brief = std::partition(rows.begin(), rows.end(), isLong); // switched off at once, and on again
    counted.insert(counted.end(), brief, rows.end());
    rows.erase(brief, rows.end());
    if (!isClockSet(rows)) {
        counted.insert(counted.end(), rows.begin(), rows.end());
        return;
    }
    readNames(rows);
    const auto weight = [](const Row& row) { return std::tuple(row.isShown, length(row.span), row.cycleId); };
    std::ranges::sort(rows, std::ranges::greater(), weight);
    std::set<std::string> several;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        Copy copy{{}, engine, row->running, row->running, 0};
        std::vector<TimeSpan> told;
        for (auto other = rows.begin(); other != row; ++other) {
            if (!isSame(*row, *other))
                continue;
            const Copy* pCopy = RecordingCopies::copy(other->cycleId);
            copy.of = told.empty() ? (pCopy ? pCopy->of : other->cycleId) : copy.of;
            told.push_back(other->span);
        }
        if (told.empty()) {
            counted.push_back(*row);
            continue;
        }
        if (row->running)
            copy.counted = std::max(0.0, *row->running - covered(row->span, told));
        several.insert(copy.of);
        keepFlights(copy, row->cycleId, told);
        mCopiesOf.emplace(copy.of, row->cycleId);
        mCopies.emplace(row->cycleId, std::move(copy));
    }
    mEngines[engine].several += several.size();
}

/// A flight is told by the recording that has the greater part of it.
void RecordingCopies::keepFlights(Copy& copy, const std::string& cycleId, const std::vector<TimeSpan>& told)
{
    Statement& flights = mDatabase.prepared("SELECT flight_id, start_time, end_time FROM flight WHERE cycle_id = ?").with({cycleId});
    while (flights.next()) {
        const TimeSpan flight{flights.real(1), flights.real(2)};
        const bool isTold = std::ranges::any_of(told, [&flight](const TimeSpan& span) { return overlap(flight, span) * 2 > length(flight); });
        if (isTold && mFlights.insert(flights.integer(0)).second)
            ++copy.flights;
    }
}

/// A unit numbers its recordings in the order of time, whatever its clock says.
void RecordingCopies::countClockBacks(const std::string& engine, const Rows& rows)
{
    std::vector<const Row*> order;
    for (const Row& row : rows) {
        if (row.card)
            order.push_back(&row);
    }
    std::ranges::sort(order, {}, [](const Row* pRow) { return std::tuple(*pRow->card, pRow->number, pRow->id); });
    const auto isBack = [](const Row* pRow, const Row* pNext) {
        return *pRow->card == *pNext->card && pNext->powerUp + pNext->span.start < pRow->powerUp + pRow->span.end - kClockSetRight;
    };
    for (std::size_t i = 1; i < order.size(); ++i)
        mEngines[engine].clockBacks += isBack(order[i - 1], order[i]) ? 1 : 0;
}

void RecordingCopies::countOverlaps(const std::string& engine, Rows& counted)
{
    std::ranges::sort(counted, {}, [](const Row& row) { return row.powerUp + row.span.start; });
    double end = -std::numeric_limits<double>::infinity();
    for (const Row& row : counted) {
        if (row.powerUp + row.span.start < end - kClockSetRight)
            ++mEngines[engine].overlapping;
        end = std::max(end, row.powerUp + row.span.end);
    }
}

const RecordingCopies::Copy* RecordingCopies::copy(const std::string& cycleId) const
{
    const auto found = mCopies.find(cycleId);
    return found == mCopies.end() ? nullptr : &found->second;
}

std::vector<std::string> RecordingCopies::same(const std::string& cycleId) const
{
    const Copy* pCopy = copy(cycleId);
    std::vector<std::string> cycles{pCopy ? pCopy->of : cycleId};
    const auto [first, last] = mCopiesOf.equal_range(cycles.front());
    for (auto copy = first; copy != last; ++copy)
        cycles.push_back(copy->second);
    return cycles;
}

RecordingCopies::Engine RecordingCopies::engine(const std::string& id) const
{
    const auto found = mEngines.find(id);
    return found == mEngines.end() ? Engine() : found->second;
}

} // namespace ZARN
