#pragma once

#include "analysis/FlightPhases.h"
#include "ui/canvas/ColourTable.h"

#include <array>

namespace ZARN {

/// The colours that the user can have the graph in. The numbers are those of the setting "GraphPalette".
enum class EGraphPalette { eStandard, eDark, eLight, ePrint };

/// The colours of what is drawn, one set for each medium, all of them out of the table of named colours.
struct Palette {
    struct Graph {
        QColor ground;
        QColor grid;
        QColor label;
        QColor labelGround;
        std::array<QColor, 12> traces; ///< in turn
        std::array<QColor, 4> dots;    ///< of points, from old or little to new or much
    };
    struct Map {
        QColor water, land, shore, river, country; ///< of the ground; the last one between countries
        QColor path;
        QColor text;
        QColor textGround;
        QColor grid;
        QColor gridText;
        QColor frame;
        QColor aircraft;
        QColor aircraftRim;
        QColor eventRim;
        QColor begin; ///< of a flight
        QColor end;
        QColor exceeded;
        QColor limit;
        QColor markRim;
        QColor label;      ///< of marks and of what the legend tells
        QColor pathDim;    ///< what is not looked at
        QColor pathRim;    ///< of the marks of direction on a path in several colours
        QColor wrongFix;
        QColor town;
        QColor airfield;
        QColor event; ///< of a profile that gives it no colour
        QColor note;
        QColor value, valueGround; ///< beside the map
        QColor stripGround; ///< of the altitude below the map
        QColor selection;
        QColor unknown;               ///< of a place without a value
        std::array<QColor, 5> scale;  ///< from the lowest value to the highest: rising in lightness, whatever the kind of colour vision
        std::array<QColor, 6> phases; ///< engine off, ground, take-off, climb, level flight, descent
    };
    struct Faults {
        QColor info, warning, fault;
        QColor quiet; ///< of a bit that is not set
        QColor none;  ///< where there is no bit
        QColor line, pointer;
    };
    struct Course {
        QColor recorded, label, outline;
        QColor line; ///< above a phase, and between two
        QColor ground, takeOff, climb, level, descent; ///< phases

        [[nodiscard]] const QColor& of(EFlightPhase phase) const;
    };
    struct Signs {
        QColor good, warning, limit, unknown;
        QColor inside, insideWarning;
    };
    struct Table {
        QColor time; ///< ground of the column of times
        QColor mark; ///< of a value outside its limits, on light grounds
        QColor field, dimText;
        QColor badge, onBadge;
    };
    struct Text {
        QColor ink, quiet, rule, accent, alert;
    };

    Palette(const ColourTable& table, ColourTable::EMedium medium);

    Graph graph;
    Map map;
    Faults faults;
    Course course;
    Signs signs;
    Table tables;
    Text text;
    QColor icon;
    QColor onAccent; ///< icons on what is chosen
    QColor warning;
    QColor limit;
    QColor found; ///< by a search
    QColor phaseFlight, phaseEngine;

    /// What windows are drawn in now. Every thread may ask; what it refers to stays as it is.
    [[nodiscard]] static const Palette& screen();
    /// For the windows' thread; who draws is told by the toolkit's change of style, which must follow.
    static void setScreen(const ColourTable& table, ColourTable::EMedium medium);
    [[nodiscard]] static const Palette& light();
    [[nodiscard]] static const Palette& print();
    /// All but the standard one, which is that of the windows, have traces that people of every kind of colour vision can tell apart and
    /// from the ground.
    [[nodiscard]] static const Graph& graphColours(EGraphPalette palette);
};

} // namespace ZARN
