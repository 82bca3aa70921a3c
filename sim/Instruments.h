#pragma once

#include "sim/Situation.h"
#include "sim/Snapshot.h"

namespace ZARN {

/// Turns the true state of the aircraft into what its units measure and send: each lane with sensors of its own, a position
/// once satellites are received, and the noise of all of them. Lamps and fault words are none of its business.
class Instruments {
public:
    explicit Instruments(const CyclePlan& plan);

    /// Sets every value of the snapshot but the lamps, the fault words and the lanes' warning level.
    void read(const Situation& situation, RandomSource& random, Snapshot& snapshot);

private:
    void readLane(const Situation& situation, RandomSource& random, std::size_t lane, LaneValues& values);
    void readLaneFuel(const Situation& situation, RandomSource& random, std::size_t lane, LaneValues& values) const;
    void readLaneLiquids(const Situation& situation, RandomSource& random, LaneValues& values) const;
    void readLaneStates(const Situation& situation, std::size_t lane, LaneValues& values) const;
    void readEngine(const Situation& situation, Snapshot& snapshot) const;
    void readMonitor(const Situation& situation, Snapshot& snapshot) const;
    void readElectrical(const Situation& situation, RandomSource& random, Snapshot& snapshot) const;
    void readAmbient(const Situation& situation, RandomSource& random, Snapshot& snapshot) const;
    void readAir(const Situation& situation, RandomSource& random, AirValues& values) const;
    void readGps(const Situation& situation, RandomSource& random, GpsValues& values);
    void readGpsTime(const Situation& situation, GpsValues& values) const;

    const bool mSatellites;
    const double mQnh;
    const QDateTime mPowerUp;
    Drift mEastError;
    Drift mNorthError;
    Drift mAltitudeError;
};

} // namespace ZARN
