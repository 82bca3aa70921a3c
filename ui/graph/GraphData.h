#pragma once

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

/// The colour of a shown trace.
struct TraceColour {
    int slot = 0;
    QString name;
    QColor colour;
    bool isOwn = false; ///< chosen by the user
};

/// The display settings of the graph, as the setup window edits them. Colours are names of the form #rrggbb.
struct GraphData {
    double xRange = 60.0;  ///< width of the window in seconds
    int displayMode = 0;   ///< 0 single graph, 1 split
    int graphMode = 1;     ///< 0 manual, 1 automatic
    int cursorMode = 1;    ///< 0 floating, 1 center
    QString backColor = QStringLiteral("#000000");
    bool gridOn = true;
    QString gridColor = QStringLiteral("#ff6666");
    QString labelColor = QStringLiteral("#000000");
    QString labelBackColor = QStringLiteral("#bbbbbb");
    bool cursorOn = true;
    bool legendOn = true;
    bool autoscaleOn = true;
    double yMin = -100.0;
    double yMax = 100.0;
    bool clickMovesCursor = false; ///< a click in the plot; otherwise it makes the marker a point
    std::vector<TraceColour> traces;
};

} // namespace ZARN
