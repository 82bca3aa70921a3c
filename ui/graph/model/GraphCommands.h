#pragma once

#include "ui/graph/model/GraphCommand.h"
#include "ui/graph/model/RecordGraph.h"

namespace ZARN {

/// What the commands of the graph do, but for those that open a window or go through the history.
class GraphCommands {
public:
    GraphCommands(GraphModel& model, RecordGraph& record) : mModel(model), mRecord(record) {}

    /// @param isChecked whether the command's button is, where it can be
    void run(EGraphCommand command, bool isChecked);
    /// One step of a command that goes on while its button is held. @return false when it is none of those
    bool hold(EGraphCommand command);

private:
    void setDisplayMode(eDisplayMode mode);

    GraphModel& mModel;
    RecordGraph& mRecord;
};

} // namespace ZARN
