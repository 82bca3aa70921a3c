#include "store/StoreReader.h"

#include "store/StoreSchema.h"

namespace ZARN {

namespace {

/// The flights of the engine ?1 with their place in time. A unit without a clock flew after what stands before it on its card; where nothing
/// on the card has a date, it flew before the card was first seen.
constexpr const char* kFlights = R"sql(
WITH placed AS (
    SELECT flight_id, flight.cycle_id, flight.number, flight.date_time, cycle.card_id, cycle.number AS cycle_number, profile_hash,
        coalesce(flight.date_time,
            max(flight.date_time) OVER (card_order ROWS BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW),
            min(flight.date_time) OVER (card_order ROWS BETWEEN CURRENT ROW AND UNBOUNDED FOLLOWING), first_seen, '') AS at
    FROM cycle JOIN flight USING (cycle_id) LEFT JOIN card USING (card_id) WHERE engine_id = ?1
    WINDOW card_order AS (PARTITION BY cycle.card_id ORDER BY cycle.number, flight.number))
)sql";

TrendPoint::Place placeOf(const Statement& row)
{
    return {row.text(0), row.integer(1), row.integer(2), row.integer(3)};
}

} // namespace

StoreReader::StoreReader(const std::string& path) : mDatabase(path, Database::eRead)
{
    if (mDatabase.isGood())
        StoreSchema::check(mDatabase);
}

std::vector<std::string> StoreReader::engines(const std::string& serial)
{
    std::vector<std::string> engines;
    Statement& found =
        mDatabase.prepared("SELECT engine_id FROM engine WHERE ?1 = '' OR engine_id = ?1 OR engine_serial = ?1 ORDER BY engine_id");
    found.with({serial});
    while (found.next())
        engines.push_back(found.text(0));
    return engines;
}

std::vector<Trend> StoreReader::trends(const std::string& engine, const TrendFilter& filter)
{
    std::vector<Trend> trends;
    Statement& found = mDatabase.prepared(
        std::string(kFlights) + "SELECT at, card_id, cycle_number, placed.number, cycle_id, date_time, median, p05, p95, decimals, "
                                "key_value.parameter, phase, unit FROM placed JOIN key_value USING (flight_id) "
                                "LEFT JOIN parameter_precision AS p ON p.profile_hash = placed.profile_hash AND p.parameter = "
                                "key_value.parameter WHERE (?2 = '' OR key_value.parameter = ?2) AND (?3 = '' OR phase = ?3) "
                                "AND median IS NOT NULL ORDER BY 11, 12, 1, 2, 3, 4, key_value.rowid");
    found.with({engine, filter.parameter, filter.phase});
    while (found.next()) {
        const std::string parameter = found.text(10), phase = found.text(11);
        if (trends.empty() || trends.back().parameter != parameter || trends.back().phase != phase)
            trends.push_back({engine, parameter, found.text(12), phase, {}});
        std::vector<TrendPoint>& points = trends.back().points;
        TrendPoint point{placeOf(found), found.text(4), found.text(5), found.real(6), found.real(7), found.real(8), {}};
        if (!found.isNull(9))
            point.precision = static_cast<int>(found.integer(9));
        if (points.empty() || points.back().place != point.place) // two parameters of one name tell it once
            points.push_back(std::move(point));
    }
    return trends;
}

std::vector<TrendPoint::Place> StoreReader::places(const std::string& engine, const std::string& cycle)
{
    std::vector<TrendPoint::Place> places;
    Statement& found = mDatabase.prepared(std::string(kFlights) +
                                          "SELECT at, card_id, cycle_number, number FROM placed WHERE cycle_id = ?2 ORDER BY number");
    found.with({engine, cycle});
    while (found.next())
        places.push_back(placeOf(found));
    return places;
}

} // namespace ZARN
