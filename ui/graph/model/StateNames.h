#pragma once

#include "analysis/MinMaxPyramid.h"

#include <QString>

#include <map>
#include <memory>

namespace ZARN {

class ValueDecoder;
struct ProfileParameter;

/// What the values of a trace of states are called: enumerations, lamps, bits. They hold until the next sample, and nothing lies between
/// two of them. Never changes.
class StateNames {
public:
    /// Null for a trace of quantities.
    [[nodiscard]] static std::shared_ptr<const StateNames> of(const ValueDecoder& decoder, const ProfileParameter& parameter);
    /// @param names by value  @param isBit two states, 0 and 1
    StateNames(std::map<int64_t, QString> names, bool isBit);

    /// "Running"; the number where it has no name.
    [[nodiscard]] QString text(double value) const;
    /// Of the longest name, in characters.
    [[nodiscard]] int longest() const { return mLongest; }
    /// Of all values that are known.
    [[nodiscard]] const ValueRange<double>& range() const { return mRange; }
    /// Of a strip, in those of quantities: a few states need no more than room for their names.
    [[nodiscard]] double height() const;

private:
    std::map<int64_t, QString> mNames;
    ValueRange<double> mRange;
    int mLongest = 1;
};

} // namespace ZARN
