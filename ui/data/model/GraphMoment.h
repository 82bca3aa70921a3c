#pragma once

#include "analysis/Incident.h"
#include "analysis/TimeSpan.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

namespace ZARN {

/// What somebody wants to see in the graph: a part of the record, some parameters beside the ticked ones, and the view time in it.
struct GraphMoment {
    TimeSpan span;
    std::set<std::string> parameters; ///< their names
    double time = 0.0;                ///< such that the views tell the sample that is meant
    std::string leading = {};         ///< the one of them that stands out; none where no one is meant before the others

    /// A time with what was before it and after.
    [[nodiscard]] static GraphMoment around(double time, std::set<std::string> parameters)
    {
        return with({time - kAround, time + kAround}, std::move(parameters), time);
    }
    /// A stretch of time with a margin. @param time of the sample that is meant
    [[nodiscard]] static GraphMoment of(const TimeSpan& stretch, std::set<std::string> parameters, double time)
    {
        const double half = std::max(stretch.end - stretch.start, kLeastLength) * (0.5 + kMargin);
        const double middle = (stretch.start + stretch.end) / 2;
        return with({middle - half, middle + half}, std::move(parameters), time);
    }
    [[nodiscard]] static GraphMoment of(const Incident& incident)
    {
        const Episode& leading = incident.episodes[incident.leading];
        std::set<std::string> names;
        for (const Episode& episode : incident.episodes)
            names.insert(episode.parameter);
        GraphMoment moment = of(TimeSpan{incident.start, incident.end}, std::move(names), leading.peak ? leading.peakTime : leading.start);
        moment.leading = leading.parameter;
        return moment;
    }
    /// At a sample's own time the views still tell the one before it.
    [[nodiscard]] static double justBehind(double time) { return std::nextafter(time, HUGE_VAL); }

private:
    [[nodiscard]] static GraphMoment with(const TimeSpan& span, std::set<std::string>&& parameters, double time)
    {
        GraphMoment moment{span, std::move(parameters), justBehind(time)};
        if (moment.parameters.size() == 1)
            moment.leading = *moment.parameters.begin();
        return moment;
    }

    static constexpr double kAround = 30.0;      // seconds
    static constexpr double kMargin = 0.2;       // of a stretch's length, before and after it
    static constexpr double kLeastLength = 10.0; // seconds that are shown of a short one
};

} // namespace ZARN
