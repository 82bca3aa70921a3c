#pragma once

#include "sim/Situation.h"

namespace ZARN::Sim {

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

private:
    void steer(const Leg& leg);
    void accelerate(const Leg& leg, double throttle);
    void climb(const Leg& leg, double lift);
    [[nodiscard]] double wantedHeading(const Leg& leg);
    [[nodiscard]] double wantedClimb(const Leg& leg, double lift) const;
    [[nodiscard]] RunwayPoint place() const;
    [[nodiscard]] double headWind() const;
    [[nodiscard]] bool isNear(RunwayPoint target) const;
    [[nodiscard]] double headingTo(RunwayPoint target) const;

    Motion mMotion;
    double mWindSpeed;
    double mWindFrom;
    Drift mLift{0.5, 12, kStep};
    std::size_t mWaypoint = 0;
};

} // namespace ZARN::Sim
