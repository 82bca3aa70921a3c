#include "profile/Profile.h"

#include "app/Console.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "profile/ProfileLoader.h"

namespace ZARN {

Profile::Profile(const Console& console, EUnit unit) : ProfileXml(console), mContext(std::make_shared<const ProfileModel>(), unit) {}

Profile& Profile::instance()
{
    static Profile profile(Console::standardOutput(), Settings::kUnit.get(Property::instance()) == 1 ? EUnit::eImperial : EUnit::eMetric);
    return profile;
}

bool Profile::loadProfile(const QString& path, const std::string& variant)
{
    mConsole.print("Profile::loadProfil <%s> <%s>\n", path.toUtf8().constData(), variant.c_str());
    QDomDocument document;
    return xmlReadFile(document, path) && loadDocument(document.documentElement(), variant);
}

bool Profile::loadDocument(const QDomElement& root, const std::string& variant)
{
    if (!isProfile(root))
        return false;
    mContext = {ProfileLoader(*this, variant).load(root), currentUnit()};
    return true;
}

const std::vector<ProfileVariant>& Profile::loadVariants(const QString& path)
{
    mVariants.clear();
    QDomDocument document;
    if (!xmlReadFile(document, path)) {
        mConsole.print("Profile::loadVariants Error could not load <%s>\n", path.toUtf8().constData());
        return mVariants;
    }
    const QDomElement root = document.documentElement();
    if (!isProfile(root)) {
        mConsole.print("Profile::loadVariants Not a CanAerospaceProfile");
        return mVariants;
    }
    mVariants = variantsOf(root);
    return mVariants;
}

void Profile::clear()
{
    mContext = {std::make_shared<const ProfileModel>(), currentUnit()};
}

double Profile::getDouble(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour, bool scale)
{
    const ValueDecoder decoder = mContext.decoder(parameter);
    if (!decoder.isNumeric())
        return 0.0;
    const double value = decoder.value(entry.payload, scale, mFilter);
    const ThresholdResult result = decoder.threshold(value);
    state = result.state;
    colour = result.colour;
    return decoder.toDisplayUnit(value);
}

double Profile::getDouble(const RecordEntry& entry, const ProfileParameter& parameter, bool scale)
{
    int state = 0;
    QColor colour;
    return getDouble(entry, parameter, state, colour, scale);
}

int Profile::getInt(const RecordEntry& entry, const ProfileParameter& parameter) const
{
    return ValueDecoder::integer(entry.payload, parameter);
}

std::string Profile::getDataString(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour)
{
    const ValueDecoder decoder = mContext.decoder(parameter);
    const double value = decoder.textValue(entry.payload, mFilter);
    const ThresholdResult result = decoder.textThreshold(value);
    state = result.state;
    colour = result.colour;
    return decoder.text(value);
}

void Profile::getThreshold(const ProfileParameter& parameter, double value, int& state, QColor& colour) const
{
    const ThresholdList* pList = model().thresholds(parameter);
    const ThresholdResult result = pList ? findThreshold(*pList, value) : ThresholdResult{};
    state = result.state;
    colour = result.colour;
}

double Profile::convertUnit(const ProfileParameter& parameter, double value) const
{
    return mContext.decoder(parameter).toDisplayUnit(value);
}

} // namespace ZARN
