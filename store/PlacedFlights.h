#pragma once

#include "store/Database.h"

namespace ZARN {

/// The beginning of a statement: flights with their place in time, as the table `placed`. A unit without a clock flew after what stands before
/// it on its card; where nothing on the card has a date, it flew before the card was first seen.
/// @param condition which cycles, with WHERE; a card's are all taken or none
[[nodiscard]] inline std::string placedFlights(const std::string& condition)
{
    return "WITH placed AS (SELECT flight_id, flight.cycle_id, flight.number, flight.date_time, cycle.card_id, cycle.number AS cycle_number, "
           "profile_hash, coalesce(flight.date_time, max(flight.date_time) OVER (card_order ROWS BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW), "
           "min(flight.date_time) OVER (card_order ROWS BETWEEN CURRENT ROW AND UNBOUNDED FOLLOWING), first_seen, '') AS at "
           "FROM cycle JOIN flight USING (cycle_id) LEFT JOIN card USING (card_id) " +
           condition + " WINDOW card_order AS (PARTITION BY cycle.card_id ORDER BY cycle.number, flight.number)) ";
}

/// The unit's clock at a date of a cycle's recording. One that does not begin with the start of a cycle is dated by the beginning of its first
/// file, while its times count from power-up.
[[nodiscard]] inline std::string clockOf(const std::string& date)
{
    return "CASE WHEN cycle.number = 0 THEN coalesce(strftime('%Y-%m-%dT%H:%M:%S', " + date + ", -cycle.start_time || ' seconds'), " + date +
           ") ELSE " + date + " END";
}

/// The engine that one is since the user said so; else itself.
[[nodiscard]] inline std::string mergedEngine(Database& database, const std::string& engine)
{
    Statement& found = database.prepared("SELECT merged_into FROM engine_merge WHERE engine_id = ?").with({engine});
    std::string merged = found.next() ? found.text(0) : engine;
    found.run(); // to its end
    return merged;
}

} // namespace ZARN
