#include "analysis/KeyValues.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPhases = 6;
/// Flights overlap by their margins, or where times go backwards. More at one time than this is damage that no figure tells of.
constexpr std::size_t kMostLayers = 16;

std::vector<int> inOrderOfStart(std::span<const RecordFlight> flights)
{
    std::vector<int> order(flights.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i);
    std::ranges::stable_sort(order, {}, [flights](int i) { return flights[static_cast<std::size_t>(i)].startTime; });
    return order;
}

} // namespace

void KeyValueTable::add(KeyValueTable&& other)
{
    for (KeyValue& value : other.values) {
        value.source += sources.size();
        values.push_back(value);
    }
    std::ranges::move(other.sources, std::back_inserter(sources));
}

KeyValues::KeyValues(const FlightPhases& phases, std::span<const RecordFlight> flights) : mPhases(phases)
{
    makeLayers(flights);
    if (!mLayers.empty())
        mSlots.resize(flights.size() * kPhases);
}

bool KeyValues::isWanted(const ProfileParameter& parameter)
{
    const std::string& key = parameter.zarnDataType;
    return parameter.thresholdList > 0 || key == "EngineSpeed" || key == "ThrottleA" || key == "FuelA" || key == "FuelB";
}

void KeyValues::makeLayers(std::span<const RecordFlight> flights)
{
    struct Group {
        std::vector<TimeSpan> spans;
        std::vector<int> numbers;
    };
    std::vector<Group> groups;
    for (const int flight : inOrderOfStart(flights)) {
        const RecordFlight& span = flights[static_cast<std::size_t>(flight)];
        auto group = std::ranges::find_if(groups, [&span](const Group& other) { return other.spans.back().end < span.startTime; });
        if (group == groups.end())
            group = groups.insert(groups.end(), Group());
        if (groups.size() > kMostLayers)
            return;
        group->spans.push_back({span.startTime, span.endTime});
        group->numbers.push_back(flight);
    }
    for (const Group& group : groups)
        addSteps(mLayers.emplace_back(), SpanIndex(group.spans), group.numbers);
}

void KeyValues::addSteps(Layer& layer, const SpanIndex& flights, const std::vector<int>& numbers) const
{
    std::size_t phase = 0;
    double from = -std::numeric_limits<double>::infinity();
    for (const SpanIndex::Step& flight : flights.steps()) {
        for (double until = from; until < flight.until; from = until) {
            while (mPhases.steps()[phase].until <= from)
                ++phase;
            const bool isFlight = flight.span != SpanIndex::kNone;
            until = isFlight ? std::min(flight.until, mPhases.steps()[phase].until) : flight.until;
            layer.steps.push_back(
                {from, until,
                 isFlight ? numbers[static_cast<std::size_t>(flight.span)] * kPhases + static_cast<int>(mPhases.steps()[phase].phase)
                          : kNone});
        }
    }
}

void KeyValues::begin(const std::string& group, const Trace& values)
{
    const ProfileParameter& parameter = values.parameter();
    mTable.sources.push_back({group, values.name(), parameter.unitMetric, std::clamp(parameter.precision, 0, 17)});
    mAscending = values.ascending();
    for (Layer& layer : mLayers)
        layer.current = 0;
}

void KeyValues::add(const WatchedPart& part)
{
    for (Layer& layer : mLayers)
        add(layer, part);
}

void KeyValues::add(Layer& layer, const WatchedPart& part)
{
    for (std::size_t first = 0, last = 0; first < part.size(); first = last) {
        const Step* pStep = &layer.steps[layer.current];
        const double time = part.time(first);
        if (!(time > pStep->from && time <= pStep->until)) {
            layer.current = static_cast<std::size_t>(std::ranges::lower_bound(layer.steps, time, {}, &Step::until) - layer.steps.begin());
            pStep = &layer.steps[layer.current];
        }
        last = part.size();
        if (!mAscending || part.time(last - 1) > pStep->until) {
            const std::span<const double> times = part.times();
            for (last = first; last < times.size() && times[last] > pStep->from && times[last] <= pStep->until;)
                ++last;
        }
        if (pStep->slot != kNone)
            keep(pStep->slot, part.numbers().subspan(first, last - first));
    }
}

void KeyValues::keep(int slot, std::span<const double> numbers)
{
    std::vector<double>& values = mSlots[static_cast<std::size_t>(slot)];
    if (values.empty())
        mUsed.push_back(slot);
    values.insert(values.end(), numbers.begin(), numbers.end());
}

KeyValueTable KeyValues::end()
{
    std::ranges::sort(mUsed);
    for (const int slot : mUsed) {
        std::vector<double>& values = mSlots[static_cast<std::size_t>(slot)];
        const Distribution distribution = Distribution::of(values);
        if (distribution.samples > 0)
            mTable.values.push_back(
                {mTable.sources.size() - 1, slot / kPhases + 1, static_cast<EFlightPhase>(slot % kPhases), distribution});
        values.clear();
    }
    mUsed.clear();
    return std::exchange(mTable, {});
}

} // namespace ZARN
