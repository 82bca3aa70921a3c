#pragma once

#include "analysis/Distribution.h"
#include "analysis/FlightPhases.h"
#include "analysis/WatchedPart.h"

namespace ZARN {

/// A figure of a flight: how a parameter lay in one of its phases, in metric units.
struct KeyValue {
    std::size_t source = 0; ///< place in KeyValueTable::sources
    int flight = 0;         ///< number, from 1
    EFlightPhase phase = EFlightPhase::eGround;
    Distribution values;
};

/// The parameter that key values are of.
struct KeyValueSource {
    std::string group;
    std::string parameter;
    std::string unit;  ///< metric
    int precision = 0; ///< decimals that tell something
};

/// All key values of a cycle. A plain value.
struct KeyValueTable {
    std::vector<KeyValueSource> sources;
    std::vector<KeyValue> values; ///< by source, flight and phase; none without samples

    void add(KeyValueTable&& other);
};

/// Gathers key values of a cycle, parameter by parameter, in the walk that others make over its samples. Refers to phases and flights.
class KeyValues {
public:
    KeyValues(const FlightPhases& phases, std::span<const RecordFlight> flights);

    /// Whether the parameter is one of those whose key values are told.
    [[nodiscard]] static bool isWanted(const ProfileParameter& parameter);

    /// A parameter begins; add() then takes all its samples in stored order, as metric values.
    void begin(const std::string& group, const Trace& values);
    void add(const WatchedPart& part);
    /// @return the parameter's key values
    [[nodiscard]] KeyValueTable end();

private:
    static constexpr int kNone = -1;
    /// Times after `from` up to and including `until`, all in one phase of one flight.
    struct Step {
        double from;
        double until;
        int slot; ///< flight x phases + phase, or kNone
    };
    /// Flights whose spans do not overlap.
    struct Layer {
        std::vector<Step> steps;
        std::size_t current = 0;
    };
    void makeLayers(std::span<const RecordFlight> flights);
    void addSteps(Layer& layer, const SpanIndex& flights, const std::vector<int>& numbers) const;
    void add(Layer& layer, const WatchedPart& part);
    void keep(int slot, std::span<const double> numbers);

    const FlightPhases& mPhases;
    std::vector<Layer> mLayers;
    std::vector<std::vector<double>> mSlots;
    std::vector<int> mUsed; // slots with values of the parameter
    bool mAscending = true;
    KeyValueTable mTable;
};

} // namespace ZARN
