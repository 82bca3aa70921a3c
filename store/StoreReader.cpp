#include "store/StoreReader.h"

#include "store/PlacedFlights.h"
#include "store/StoreSchema.h"

namespace ZARN {

namespace {

/// The flights of the engine ?1 with their place in time.
const std::string kFlights = placedFlights("WHERE engine_id = ?1");

TrendPoint::Place placeOf(const Statement& row)
{
    return {row.text(0), row.integer(1), row.integer(2), row.integer(3)};
}

} // namespace

StoreReader::StoreReader(const std::string& path) : mOwn(std::in_place, path, Database::eRead), mDatabase(*mOwn)
{
    if (mDatabase.isGood())
        StoreSchema::check(mDatabase);
}

std::vector<std::string> StoreReader::engines(const std::string& serial)
{
    std::vector<std::string> engines;
    Statement& found = mDatabase.prepared("SELECT DISTINCT coalesce(merged_into, engine_id) FROM engine "
                                          "LEFT JOIN engine_merge USING (engine_id) WHERE ?1 = '' OR engine_id = ?1 OR engine_serial = ?1 ORDER BY 1");
    found.with({serial});
    while (found.next())
        engines.push_back(found.text(0));
    return engines;
}

std::string StoreReader::engineOf(const std::string& engine)
{
    return mergedEngine(mDatabase, engine);
}

void StoreReader::countOnce(std::optional<ShownRecording> shown)
{
    mIsCountedOnce = true;
    mShown = std::move(shown);
}

std::vector<Trend> StoreReader::trends(const std::string& engine, const TrendFilter& filter)
{
    std::optional<RecordingCopies> copies;
    if (mIsCountedOnce)
        copies.emplace(mDatabase, engine, mShown);
    std::vector<Trend> trends;
    Statement& found = mDatabase.prepared(
        kFlights + "SELECT at, card_id, cycle_number, placed.number, cycle_id, date_time, median, p05, p95, minimum, maximum, decimals, "
                   "key_value.parameter, phase, unit, flight_id FROM placed JOIN key_value USING (flight_id) "
                   "LEFT JOIN parameter_precision AS p ON p.profile_hash = placed.profile_hash AND p.parameter = "
                   "key_value.parameter WHERE (?2 = '' OR key_value.parameter = ?2) AND (?3 = '' OR phase = ?3) "
                   "AND median IS NOT NULL ORDER BY 13, 14, 1, 2, 3, 4, key_value.rowid");
    found.with({engine, filter.parameter, filter.phase});
    while (found.next()) {
        if (copies && copies->isToldElsewhere(found.integer(15)))
            continue;
        const std::string parameter = found.text(12), phase = found.text(13);
        if (trends.empty() || trends.back().parameter != parameter || trends.back().phase != phase)
            trends.push_back({engine, parameter, {}, phase, {}});
        std::vector<TrendPoint>& points = trends.back().points;
        if (trends.back().unit != found.text(14)) // figures before another profile, in another unit, do not compare
            points.clear();
        trends.back().unit = found.text(14);
        TrendPoint point{
            placeOf(found), found.text(4), found.text(5), found.real(6), found.real(7), found.real(8), found.real(9), found.real(10), {}};
        if (!found.isNull(11))
            point.precision = static_cast<int>(found.integer(11));
        if (points.empty() || points.back().place != point.place) // two parameters of one name tell it once
            points.push_back(std::move(point));
    }
    return trends;
}

std::vector<TrendPoint::Place> StoreReader::places(const std::string& engine, const std::string& cycle)
{
    std::vector<TrendPoint::Place> places;
    Statement& found = mDatabase.prepared(kFlights +
                                          "SELECT at, card_id, cycle_number, number FROM placed WHERE cycle_id = ?2 ORDER BY number");
    found.with({engine, cycle});
    while (found.next())
        places.push_back(placeOf(found));
    return places;
}

} // namespace ZARN
