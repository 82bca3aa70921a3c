#pragma once

#include "app/Numeric.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ZARN {

/// The grid of times on which a KML document stands: slot n holds what happened from n steps on. Any step will do, 0 and
/// negative ones too; times and slots that no integer holds saturate.
class KmlGrid {
public:
    explicit KmlGrid(int stepSeconds) : mStep(static_cast<float>(stepSeconds)) {}

    [[nodiscard]] int slot(double seconds) const { return saturatingCast<int>(seconds / mStep); }
    /// Slots of `interval` path slots each.
    [[nodiscard]] int slot(double seconds, int interval) const { return saturatingCast<int>(seconds / mStep / interval); }
    /// When a slot begins.
    [[nodiscard]] double seconds(int slot, int interval = 1) const { return static_cast<double>(slot) * interval * mStep; }
    /// The time of day, counted from 0:00, at which a slot begins: "hh:mm:ss".
    [[nodiscard]] std::string timeOfDay(int slot, int interval = 1) const;

private:
    float mStep;
};

/// One value a slot, in ascending order of slots; of values that share one the last one put in stays. Grows with the number of
/// slots, not with the times in them.
class KmlSlots {
public:
    struct Value {
        int slot;
        double value;
    };

    void put(int slot, double value)
    {
        if (!mValues.empty() && mValues.back().slot == slot) {
            mValues.back().value = value;
            return;
        }
        mAscending = mAscending && (mValues.empty() || mValues.back().slot < slot);
        mValues.push_back({slot, value});
    }
    /// To be called when all are in.
    void sort();
    [[nodiscard]] const std::vector<Value>& values() const { return mValues; }
    /// Hands the values over.
    [[nodiscard]] std::vector<Value> take() { return std::move(mValues); }

private:
    std::vector<Value> mValues;
    bool mAscending = true;
};

} // namespace ZARN
