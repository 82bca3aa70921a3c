#pragma once

#include "profile/DecodingContext.h"

namespace ZARN {

/// How metric figures of a parameter that was decoded elsewhere, as by a store, are shown under a profile. Metric where that does not have the
/// parameter in this unit, or cannot convert it.
class DisplayUnit {
public:
    DisplayUnit(const DecodingContext& context, const std::string& parameter, const std::string& metricUnit) : mUnit(metricUnit)
    {
        const ProfileParameter* pParameter = context.unit() == EUnit::eImperial ? context.model().find(parameter) : nullptr;
        if (!pParameter || pParameter->unitMetric != metricUnit)
            return;
        const UnitConversion conversion = context.model().conversion(*pParameter);
        if (conversion.factor == 0.0)
            return;
        mConversion = conversion;
        mUnit = pParameter->unitImperial;
    }

    [[nodiscard]] double value(double metric) const { return metric * mConversion.factor + mConversion.offset; }
    [[nodiscard]] const std::string& unit() const { return mUnit; }

private:
    UnitConversion mConversion{1.0, 0.0};
    std::string mUnit;
};

} // namespace ZARN
