#pragma once

#include "sim/Situation.h"
#include "sim/Snapshot.h"

namespace ZARN::Sim {

/// Turns the true state of the aircraft into what its units measure and send: each lane with sensors of its own, a position
/// once satellites are received, and the noise of all of them. Lamps and fault words are none of its business.
class Instruments {
public:
    /// Sets every value but the lamps, the fault words and the lanes' warning level.
    void read(const Situation& now, RandomSource& random, Snapshot& values);

private:
    void readGps(const Situation& now, RandomSource& random, Snapshot& values);

    Drift mEastError{0.7, 40, kStep};
    Drift mNorthError{0.7, 40, kStep};
    Drift mAltitudeError{0.4, 60, kStep};
};

} // namespace ZARN::Sim
