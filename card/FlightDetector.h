#pragma once

#include "card/CycleValues.h"
#include "card/RecordFlight.h"

#include <optional>
#include <vector>

namespace ZARN {

/// Finds the flights of the loaded data from the ground speed and computes each one's tow statistic; both in metric units.
class FlightDetector {
public:
    explicit FlightDetector(const CycleValues& values) : mValues(values.metric()) {}

    /// The flights in the order found. @param dateTime wall clock of the cycle's power-up.
    /// A flight still airborne when the data ends is not one.
    [[nodiscard]] std::vector<RecordFlight> detect(const QDateTime& dateTime) const;
    /// A flight still airborne when the data ends: its take-off and, as landing, when the ground speed was last received. It has no figures.
    [[nodiscard]] std::optional<RecordFlight> unfinished() const;

private:
    CycleValues mValues;
};

/// Fills a flight's tow statistic from the samples between its start and end time, in metric units.
void calcFlightStatistic(const CycleValues& values, RecordFlight& flight);

} // namespace ZARN
