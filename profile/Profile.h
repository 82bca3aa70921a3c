#pragma once

#include "profile/DecodingContext.h"
#include "profile/ProfileXml.h"
#include "profile/Selection.h"

namespace ZARN {

/// The profile that is in force: which model was loaded for which variant, into which units records are decoded, which parameters are
/// ticked. The desktop program has one, reached by instance(). It is a front for windows and settings: what works on records takes the
/// context, and the selection where it needs one, and neither changes while it works. Only for one thread.
class Profile : public ProfileXml {
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
    void clear();

    /// The user's computed parameters, which stand behind those of whatever profile is in force.
    void setFormulas(const FormulaDefinitions& formulas);
    [[nodiscard]] const FormulaDefinitions& formulas() const { return mFormulas; }
    /// What the profile file declares, without formulas.
    [[nodiscard]] const std::shared_ptr<const ProfileModel>& loadedModel() const { return mpLoaded; }

    [[nodiscard]] const std::vector<ProfileVariant>& variants() const { return mVariants; }
    [[nodiscard]] const std::string& currentVariant() const { return mCurrentVariant; }
    void setCurrentVariant(const std::string& name) { mCurrentVariant = name; }
    void setCurrentUnit(EUnit unit) { mContext = mContext.in(unit); }
    [[nodiscard]] EUnit currentUnit() const { return mContext.unit(); }

    /// What passes over records take. The reference stays and tells what is in force; a pass copies it.
    [[nodiscard]] const DecodingContext& context() const { return mContext; }
    operator const DecodingContext&() const { return mContext; }
    [[nodiscard]] const ProfileModel& model() const { return mContext.model(); }
    [[nodiscard]] int identity() const { return model().identity(); }
    [[nodiscard]] const std::vector<ProfileDevice>& data() const { return model().devices; }
    /// A copy of the parameter with that key, or an empty one.
    [[nodiscard]] ProfileParameter getParameterFromZarnType(const std::string& key) const { return model().ofZarnType(key); }

    [[nodiscard]] const Selection& selection() const { return mSelection; }
    [[nodiscard]] bool isSelected(const std::string& name) const { return mSelection.contains(name); }
    void setSelected(const std::string& name, bool selected) { mSelection.set(name, selected); }
    void clearSelection() { mSelection.clear(); }

    double getDouble(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour, bool scale);
    double getDouble(const RecordEntry& entry, const ProfileParameter& parameter, bool scale);
    double getDouble(const RecordEntry& entry, bool scale) { return getDouble(entry, model().parameter(entry.id), scale); }
    /// The raw integer of the payload, by the data type code that the entry itself carries.
    [[nodiscard]] int getInt(const RecordEntry& entry, const ProfileParameter& parameter) const;
    [[nodiscard]] int getInt(const RecordEntry& entry) const { return getInt(entry, model().parameter(entry.id)); }
    std::string getDataString(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour);
    void getThreshold(const ProfileParameter& parameter, double value, int& state, QColor& colour) const;
    [[nodiscard]] double convertUnit(const ProfileParameter& parameter, double value) const;
    [[nodiscard]] double calcCoordinate(double value) const { return ZARN::calcCoordinate(value); }
    double calcCoordinateLat(double value) { return mFilter.latitude(value); }
    double calcCoordinateLong(double value) { return mFilter.longitude(value); }
    /// Clears both fix counts of the filter that the decoders above share; called before positions are decoded in time order.
    void resetCoordinates() { mFilter.reset(); }
    /// Always empty: labels are part of the texts of getDataString.
    [[nodiscard]] std::string getEnumValue(int /*list*/, int /*value*/) const { return {}; }

private:
    void setModel(std::shared_ptr<const ProfileModel> pModel);

    std::shared_ptr<const ProfileModel> mpLoaded; // without formulas
    FormulaDefinitions mFormulas;
    DecodingContext mContext;
    Selection mSelection;
    std::vector<ProfileVariant> mVariants;
    std::string mCurrentVariant;
    CoordinateFilter mFilter;
};

} // namespace ZARN
