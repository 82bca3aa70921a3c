#pragma once

#include "analysis/CycleReview.h"
#include "card/CardProblem.h"
#include "store/CardListing.h"

namespace ZARN {

/// By what a cycle was worked out. What the same of these made is the same.
struct AnalysisKey {
    /// The number of the way in which cycles are worked out: a change that makes other figures, incidents or key values counts it up.
    static constexpr int kVersion = 1;

    std::string profile;     ///< as it was named
    std::string profileHash; ///< SHA-256 of its file
    std::string variant;     ///< empty: none
};

/// The engine that a cycle tells of, and its unit. Texts as a store takes them.
struct EngineIdentity {
    std::string id; ///< its serial number; without one that of the unit, else the name of the card
    std::string serial;
    std::optional<int64_t> ecuSerial;
    std::string type;
    std::string ecuType;
};

/// What is known of a power cycle before its records are read.
struct CycleHead {
    std::string id; ///< by content: the same recording on another card is the same cycle
    EngineIdentity engine;
    uint32_t number = 0; ///< on its card
    QDateTime dateTime;
};

/// What the unit's own counter of engine hours told.
struct HoursReading {
    QDateTime date;
    double hours = 0.0;
};

/// All that a store keeps of a power cycle, in metric units.
struct CycleFacts {
    CycleHead head;
    double startTime = 0.0;
    double endTime = 0.0;
    std::vector<RecordFlight> flights;
    CycleReview review;
    std::vector<CardProblem> problems; ///< found when its records were read
    std::optional<HoursReading> hours; ///< the last one, where the profile names the counter and the unit had a clock
};

/// All that a store keeps of a card. A plain value.
struct CardFacts {
    CardListing listing;
    std::string name;
    std::string engineId;                 ///< of its first cycle; without one, as of a card that does not tell its engine
    std::vector<std::string> cycleOfFile; ///< a cycle for each file; empty: none
    std::vector<CycleHead> heads;         ///< of all its cycles that could be read
    std::vector<CycleFacts> cycles;       ///< those that were worked out now, not those that the store has
    std::vector<CardProblem> problems;
    bool isWhole = true; ///< else the system kept some of it from being read, and it is to be read again
};

} // namespace ZARN
