#include "profile/Profile.h"

#include "app/Console.h"
#include "app/Property.h"
#include "card/record/ByteOrder.h"
#include "profile/ProfileLoader.h"

#include <QStringList>

namespace ZARN {

namespace {

constexpr const char* kRootName = "CanAerospaceProfile";

template <typename List> const List* listOf(const std::vector<List>& lists, int number)
{
    return number >= 1 && number <= static_cast<int>(lists.size()) ? &lists[static_cast<std::size_t>(number - 1)] : nullptr;
}

} // namespace

Profile::Profile(const Console& console, EUnit unit) : XmlHandler(console), mUnit(unit), mIdentity(ProfileLoader::nextIdentity()) {}

Profile& Profile::instance()
{
    static Profile profile(Console::standardOutput(),
                           Property::instance().getInt("Unit", 0) == 1 ? EUnit::eImperial : EUnit::eMetric);
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
    mModel = ProfileLoader(*this, variant, mUnit).load(root);
    mIdentity = ProfileLoader::nextIdentity();
    index();
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

bool Profile::isProfile(const QDomElement& root)
{
    return root.tagName() == QLatin1String(kRootName);
}

std::vector<ProfileVariant> Profile::variantsOf(const QDomElement& root) const
{
    std::vector<ProfileVariant> variants;
    for (QDomElement list = root.firstChildElement("Variants"); !list.isNull(); list = list.nextSiblingElement("Variants")) {
        for (QDomElement variant = list.firstChildElement("Variant"); !variant.isNull(); variant = variant.nextSiblingElement("Variant")) {
            variants.push_back({xmlGetStdStringAttribute(variant.attributes(), "name", ""),
                                xmlGetStdStringAttribute(variant.attributes(), "color", "")});
        }
    }
    return variants;
}

bool Profile::checkVariant(const std::string& variant, const QDomNode& node) const
{
    return checkVariant(variant, xmlGetStringAttribute(node.attributes(), "variant", ""));
}

bool Profile::checkVariant(const std::string& variant, const QString& attribute) const
{
    if (attribute.isEmpty() || variant.empty())
        return true;
    std::set<QString> included;
    std::set<QString> excluded;
    const QStringList items = attribute.split(',');
    for (const QString& item : items) {
        const QString name = item.trimmed();
        if (name.startsWith('!'))
            excluded.insert(name.mid(1));
        else
            included.insert(name);
    }
    mConsole.print("variant <%s> size %d\n", attribute.toUtf8().constData(), static_cast<int>(items.size()));
    const QString chosen = QString::fromStdString(variant);
    if (excluded.contains(chosen))
        return false;
    return included.empty() || included.contains(chosen);
}

void Profile::clear()
{
    mModel = {};
    index();
}

void Profile::index()
{
    mByIdentifier.clear();
    mByZarnType.clear();
    for (const ProfileDevice& device : mModel.devices) {
        for (const ProfileParameter& parameter : device.parameters) {
            mByIdentifier[parameter.identifier()] = &parameter;
            if (!parameter.zarnDataType.empty())
                mByZarnType[parameter.zarnDataType] = &parameter;
        }
    }
}

void Profile::setCurrentUnit(EUnit unit)
{
    mUnit = unit;
    for (ProfileDevice& device : mModel.devices) {
        for (ProfileParameter& parameter : device.parameters)
            parameter.unit = unit == EUnit::eImperial ? parameter.unitImperial : parameter.unitMetric;
    }
}

ProfileParameter Profile::getParameterFromZarnType(const std::string& key) const
{
    const auto found = mByZarnType.find(key);
    return found == mByZarnType.end() ? ProfileParameter{} : *found->second;
}

const ProfileParameter& Profile::parameter(uint32_t identifier) const
{
    static const ProfileParameter empty;
    const auto found = mByIdentifier.find(identifier);
    return found == mByIdentifier.end() ? empty : *found->second;
}

const ProfileParameter* Profile::findParameter(const std::string& name) const
{
    for (const ProfileDevice& device : mModel.devices) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (parameter.name == name)
                return &parameter;
        }
    }
    return nullptr;
}

void Profile::setSelected(const std::string& name, bool selected)
{
    if (selected)
        mSelected.insert(name);
    else
        mSelected.erase(name);
}

const ThresholdList* Profile::thresholdList(int number) const
{
    return listOf(mModel.thresholdLists, number);
}

const EnumList* Profile::enumList(int number) const
{
    return listOf(mModel.enumLists, number);
}

ValueDecoder Profile::decoder(const ProfileParameter& parameter) const
{
    std::optional<UnitConversion> conversion;
    if (mUnit == EUnit::eImperial) {
        // A pair that the profile does not declare converts to 0: nothing may pass for converted that is not.
        const auto found = mModel.conversions.find(parameter.unitMetric + "_" + parameter.unitImperial);
        conversion = found == mModel.conversions.end() ? UnitConversion{} : found->second;
    }
    return {parameter, thresholdList(parameter.thresholdList), enumList(parameter.enumList), conversion};
}

double Profile::getDouble(const RecordEntry& entry, const ProfileParameter& parameter, int& state, QColor& colour, bool scale)
{
    const ValueDecoder decoder = this->decoder(parameter);
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
    const ValueDecoder decoder = this->decoder(parameter);
    const double value = decoder.textValue(entry.payload, mFilter);
    const ThresholdResult result = decoder.textThreshold(value);
    state = result.state;
    colour = result.colour;
    std::string text;
    decoder.appendText(value, text);
    return text;
}

void Profile::getThreshold(const ProfileParameter& parameter, double value, int& state, QColor& colour) const
{
    const ThresholdList* pList = thresholdList(parameter.thresholdList);
    const ThresholdResult result = pList ? findThreshold(*pList, value) : ThresholdResult{};
    state = result.state;
    colour = result.colour;
}

double Profile::convertUnit(const ProfileParameter& parameter, double value) const
{
    return decoder(parameter).toDisplayUnit(value);
}

std::string Profile::getEnumValue(int, int) const
{
    return {};
}

} // namespace ZARN
