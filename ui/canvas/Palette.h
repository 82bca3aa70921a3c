#pragma once

#include <QColor>

#include <array>

namespace ZARN {

/// The colours that the user can have the graph in. The numbers are those of the setting "GraphPalette".
enum class EGraphPalette { eStandard, eDark, eLight, ePrint };

/// The colours of what is drawn on a canvas: one set for each medium.
struct Palette {
    struct Graph {
        QColor ground;
        QColor grid;
        QColor label;
        QColor labelGround;
        std::array<QColor, 12> traces; ///< in turn
    };
    struct Map {
        QColor path;
        QColor text;
        QColor textGround;
        QColor grid;
        QColor gridText;
        QColor frame;
        QColor aircraft{25, 60, 140};
        QColor aircraftRim{Qt::white};
        QColor eventRim{Qt::black};
        QColor begin{0, 150, 90}; ///< of a flight
        QColor end{Qt::black};
        QColor exceeded{230, 159, 0};
    };

    Graph graph;
    Map map;
    QColor warning{240, 180, 0};
    QColor limit{220, 40, 40};
    QColor found{60, 140, 255}; ///< by a search

    [[nodiscard]] static const Palette& light();
    [[nodiscard]] static const Palette& print();
    /// All but the standard one have traces that people of every kind of colour vision can tell apart and from the ground.
    [[nodiscard]] static const Graph& graphColours(EGraphPalette palette);
};

} // namespace ZARN
