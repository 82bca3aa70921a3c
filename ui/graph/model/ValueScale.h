#pragma once

#include "analysis/MinMaxPyramid.h"

#include <QString>

#include <array>
#include <map>

namespace ZARN {

struct GraphParameter;
class ShownTraces;

/// The values at the bottom and at the top of an area.
using ValueSpan = std::array<double, 2>;

/// Which values stand at the bottom and at the top of a trace's area: those that the user zoomed to, else those around its own extremes
/// or those of all traces of its unit, else the same for all traces.
struct ValueScale {
    bool isAutomatic = true;
    double lower =
        -0.5; ///< of all traces while not automatic; the user types the two one after the other, so that they may pass each other
    double upper = 1.5;
    double spread = 0.0;           ///< what an automatic scale adds at both ends
    ValueSpan reference{0.0, 1.0}; ///< where an automatic scale knows no value; drawn as a band while it is shown
    bool isReferenceShown = false;
    bool isShared = false; ///< traces of one unit stand on one scale, so that they can be compared
    /// What the user zoomed to, by keyOf(): a unit that changes has a scale of its own.
    std::map<QString, ValueSpan> zoomed = {};

    /// Whose zoom it is: the trace's, or that of all traces of its unit.
    [[nodiscard]] QString keyOf(const QString& name, const QString& unit) const;
    /// Whether the two stand on one scale whatever their values are.
    [[nodiscard]] bool isCommon(const GraphParameter& a, const GraphParameter& b) const;
    /// Of a trace that exists.
    [[nodiscard]] ValueSpan spanOf(const ShownTraces& traces, int index) const;
    /// @param values the extremes of the trace; empty for one without samples
    [[nodiscard]] ValueSpan spanOf(const ValueRange<double>& values) const;
    /// Some values with a tenth of their span below and above. @param more is added at both ends
    [[nodiscard]] static ValueSpan around(const ValueRange<double>& values, double more = 0.0);
    /// Where there is no trace.
    [[nodiscard]] ValueSpan shared() const { return isAutomatic ? reference : ValueSpan{lower, upper}; }
};

} // namespace ZARN
