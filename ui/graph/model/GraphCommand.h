#pragma once

namespace ZARN {

/// The graph's commands; the first by the number of their button, the others from menu and keys.
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
    eUndo = 11,
    eRedo = 12,
    eFitValues = 13,
    eWholeValues = 14,
    eSharedScale = 15,
    eNoCommand = 99
};

} // namespace ZARN
