#pragma once

#include "sim/Situation.h"
#include "sim/Snapshot.h"

namespace ZARN {

/// What the monitoring unit concludes from the measured values: the warning lamps and each lane's word of faults. A lamp that
/// is lit goes dark only when the value has come back a little further than where it lit, so that noise does not make it flicker.
class WarningLogic {
public:
    /// Sets lamps, fault words and warning levels from the other values of the snapshot.
    void judge(const Situation& situation, Snapshot& snapshot);

private:
    struct Band {
        double warning, limit, hysteresis;
    };

    /// The lamp of a value that must not grow too large. @return 0 off, 1 yellow, 2 red.
    double high(ELamp lamp, double value, Band band, const Snapshot& snapshot) const;
    void judgeLamps(const Situation& situation, Snapshot& snapshot) const;
    void judgeLane(const Situation& situation, std::size_t lane, Snapshot& snapshot) const;
    static void judgeMaster(Snapshot& snapshot);
};

} // namespace ZARN
