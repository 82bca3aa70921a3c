#pragma once

#include <QColor>

namespace ZARN {

/// The colours of what is drawn on a canvas: one set for each medium.
struct Palette {
    struct Graph {
        QColor ground;
        QColor grid;
        QColor label;
        QColor labelGround;
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
};

} // namespace ZARN
