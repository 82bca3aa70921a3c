#include "profile/ProfileModel.h"

#include <atomic>

namespace ZARN {

namespace {

const ProfileParameter kNoParameter;

template <typename List> const List* listOf(const std::vector<List>& lists, int number)
{
    return number >= 1 && number <= static_cast<int>(lists.size()) ? &lists[static_cast<std::size_t>(number - 1)] : nullptr;
}

template <typename Index, typename Key> const ProfileParameter* lookUp(const Index& index, const Key& key, const ProfileParameter* pFallback)
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
    for (const ProfileDevice& device : devices) {
        for (const ProfileParameter& parameter : device.parameters) {
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
