#pragma once

#include <QString>

#include <vector>

namespace ZARN {

/// What a key does in a graph; those of EGraphCommand are eCommand with the command as their amount.
enum class EGraphKey {
    eCursorTime,  ///< by pixels
    eCursorValue, ///< by pixels, downwards
    eMarkerStart, ///< by pixels
    eMarkerEnd,
    eNoMarker,
    ePan,  ///< by parts of the window
    eEdge, ///< of the record: -1 its start, 1 its end
    eZoomTime,
    eValues, ///< by parts of the span, upwards
    eZoomValues,
    eChoose, ///< the next trace
    eMoveStrip,
    eStripHeight,
    eGhost,  ///< by pixels
    eScroll, ///< lists that are cut, by pages
    eCommand
};

/// The keys of a graph: what they do, and what is told of them.
struct GraphKey {
    EGraphKey action;
    double amount;
    const char* keys; ///< as a key sequence, without what only makes the step wider
    const char* text; ///< to be translated; shared by neighbours that do the same to either side

    static const std::vector<GraphKey>& all();
    /// What an event of the keyboard means; null for nothing. Shift counts only where a key has a meaning of its own with it.
    static const GraphKey* find(int key, Qt::KeyboardModifiers modifiers);
    /// Keys and what they do, in the language of the program, in the order of their table.
    static std::vector<std::pair<QString, QString>> descriptions();
};

} // namespace ZARN
