#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ZARN {

/// One field of a row of the store: nothing, a whole number, a number or a text.
using FieldValue = std::variant<std::monostate, int64_t, double, std::string>;
using Row = std::vector<FieldValue>;

/// What is no number is nothing.
[[nodiscard]] inline FieldValue realOf(double number)
{
    return std::isnan(number) ? FieldValue() : FieldValue(number);
}

[[nodiscard]] inline FieldValue realOf(const std::optional<double>& number)
{
    return number ? realOf(*number) : FieldValue();
}

/// An empty text is nothing.
[[nodiscard]] inline FieldValue textOrNothing(std::string text)
{
    return text.empty() ? FieldValue() : FieldValue(std::move(text));
}

} // namespace ZARN
