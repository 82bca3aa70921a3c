#pragma once

#include "project/TimeReference.h"
#include "ui/graph/model/GraphMarker.h"
#include "ui/graph/model/GraphScenery.h"
#include "ui/graph/model/ShownTraces.h"

#include <QStringList>

#include <optional>

namespace ZARN {

/// What a trace does between two times. Values are the recorded ones in force at the ends; the mean is weighted by time and the integral
/// is in unit x hours, both over the straight lines between the samples.
struct MarkerValues {
    const GraphParameter* pParameter = nullptr;
    int index = -1; ///< of the trace, or of the one that it is compared with
    QString ghost;  ///< what the values are of where they are not the trace's own
    std::optional<double> atStart; ///< none before the first sample
    std::optional<double> atEnd;
    std::optional<double> difference;
    std::optional<double> minimum; ///< of the samples from start to end; of the values at the ends where no sample lies between
    std::optional<double> maximum;
    std::optional<double> mean;
    std::optional<double> integral;

    static MarkerValues of(const GraphParameter& parameter, double start, double end);
    /// Name and unit, and what they are of.
    [[nodiscard]] QString label() const;
    /// The seven numbers in the order above, in the parameter's precision; "-" for what is not known.
    [[nodiscard]] QStringList texts() const;
    /// Their names, translated.
    [[nodiscard]] static QStringList headers();
};

/// Of all shown traces, between the marker's earlier and later end; each followed by what it is compared with.
[[nodiscard]] std::vector<MarkerValues> markerValues(const ShownTraces& traces, const GraphMarker& marker,
                                                     const GraphScenery* pScenery = nullptr);
/// The unit of an integral over hours: what is left of a flow per hour, else the unit times hours.
[[nodiscard]] QString integralUnit(const QString& unit);

/// A table for the clipboard: two lines that name the stretch, the headers, and a line for each trace; cells apart by tabulators.
[[nodiscard]] QString markerText(const ShownTraces& traces, const GraphMarker& marker, const TimeReference& times = {},
                                const GraphScenery* pScenery = nullptr);

} // namespace ZARN
