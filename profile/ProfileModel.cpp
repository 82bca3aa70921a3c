#include "profile/ProfileModel.h"

#include <atomic>
#include <cmath>
#include <limits>
#include <set>

namespace ZARN {

namespace {

const ProfileParameter kNoParameter;

template <typename List> const List* listOf(const std::vector<List>& lists, int number)
{
    return number >= 1 && number <= static_cast<int>(lists.size()) ? &lists[static_cast<std::size_t>(number - 1)] : nullptr;
}

/// From the lowest band to the highest.
ThresholdList thresholdsOf(const FormulaDefinition& formula)
{
    ThresholdList list;
    const auto add = [&list](double value, int state) {
        static const QColor kColours[] = {Qt::white, Qt::yellow, Qt::red};
        list.push_back({value, kColours[state], state});
    };
    const double least = -std::numeric_limits<double>::infinity();
    if (formula.lowerLimit)
        add(least, eThresholdLimit);
    if (formula.lowerWarning)
        add(formula.lowerLimit ? std::nextafter(*formula.lowerLimit, HUGE_VAL) : least, eThresholdWarning);
    if (const auto lower = formula.lowerWarning ? formula.lowerWarning : formula.lowerLimit)
        add(std::nextafter(*lower, HUGE_VAL), eThresholdOk);
    else if (formula.upperWarning || formula.upperLimit)
        add(least, eThresholdOk);
    if (formula.upperWarning)
        add(*formula.upperWarning, eThresholdWarning);
    if (formula.upperLimit)
        add(*formula.upperLimit, eThresholdLimit);
    return list;
}

template <typename Index, typename Key>
const ProfileParameter* lookUp(const Index& index, const Key& key, const ProfileParameter* pFallback)
{
    const auto found = index.find(key);
    return found == index.end() ? pFallback : found->second;
}

} // namespace

int ProfileModel::nextIdentity()
{
    static std::atomic<int> identity{0};
    return ++identity;
}

ProfileModel::ProfileModel(ProfileContent content) : ProfileContent(std::move(content))
{
    index();
}

ProfileModel::ProfileModel(const ProfileModel& base, const FormulaDefinitions& formulas) : ProfileContent(base)
{
    std::set<std::string> names;
    for (const auto& [device, parameter] : base.parameters())
        names.insert(parameter.name);
    ProfileDevice computed{kFormulas, nextIdentity(), {}};
    for (const FormulaDefinition& formula : formulas) {
        if (formula.name.empty() || formula.expression.empty() || !names.insert(formula.name).second)
            continue;
        thresholdLists.push_back(thresholdsOf(formula));
        const bool hasLimits = !thresholdLists.back().empty();
        if (!hasLimits)
            thresholdLists.pop_back();
        conversions.try_emplace(formula.unit + "_" + formula.unit, UnitConversion{1.0, 0.0});
        ProfileParameter parameter;
        parameter.name = formula.name;
        parameter.path = computed.name + "/" + formula.name;
        parameter.unitMetric = parameter.unitImperial = formula.unit;
        parameter.dataType = eFloat;
        parameter.startByte = kComputedStartByte;
        parameter.precision = formula.precision;
        parameter.thresholdList = hasLimits ? static_cast<int>(thresholdLists.size()) : 0;
        parameter.deviceIndex = static_cast<int>(devices.size()) + 1;
        parameter.expression = formula.expression;
        computed.parameters.push_back(std::move(parameter));
    }
    if (!computed.parameters.empty())
        devices.push_back(std::move(computed));
    index();
}

void ProfileModel::index()
{
    for (const ProfileDevice& device : devices) {
        for (const ProfileParameter& parameter : device.parameters) {
            mParameters.push_back({device, parameter});
            if (!parameter.isComputed())
                mByIdentifier[parameter.identifier()] = &parameter;
            mByName.try_emplace(parameter.name, &parameter);
            if (!parameter.zarnDataType.empty())
                mByZarnType[parameter.zarnDataType] = &parameter;
        }
    }
}

const ProfileParameter& ProfileModel::parameter(uint32_t identifier) const
{
    return *lookUp(mByIdentifier, identifier, &kNoParameter);
}

const ProfileParameter& ProfileModel::ofZarnType(const std::string& key) const
{
    return *lookUp(mByZarnType, key, &kNoParameter);
}

const ProfileParameter* ProfileModel::find(const std::string& parameterName) const
{
    return lookUp(mByName, parameterName, nullptr);
}

const ThresholdList* ProfileModel::thresholds(const ProfileParameter& parameter) const
{
    return listOf(thresholdLists, parameter.thresholdList);
}

const EnumList* ProfileModel::labels(const ProfileParameter& parameter) const
{
    return listOf(enumLists, parameter.enumList);
}

UnitConversion ProfileModel::conversion(const ProfileParameter& parameter) const
{
    // A pair that the profile does not declare converts to 0: nothing may pass for converted that is not.
    const auto found = conversions.find(parameter.unitMetric + "_" + parameter.unitImperial);
    return found == conversions.end() ? UnitConversion{} : found->second;
}

} // namespace ZARN
