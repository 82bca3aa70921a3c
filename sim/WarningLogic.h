#pragma once

#include "sim/Situation.h"
#include "sim/Snapshot.h"

namespace ZARN::Sim {

/// What the monitoring unit concludes from the measured values: sets the warning lamps, each lane's word of faults and its warning
/// level. A lamp that is lit goes dark only when the value has come back a little further than where it lit, so that noise does not
/// make it flicker.
void judgeWarnings(const Situation& situation, Snapshot& values);

} // namespace ZARN::Sim
