#pragma once

#include "sim/Situation.h"

namespace ZARN::Sim {

/// The engine before its start. @param warmth 0: as cold as the air, 1: just stopped.
Engine restingEngine(double warmth, double outsideTemperature, double ambientPressure);

/// The engine's physics over one kStep: each quantity follows, with its own lag, what throttle, speed and air ask for. No randomness, no sensors.
void stepEngine(Situation& situation);

} // namespace ZARN::Sim
