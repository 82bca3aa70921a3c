#pragma once

#include "sim/Situation.h"
#include "sim/Snapshot.h"

namespace ZARN::Sim {

/// Where the aircraft stands when its power is switched on.
Motion parkedMotion();
/// Moves the aircraft over one kStep as the leg asks: a point on a plane with a heading, with the accelerations, turns and climbs of a
/// light tow aircraft. Knows no forces; the pilot is assumed to fly the numbers of the leg.
void stepMotion(Situation& now, RandomSource& random);
/// Whether the leg's end is reached. @param seconds since the leg began.
bool isLegEnded(const Situation& now, double seconds);

/// The engine before its start. @param warmth 0: as cold as the air, 1: just stopped.
Engine restingEngine(double warmth, double outsideTemperature, double ambientPressure);
/// The engine's physics over one kStep: each quantity follows, with its own lag, what throttle, speed and air ask for. No randomness, no sensors.
void stepEngine(Situation& now);

/// What the monitoring unit concludes from the measured values: sets the warning lamps, each lane's word of faults and its warning
/// level. A lamp that is lit goes dark only when the value has come back a little further than where it lit, so that noise does not
/// make it flicker.
void judgeWarnings(const Situation& now, Snapshot& values);

} // namespace ZARN::Sim
