#pragma once

#include "profile/FaultMatrix.h"
#include "profile/FormulaDefinition.h"
#include "profile/ValueDecoder.h"

#include <unordered_map>
#include <vector>

namespace ZARN {

/// A device of the profile and, in file order, its parameters: the group that lists and exports walk.
struct ProfileDevice {
    std::string name;
    int identity = 0; ///< differs from that of every device loaded before
    std::vector<ProfileParameter> parameters;
};

/// A parameter and the device that it belongs to.
struct DeviceParameter {
    const ProfileDevice& device;
    const ProfileParameter& parameter;
};

/// Everything that a profile file declares for one variant, as it is read.
struct ProfileContent {
    std::string version;
    std::string profileId;
    std::string name;
    std::string comment;
    std::string variant;                               ///< that it was read for; empty for none
    std::map<std::string, UnitConversion> conversions; ///< by metric unit, "_", imperial unit
    std::vector<EnumList> enumLists;                   ///< number n stands at n - 1
    std::vector<ThresholdList> thresholdLists;         ///< the same
    std::vector<FaultMatrix> errorMatrices;
    std::vector<ProfileDevice> devices; ///< the profile's order of every list and export column
};

/// A loaded profile: what the recorded CAN bytes of one engine installation mean. Never changes once it is made, and is shared by
/// pointers to const: whoever decodes by it, on whatever thread, holds one, and another profile is another model.
class ProfileModel : public ProfileContent {
public:
    static constexpr const char* kFormulas = "Formulas"; ///< name of the device of computed parameters

    ProfileModel() : ProfileModel(ProfileContent{}) {}
    explicit ProfileModel(ProfileContent content);
    /// What another one declares, and behind it a device of computed parameters. Those whose name is taken are left out.
    ProfileModel(const ProfileModel& base, const FormulaDefinitions& formulas);
    ProfileModel(const ProfileModel&) = delete;
    ProfileModel& operator=(const ProfileModel&) = delete;
    /// A number that no profile or device had before.
    static int nextIdentity();

    /// Differs from that of every model made before, so that views can tell a reloaded profile from the one that they show.
    [[nodiscard]] int identity() const { return mIdentity; }
    /// All parameters, in the profile's order: devices as groups, parameters in them.
    [[nodiscard]] const std::vector<DeviceParameter>& parameters() const { return mParameters; }
    /// The parameter under which records of this identifier decode, or an empty one.
    [[nodiscard]] const ProfileParameter& parameter(uint32_t identifier) const;
    /// The parameter with that key, or an empty one.
    [[nodiscard]] const ProfileParameter& ofZarnType(const std::string& key) const;
    /// The first parameter of that name in the profile's order; null when there is none.
    [[nodiscard]] const ProfileParameter* find(const std::string& name) const;

    /// The lists that a parameter names; null when it names none.
    [[nodiscard]] const ThresholdList* thresholds(const ProfileParameter& parameter) const;
    [[nodiscard]] const EnumList* labels(const ProfileParameter& parameter) const;
    /// From the parameter's metric to its imperial unit.
    [[nodiscard]] UnitConversion conversion(const ProfileParameter& parameter) const;

private:
    void index();

    std::vector<DeviceParameter> mParameters;
    std::unordered_map<uint32_t, const ProfileParameter*> mByIdentifier;
    std::unordered_map<std::string, const ProfileParameter*> mByZarnType;
    std::unordered_map<std::string, const ProfileParameter*> mByName;
    int mIdentity = nextIdentity();
};

} // namespace ZARN
