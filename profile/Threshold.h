#pragma once

#include <QColor>

#include <vector>

namespace ZARN {

enum EThresholdState { eThresholdOk = 0, eThresholdWarning = 1, eThresholdLimit = 2 };

/// One boundary of a threshold list; values from it on take its state and colour.
struct Threshold {
    double value = 0.0; ///< in the parameter's scaled metric unit
    QColor colour;      ///< invalid when the profile names no colour that is known
    int state = eThresholdOk;
};

/// State and colour of a value; neutral when no boundary applies.
struct ThresholdResult {
    int state = eThresholdOk;
    QColor colour = QColor(255, 255, 255);
};

/// The boundaries of one list in file order.
using ThresholdList = std::vector<Threshold>;

/// Walks the list literally: stops at the first boundary greater than the value, and the last one passed decides. A value
/// that is not a number passes every boundary.
[[nodiscard]] inline ThresholdResult findThreshold(const ThresholdList& list, double value)
{
    const Threshold* pPassed = nullptr;
    for (const Threshold& threshold : list) {
        if (threshold.value > value)
            break;
        pPassed = &threshold;
    }
    return pPassed ? ThresholdResult{pPassed->state, pPassed->colour} : ThresholdResult{};
}

} // namespace ZARN
