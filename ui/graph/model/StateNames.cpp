#include "ui/graph/model/StateNames.h"

#include "app/Numeric.h"
#include "profile/ValueDecoder.h"

#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kFewStates = 3;
constexpr double kLowStrip = 0.3, kStrip = 0.4;

bool isPlainInteger(const ProfileParameter& parameter)
{
    return parameter.dataType != eFloat && parameter.factor == 1.0 && parameter.offset == 0.0;
}

} // namespace

std::shared_ptr<const StateNames> StateNames::of(const ValueDecoder& decoder, const ProfileParameter& parameter)
{
    const EnumList* pLabels = decoder.labels();
    if (!decoder.isField() && !(pLabels && decoder.isNumeric() && isPlainInteger(parameter)))
        return nullptr;
    std::map<int64_t, QString> names;
    for (const auto& [value, label] : pLabels ? *pLabels : EnumList())
        names.emplace(value, QString::fromStdString(label));
    return std::make_shared<const StateNames>(std::move(names), decoder.isField() && parameter.startBit == parameter.endBit);
}

StateNames::StateNames(std::map<int64_t, QString> names, bool isBit) : mNames(std::move(names))
{
    for (const auto& [value, name] : mNames) {
        mRange.add(static_cast<double>(value));
        mLongest = std::max(mLongest, static_cast<int>(name.size()));
    }
    for (const double value : {0.0, 1.0}) {
        if (isBit)
            mRange.add(value);
    }
}

QString StateNames::text(double value) const
{
    const auto found = mNames.find(saturatingCast<int64_t>(std::round(value)));
    if (found != mNames.end() && value == static_cast<double>(found->first))
        return found->second;
    return QString::number(value, 'g', 10);
}

double StateNames::height() const
{
    return !mRange.isEmpty() && mRange.greatest - mRange.least < kFewStates ? kLowStrip : kStrip;
}

} // namespace ZARN
