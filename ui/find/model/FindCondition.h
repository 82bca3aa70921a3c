#pragma once

#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

#include <QString>

#include <optional>
#include <vector>

namespace ZARN {

/// A parameter that one can ask for: what it is called, its unit, and where its own limits begin, in the display unit.
struct FindParameter {
    QString name;
    QString unit;
    std::optional<double> upper; ///< the lowest value that is too high
    std::optional<double> lower; ///< the highest value that is too low

    /// The numeric parameters that have samples, and formulas, each name once.
    [[nodiscard]] static std::vector<FindParameter> all(const RecordData& data, const DecodingContext& context);
};

/// "Where is a parameter above or below a value", as it is put together by choices.
struct FindCondition {
    QString parameter;
    bool isAbove = true;
    double value = 0.0; ///< in the display unit

    /// The value in metric or imperial units; none where the profile has no such parameter or its unit cannot be converted.
    [[nodiscard]] std::optional<double> valueIn(EUnit unit, const DecodingContext& context) const;
    /// The same as a formula, whose values are metric; empty where none can say it: the profile has no such parameter, its name cannot be
    /// quoted, or its unit cannot be turned back.
    [[nodiscard]] QString expression(const DecodingContext& context) const;
};

} // namespace ZARN
