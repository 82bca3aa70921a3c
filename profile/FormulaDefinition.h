#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ZARN {

/// A parameter of the user's own, computed from others. All numbers are metric.
struct FormulaDefinition {
    std::string name;
    std::string expression;
    std::string unit;
    int precision = 2; ///< digits after the decimal sign
    /// Values from it on, or up to it for the lower ones, are told as outside.
    std::optional<double> lowerLimit, lowerWarning, upperWarning, upperLimit;

    bool operator==(const FormulaDefinition&) const = default;
};

using FormulaDefinitions = std::vector<FormulaDefinition>;

} // namespace ZARN
