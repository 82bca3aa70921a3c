#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ZARN {

/// One field of a row of the store: nothing, a whole number, a number or a text.
using Value = std::variant<std::monostate, int64_t, double, std::string>;
using Row = std::vector<Value>;

/// What is no number is nothing.
[[nodiscard]] inline Value realOf(double number)
{
    return std::isnan(number) ? Value() : Value(number);
}

[[nodiscard]] inline Value realOf(const std::optional<double>& number)
{
    return number ? realOf(*number) : Value();
}

/// An empty text is nothing.
[[nodiscard]] inline Value textOrNothing(std::string text)
{
    return text.empty() ? Value() : Value(std::move(text));
}

} // namespace ZARN
