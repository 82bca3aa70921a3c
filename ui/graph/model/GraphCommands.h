#pragma once

#include "ui/graph/model/RecordGraph.h"

namespace ZARN {

/// The graph's commands by the number of their button.
enum EGraphCommand {
    eZoomIn = 0,
    eZoomOut = 1,
    eZoomAll = 2,
    eZoomMarker = 3,
    eClearAll = 4,
    eAutomaticMode = 5,
    eSplitMode = 6,
    eSingleMode = 7,
    eResetAll = 8,
    eSetup = 9,
    eSnapshot = 10,
    eNoCommand = 99
};

/// What the buttons of the graph do, but for those that open a window.
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
