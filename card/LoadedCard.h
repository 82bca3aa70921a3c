#pragma once

#include "card/CardProblem.h"
#include "card/CycleValues.h"
#include "card/FlightPath.h"
#include "card/RecordFlight.h"
#include "card/record/RecordInfo.h"

#include <memory>

namespace ZARN {

/// What is loaded of a card, how it is decoded and what of it is selected, as it was when the container was asked. Records and path are
/// shared and never change, so that whoever works on it, on whatever thread, is not disturbed by what is loaded next. A plain value.
struct LoadedCard {
    QString card; ///< its name for display
    DecodingContext context;
    std::shared_ptr<const RecordData> pRecord;
    std::shared_ptr<const std::vector<FlightPathPoint>> pPath;

    // Of the loaded cycle; without one these are empty.
    std::optional<unsigned int> cycle;
    QString cycleName;
    QDateTime cycleDate;
    std::optional<RecordInfo> unit; ///< of its last file: the first may lack what the unit did not know yet
    std::vector<RecordFlight> flights;

    QDateTime powerUp;      ///< wall clock of time 0; invalid without one
    RecordFlight flight;    ///< the selected one, or the span of everything
    int flightNumber = 0;   ///< from 1; 0 when none is selected
    double startTime = 0.0; ///< of the span; seconds since power-up
    double endTime = 0.0;
    double wholeStart = 0.0; ///< the same of all that was loaded
    double wholeEnd = 0.0;
    double indexEnd = 0.0;             ///< times behind it have no value
    std::vector<CardProblem> problems; ///< what is wrong with the card, as far as it was read

    /// The same with a flight of the cycle selected, from 1, or with none: 0, or a number that no flight has.
    [[nodiscard]] LoadedCard withFlight(int number) const;
    /// Refers to the record.
    [[nodiscard]] CycleValues values() const { return {*pRecord, context, indexEnd}; }
};

} // namespace ZARN
