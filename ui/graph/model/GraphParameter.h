#pragma once

#include "analysis/SampleSeries.h"
#include "analysis/TimeSpan.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/StateNames.h"
#include "ui/graph/model/TraceStroke.h"

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

/// Values from `lower` to `upper`, in the trace's display unit, that are a warning or beyond a limit.
struct GraphBand {
    double lower = 0.0;
    double upper = 0.0;
    QColor colour;
};

/// Values from `lower` to `upper`, in the trace's display unit, where earlier flights had it at such a time.
struct NormalStretch {
    TimeSpan span;
    double lower = 0.0;
    double upper = 0.0;
    std::size_t flights = 0; ///< how many
};

/// One trace of the graph: what it is called and how it is drawn, its samples.
struct GraphParameter {
    QString name = QStringLiteral("NoName");
    QString unit;
    QColor colour;
    bool hasOwnColour = false; ///< the user's choice, drawn as it is
    QColor drawnColour;        ///< such that it can be told from the graph's ground
    int colourNumber = 0;      ///< of the colour that it has by itself
    TraceStroke stroke;
    int precision = 2; ///< decimal digits of its values
    bool active = false;
    double height = 1.0;         ///< of its strip, in those of others
    bool samplesVisible = false; ///< each sample is marked where they stand apart
    SampleSeries samples;
    std::vector<uint32_t> breaks; ///< places of samples before which something without a number was recorded
    std::vector<GraphBand> bands;
    std::shared_ptr<const StateNames> pStates; ///< null for quantities
    ValueRange<double> ghostValues;            ///< the extremes of what it is compared with
    std::vector<NormalStretch> normal;         ///< by time

    /// The values that its area has room for: off is below and on is above, even where only one of them was recorded.
    [[nodiscard]] ValueRange<double> range() const
    {
        ValueRange<double> values = samples.extremes();
        if (pStates)
            values.add(pStates->range());
        values.add(ghostValues);
        for (const NormalStretch& stretch : normal) {
            values.add(stretch.lower);
            values.add(stretch.upper);
        }
        return values;
    }

    /// "NAME [UNIT]", or the name alone.
    [[nodiscard]] QString label() const { return unit.isEmpty() ? name : name + QStringLiteral(" [") + unit + QLatin1Char(']'); }
    /// A value in the trace's precision, or the name of a state.
    [[nodiscard]] QString text(double value) const { return pStates ? pStates->text(value) : graphNumber(value, precision); }
};

} // namespace ZARN
