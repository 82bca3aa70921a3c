#include "analysis/Incident.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kJoined = 5.0; // seconds between episodes of one incident
constexpr double kLong = 600.0; // an episode that lasts longer
constexpr double kShare = 60.0; // draws others in from its beginning only

double joiningEnd(const Episode& episode)
{
    return episode.end - episode.start > kLong ? episode.start + kShare : episode.end;
}

/// How far the peak lies beyond its limit, in parts of that.
double excess(const Episode& episode)
{
    return episode.peak ? std::abs(episode.peak->value - episode.peak->limit) / std::max(std::abs(episode.peak->limit), 1.0) : 0.0;
}

bool weighsMore(const Episode& a, const Episode& b)
{
    if (a.state != b.state)
        return a.state > b.state;
    return a.kind != b.kind ? a.kind < b.kind : excess(a) > excess(b);
}

void add(Incident& incident, Episode&& episode)
{
    incident.end = std::max(incident.end, episode.end);
    incident.state = std::max(incident.state, episode.state);
    if (weighsMore(episode, incident.episodes[incident.leading]))
        incident.leading = incident.episodes.size();
    incident.episodes.push_back(std::move(episode));
}

} // namespace

std::vector<Incident> joinIncidents(std::vector<Episode> episodes, const FlightPhases& phases, std::span<const RecordFlight> flights)
{
    std::vector<TimeSpan> spans;
    for (const RecordFlight& flight : flights)
        spans.push_back({flight.startTime, flight.endTime});
    const SpanIndex flightAt(spans);
    std::vector<Incident> incidents;
    double joinedUntil = 0.0;
    for (Episode& episode : episodes) {
        const double end = joiningEnd(episode), start = episode.start;
        if (!incidents.empty() && start <= joinedUntil + kJoined) {
            joinedUntil = std::max(joinedUntil, end);
            add(incidents.back(), std::move(episode));
            continue;
        }
        joinedUntil = end;
        Incident incident{start, episode.end, episode.state, phases.at(start), phases.knowsAltitude(), flightAt.spanAt(start) + 1, 0, {}};
        incident.episodes.push_back(std::move(episode));
        incidents.push_back(std::move(incident));
    }
    return incidents;
}

} // namespace ZARN
