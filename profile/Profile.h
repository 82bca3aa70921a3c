#pragma once

#include "app/XmlHandler.h"
#include "profile/FaultMatrix.h"
#include "profile/ValueDecoder.h"

#include <set>
#include <unordered_map>

namespace ZARN {

/// An installation that the profile file covers beside others.
struct ProfileVariant {
    std::string name;
    std::string color;
};

/// A device of the profile and, in file order, its parameters: the group that lists and exports walk.
struct ProfileDevice {
    std::string name;
    int identity = 0; ///< differs from that of every device loaded before
    std::vector<ProfileParameter> parameters;
};

/// Everything that a profile file declares. Replaced whole by a load.
struct ProfileModel {
    std::string version;
    std::string profileId;
    std::string name;
    std::string comment;
    std::map<std::string, UnitConversion> conversions; ///< by metric unit, "_", imperial unit
    std::vector<EnumList> enumLists;                   ///< number n stands at n - 1
    std::vector<ThresholdList> thresholdLists;         ///< the same
    std::vector<FaultMatrix> errorMatrices;
    std::vector<ProfileDevice> devices;
};

/// The loaded profile: what the recorded CAN bytes of one engine installation mean, and the decoding of records by it. The
/// desktop program has one, reached by instance(); everything else receives a reference. Not safe for two threads: decoding
/// without an own CoordinateFilter advances the shared one.
class Profile : public XmlHandler {
public:
    explicit Profile(const Console& console, EUnit unit = EUnit::eMetric);
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;
    static Profile& instance();

    /// Loads a profile file for a variant ("" for none). @return false, with the model untouched, when the file cannot be read,
    /// is not well-formed or has another root element.
    bool loadProfile(const QString& path, const std::string& variant);
    bool loadProfile(const QString& path) { return loadProfile(path, mCurrentVariant); }
    /// The same from a parsed document.
    bool loadDocument(const QDomElement& root, const std::string& variant);
    /// Reads the variants that a file declares. @return them in file order; none when the file is no profile.
    const std::vector<ProfileVariant>& loadVariants(const QString& path);
    /// Whether the document with this root element is a profile.
    [[nodiscard]] static bool isProfile(const QDomElement& root);
    /// The variants that a document declares, in its order; changes nothing.
    [[nodiscard]] std::vector<ProfileVariant> variantsOf(const QDomElement& root) const;
    bool checkVariant(const std::string& variant, const QDomNode& node) const;
    bool checkVariant(const std::string& variant, const QString& attribute) const;
    void clear();

    [[nodiscard]] const std::vector<ProfileVariant>& variants() const { return mVariants; }
    [[nodiscard]] const std::string& currentVariant() const { return mCurrentVariant; }
    void setCurrentVariant(const std::string& name) { mCurrentVariant = name; }
    void setCurrentUnit(EUnit unit);
    [[nodiscard]] EUnit currentUnit() const { return mUnit; }
    /// Changes with every load, so that views can tell a reloaded profile from the one that they show.
    [[nodiscard]] int identity() const { return mIdentity; }

    [[nodiscard]] const ProfileModel& model() const { return mModel; }
    /// The devices in file order, each with its parameters: the profile's order of every list and export column.
    [[nodiscard]] const std::vector<ProfileDevice>& data() const { return mModel.devices; }
    [[nodiscard]] const std::vector<FaultMatrix>& errorMatrices() const { return mModel.errorMatrices; }
    /// A copy of the parameter with that key, or an empty one.
    [[nodiscard]] ProfileParameter getParameterFromZarnType(const std::string& key) const;
    /// The parameter under which records of this identifier decode, or an empty one.
    [[nodiscard]] const ProfileParameter& parameter(uint32_t identifier) const;
    /// The first parameter of that name in the profile's order; null when there is none.
    [[nodiscard]] const ProfileParameter* findParameter(const std::string& name) const;

    /// Whether parameters of this name are shown; the flag belongs to the name.
    [[nodiscard]] bool isSelected(const std::string& name) const { return mSelected.contains(name); }
    void setSelected(const std::string& name, bool selected);
    void clearSelection() { mSelected.clear(); }

    double getDouble(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour, bool scale);
    double getDouble(const RecordEntry& entry, const ProfileParameter& parameter, bool scale);
    double getDouble(const RecordEntry& entry, bool scale) { return getDouble(entry, parameter(entry.id), scale); }
    /// The raw integer of the payload, by the data type code that the entry itself carries.
    [[nodiscard]] int getInt(const RecordEntry& entry, const ProfileParameter& parameter) const;
    [[nodiscard]] int getInt(const RecordEntry& entry) const { return getInt(entry, parameter(entry.id)); }
    std::string getDataString(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour);
    void getThreshold(const ProfileParameter& parameter, double value, int& state, QColor& colour) const;
    [[nodiscard]] double convertUnit(const ProfileParameter& parameter, double value) const;
    [[nodiscard]] double calcCoordinate(double value) const { return ZARN::calcCoordinate(value); }
    double calcCoordinateLat(double value) { return mFilter.latitude(value); }
    double calcCoordinateLong(double value) { return mFilter.longitude(value); }
    /// Clears both fix counts; called before every pass that decodes positions in time order.
    void resetCoordinates() { mFilter.reset(); }
    /// Always empty: labels are part of the texts of getDataString.
    [[nodiscard]] std::string getEnumValue(int list, int value) const;

    /// The resolved decoding of one parameter, for whole columns. Valid until the next load or change of unit.
    [[nodiscard]] ValueDecoder decoder(const ProfileParameter& parameter) const;
    /// The position filter that all decoding without an own one shares.
    [[nodiscard]] CoordinateFilter& sharedFilter() { return mFilter; }

private:
    void index();
    [[nodiscard]] const ThresholdList* thresholdList(int number) const;
    [[nodiscard]] const EnumList* enumList(int number) const;

    ProfileModel mModel;
    std::unordered_map<uint32_t, const ProfileParameter*> mByIdentifier;
    std::map<std::string, const ProfileParameter*> mByZarnType;
    std::vector<ProfileVariant> mVariants;
    std::string mCurrentVariant;
    std::set<std::string> mSelected;
    EUnit mUnit;
    CoordinateFilter mFilter;
    int mIdentity;
};

} // namespace ZARN
