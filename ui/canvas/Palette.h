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
        QColor limit{200, 30, 30};
        QColor markRim{Qt::white};
        QColor label{40, 40, 40}; ///< of marks and of what the legend tells
        QColor pathDim{205, 140, 140}; ///< what is not looked at
        QColor pathRim{50, 50, 50};    ///< on both sides of a path in several colours
        QColor wrongFix{120, 60, 140};
        QColor town{70, 70, 70};
        QColor stripGround{248, 249, 250}; ///< of the altitude below the map
        QColor airfield{90, 50, 140};
        QColor selection{25, 60, 140};
        /// From the lowest value of a scale to the highest: rising in lightness, whatever the kind of colour vision.
        std::array<QColor, 5> scale{QColor(68, 1, 84), QColor(59, 82, 139), QColor(33, 145, 140), QColor(94, 201, 98), QColor(253, 231, 37)};
        /// Engine off, ground, take-off, climb, level flight, descent.
        std::array<QColor, 6> phases{QColor(110, 110, 110), QColor(170, 150, 120), QColor(214, 39, 40),
                                     QColor(230, 159, 0),   QColor(0, 114, 178),   QColor(0, 158, 115)};
        QColor unknown{190, 190, 190}; ///< of a place without a value
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
