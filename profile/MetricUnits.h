#pragma once

#include "profile/Profile.h"

namespace ZARN {

/// While it lives the profile decodes to metric units, whatever is displayed: for what is defined in them.
class MetricUnits {
public:
    explicit MetricUnits(Profile& profile) : mProfile(profile), mDisplayed(profile.currentUnit()) { change(EUnit::eMetric); }
    ~MetricUnits() { change(mDisplayed); }
    MetricUnits(const MetricUnits&) = delete;
    MetricUnits& operator=(const MetricUnits&) = delete;

private:
    void change(EUnit unit)
    {
        if (mDisplayed != EUnit::eMetric)
            mProfile.setCurrentUnit(unit);
    }

    Profile& mProfile;
    const EUnit mDisplayed;
};

} // namespace ZARN
