#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `gpx`: the flight path of a cycle as a GPX track.
class CommandGpx : public DataCommand {
public:
    explicit CommandGpx(CLI::App& program);

private:
    int runOnData() override;

    bool mTrackPerFlight = false;
};

} // namespace ZARN
