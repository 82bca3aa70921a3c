#pragma once

#include "card/CycleNote.h"
#include "project/TimeReference.h"
#include "ui/canvas/Palette.h"
#include "ui/graph/model/ValueScale.h"

#include <QString>

#include <vector>

namespace ZARN {

enum eGraphMode : int { eManual = 0, eAutomatic = 1 };
enum eDisplayMode : int { eSingleGraph = 0, eSplit = 1 };
enum eCursorMode : int { eFloating = 0, eCenter = 1 };

/// The display settings of a graph, as the setup window edits them: the only place where they are kept. Colours are names of the form
/// #rrggbb.
struct GraphData {
    double xRange = 60.0; ///< seconds; the width that the user asked for last
    eDisplayMode displayMode = eSingleGraph;
    eGraphMode graphMode = eAutomatic;
    eCursorMode cursorMode = eCenter;
    EGraphPalette palette = EGraphPalette::eStandard; ///< of the traces, and of what follows unless it is changed
    const Palette::Graph* pColours = &Palette::light().graph; ///< of that palette
    QString backColor = Palette::light().graph.ground.name();
    bool gridOn = true;
    QString gridColor = Palette::light().graph.grid.name();
    QString labelColor = Palette::light().graph.label.name();
    QString labelBackColor = Palette::light().graph.labelGround.name();
    bool cursorOn = true;
    bool legendOn = true;
    ValueScale scale{.lower = -100.0, .upper = 100.0};
    TimeReference times = {};      ///< how those of the axis and the cursor are told
    bool gapsOn = false;           ///< traces are interrupted where nothing was recorded for long, or no number
    bool isGrowing = false;        ///< samples still come; a hole is news then, and gaps are shown in any case
    bool normalOn = false;         ///< where earlier flights lay is shown behind the traces
    int firstTableRow = 0, firstLegendRow = 0; ///< of the marker's table and of the legend where they have no room for all
    std::vector<CycleNote> notes = {};         ///< of the record, by time
    bool clickMovesCursor = false; ///< a click in the plot; otherwise it makes the marker a point

    void usePalette(EGraphPalette wanted)
    {
        const Palette::Graph& colours = Palette::graphColours(wanted);
        palette = wanted;
        pColours = &colours;
        backColor = colours.ground.name();
        gridColor = colours.grid.name();
        labelColor = colours.label.name();
        labelBackColor = colours.labelGround.name();
    }
    /// The windows have another palette: the standard colours are those of it then, while colours of the user's own stay. @return whether any changed
    bool followScreen()
    {
        const bool isStandard = backColor == pColours->ground.name() && gridColor == pColours->grid.name() && labelColor == pColours->label.name() &&
                                labelBackColor == pColours->labelGround.name();
        if (palette == EGraphPalette::eStandard && isStandard)
            usePalette(palette);
        return palette == EGraphPalette::eStandard && isStandard;
    }
};

/// The colours of the graph beside those of its traces, read from the settings.
struct GraphColours {
    GraphColours() = default;
    explicit GraphColours(const GraphData& data)
        : background(data.backColor), grid(data.gridColor), label(data.labelColor), labelBackground(data.labelBackColor)
    {
    }
    QColor background;
    QColor grid;
    QColor label;
    QColor labelBackground;
};

} // namespace ZARN
