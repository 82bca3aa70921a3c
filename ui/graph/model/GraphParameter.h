#pragma once

#include "analysis/SampleSeries.h"

#include <QColor>
#include <QPointF>
#include <QString>

#include <array>
#include <vector>

namespace ZARN {

enum eGraphMode { eManual = 0, eAutomatic = 1 };
enum eDisplayMode { eSingleGraph = 0, eSplit = 1 };
enum eCursorMode { eFloating = 0, eCenter = 1 };

/// A colour as red, green and blue, 0..1 each.
struct GraphColour {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;

    [[nodiscard]] QColor colour() const;
    [[nodiscard]] double luminance() const { return 0.299 * red + 0.587 * green + 0.114 * blue; }
    bool operator==(const GraphColour&) const = default;
};

/// Values from `lower` to `upper`, in the trace's display unit, that are a warning or beyond a limit.
struct GraphBand {
    double lower = 0.0;
    double upper = 0.0;
    QColor colour;
};

/// One trace of the graph: what it is called and how it is drawn, its samples, and what of them the present window shows.
struct GraphParameter {
    QString name = QStringLiteral("NoName");
    QString unit;
    GraphColour colour;
    bool hasOwnColour = false; ///< the user's choice, drawn as it is
    QColor drawnColour;        ///< kept up to date by the model
    int precision = 2; ///< decimal digits of its values
    bool active = false;
    bool samplesVisible = false; ///< each sample is marked where they stand apart
    bool valuePut = false;       ///< since the last step of time
    SampleSeries samples;
    std::vector<GraphBand> bands;

    std::vector<QPointF> frame; ///< vertices of the window: (seconds after its start, value)
    double lower = 0.0;         ///< own range of values: what stands at the bottom and at the top of the trace's area
    double upper = 1.0;
    double origin = 0.0; ///< top of its strip in pixels below the top of the plot, and the strip's height
    double height = 0.0;

    /// "NAME [UNIT]", or the name alone.
    [[nodiscard]] QString label() const { return unit.isEmpty() ? name : name + QStringLiteral(" [") + unit + QLatin1Char(']'); }
};

} // namespace ZARN
