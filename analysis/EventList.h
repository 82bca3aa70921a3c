#pragma once

#include "analysis/TimeKey.h"
#include "analysis/TimeSpan.h"

#include <QColor>

#include <optional>
#include <string>
#include <vector>

namespace ZARN {

/// The parameter whose samples made events.
struct EventSource {
    std::string group; ///< name of its device
    std::string parameter;
    std::string unit; ///< in the unit system that was current
    bool isComputed = false; ///< by a formula of the user's
};

/// One moment at which something went wrong.
struct Event {
    double time = 0.0; ///< seconds since power-up, of the sample
    TimeKey key;
    uint32_t source = 0; ///< index of its EventSource
    int state = 0;       ///< threshold state, or the state of a lamp
    QColor colour;       ///< background of its row; invalid when it has none
    std::string value;   ///< the display text of the sample
};

/// The events of a loaded cycle in ascending time; those of one time stay in the order in which they were found. A plain
/// value: it refers neither to the records nor to the profile.
class EventList {
public:
    uint32_t addSource(EventSource source);
    /// Appends an event, unless its text is "nan": there is nothing to tell about a value that is none.
    void add(Event event);
    /// To be called when all are there.
    void sortByTime();
    /// Forgets the events outside.
    void crop(const TimeSpan& span);

    [[nodiscard]] const std::vector<Event>& events() const { return mEvents; }
    [[nodiscard]] const EventSource& source(const Event& event) const { return mSources[event.source]; }
    /// At most so many of them, by time: those of recorded values, which formulas must not crowd out, before those of formulas; then those of
    /// the state eThresholdLimit; then the first ones. Valid while the list is.
    [[nodiscard]] std::vector<const Event*> weightiest(std::size_t most) const;
    /// Group, parameter, value and unit, joined by blanks.
    [[nodiscard]] std::string text(const Event& event) const;
    /// The row of the last event at or before a time, to the tenth of a second; none before the first.
    [[nodiscard]] std::optional<std::size_t> rowAt(double seconds) const;

private:
    std::vector<EventSource> mSources;
    std::vector<Event> mEvents;
};

} // namespace ZARN
