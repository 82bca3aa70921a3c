#pragma once

class QDateTime;

namespace ZARN {

class CardContainer;
struct RecordCycle;

/// The wall clock at the time 0 of recorded data: that plus a time since power-up is the clock of the unit at that time. The first file
/// of a cycle has it as its date; any other file's date is that of its own beginning.
class PowerUp {
public:
    [[nodiscard]] static QDateTime of(const RecordCycle& cycle);
    /// Of what is loaded, a cycle or single files. Invalid when nothing is, or the unit had no clock.
    [[nodiscard]] static QDateTime ofLoaded(const CardContainer& container);
};

} // namespace ZARN
