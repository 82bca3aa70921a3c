#pragma once

#include "sim/RandomSource.h"
#include "sim/Route.h"

namespace ZARN {

/// Seconds that the simulation advances at a time.
constexpr double kStep = 0.1;

/// Where the aircraft is and how it moves.
struct Motion {
    double east = 0, north = 0; ///< m from the start of the runway
    double height = 0;          ///< m above the airfield
    double speed = 0;           ///< m/s over ground
    double heading = 0;         ///< degrees, 0 <= heading < 360
    double climb = 0;           ///< m/s
    double acceleration = 0;    ///< m/s^2 along the path
    double turnRate = 0;        ///< degrees a second, positive to the right
    bool airborne = false;
};

/// Moves the aircraft as a leg asks: a point on a plane with a heading, with the accelerations, turns and climbs of a light tow
/// aircraft. Holds no forces; the pilot is assumed to fly the numbers of the leg.
class Airframe {
public:
    explicit Airframe(const CyclePlan& plan);

    /// Advances by kStep. @param throttle the lever as it stands, percent.
    void step(const Leg& leg, double throttle, RandomSource& random);
    /// Whether the leg's end is reached. @param seconds since the leg began.
    [[nodiscard]] bool ended(const Leg& leg, double seconds) const;
    /// Tells that another leg begins: the round of the tow starts anew.
    void beginLeg() { mWaypoint = 0; }

    [[nodiscard]] const Motion& motion() const { return mMotion; }
    /// The wind's component against the aircraft, m/s.
    [[nodiscard]] double headWind() const;

private:
    void steer(const Leg& leg);
    void accelerate(const Leg& leg, double throttle);
    void climb(const Leg& leg, RandomSource& random);
    [[nodiscard]] double wantedHeading(const Leg& leg);
    [[nodiscard]] double wantedClimb(const Leg& leg, double lift) const;
    [[nodiscard]] RunwayPoint place() const;
    [[nodiscard]] double distanceTo(RunwayPoint target) const;
    [[nodiscard]] double headingTo(RunwayPoint target) const;

    Motion mMotion;
    double mWindSpeed;
    double mWindFrom;
    Drift mLift;
    std::size_t mWaypoint = 0;
};

} // namespace ZARN
