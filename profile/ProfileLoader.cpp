#include "profile/ProfileLoader.h"

#include "profile/CanasType.h"

namespace ZARN {

namespace {

int errorType(const std::string& name)
{
    return name == "Info" ? eErrorInfo : name == "Warning" ? eErrorWarning : name == "Fault" ? eErrorFault : eErrorNone;
}

int thresholdState(const std::string& name)
{
    return name == "WARNING" ? eThresholdWarning : name == "LIMIT" ? eThresholdLimit : eThresholdOk;
}

int numberOf(const std::map<std::string, int>& numbers, const std::string& name)
{
    const auto found = numbers.find(name);
    return found == numbers.end() ? 0 : found->second;
}

} // namespace

std::shared_ptr<const ProfileModel> ProfileLoader::load(const QDomElement& root)
{
    mContent.version = text(root, "version");
    mContent.profileId = text(root, "profileId");
    mContent.name = text(root, "name");
    mContent.comment = text(root, "comment");
    mContent.variant = mVariant;
    forEachChild(root, "", [this](const QDomElement& child) {
        if (child.tagName() == "UnitConversions")
            readUnits(child);
        else if (child.tagName() == "EnumList")
            readEnums(child);
        else if (child.tagName() == "ThresholdList")
            readThresholds(child);
        else if (child.tagName() == "Device")
            readDevice(child);
    });
    linkErrorMatrices();
    return std::make_shared<const ProfileModel>(std::move(mContent));
}

template <typename Visitor> void ProfileLoader::forEachChild(const QDomElement& parent, const char* name, Visitor visit) const
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (mXml.checkVariant(mVariant, child) && (*name == '\0' || child.tagName() == QLatin1String(name)))
            visit(child);
    }
}

std::string ProfileLoader::text(const QDomElement& element, const char* attribute) const
{
    return mXml.xmlGetStdStringAttribute(element.attributes(), QLatin1String(attribute), "");
}

void ProfileLoader::readUnits(const QDomElement& element)
{
    forEachChild(element, "Unit", [this](const QDomElement& unit) {
        const QDomNamedNodeMap attributes = unit.attributes();
        mContent.conversions[text(unit, "unitMetric") + "_" + text(unit, "unitImperial")] = {
            mXml.xmlGetDoubleAttribute(attributes, "factor", 0.0), mXml.xmlGetDoubleAttribute(attributes, "offset", 0.0)};
    });
}

void ProfileLoader::readEnums(const QDomElement& element)
{
    forEachChild(element, "Enum", [this](const QDomElement& list) {
        EnumList& labels = mContent.enumLists.emplace_back();
        mEnumNumbers[text(list, "name")] = static_cast<int>(mContent.enumLists.size());
        forEachChild(list, "Value", [&](const QDomElement& value) {
            labels[mXml.xmlGetIntAttribute(value.attributes(), "val", 0)] = text(value, "label");
        });
    });
}

void ProfileLoader::readThresholds(const QDomElement& element)
{
    forEachChild(element, "Threshold", [this](const QDomElement& list) {
        ThresholdList& thresholds = mContent.thresholdLists.emplace_back();
        mThresholdNumbers[text(list, "name")] = static_cast<int>(mContent.thresholdLists.size());
        forEachChild(list, "Value", [&](const QDomElement& value) {
            thresholds.push_back({mXml.xmlGetDoubleAttribute(value.attributes(), "val", 0.0),
                                  QColor::fromString(mXml.xmlGetStringAttribute(value.attributes(), "color", "")),
                                  thresholdState(text(value, "state"))});
        });
    });
}

void ProfileLoader::readDevice(const QDomElement& element)
{
    mContent.devices.push_back({text(element, "name"), ProfileModel::nextIdentity(), {}});
    forEachChild(element, "", [this](const QDomElement& child) {
        if (child.tagName() == "ErrorMatrix") {
            readErrorMatrix(child);
        } else if (child.tagName() == "Parameter") {
            ProfileDevice& device = mContent.devices.back();
            device.parameters.push_back(readParameter(child, device.name));
            noteFaultBit(device.parameters.back());
        }
    });
}

void ProfileLoader::readErrorMatrix(const QDomElement& element)
{
    mContent.errorMatrices.push_back({mXml.xmlGetIntAttribute(element.attributes(), "id", 0), text(element, "name"), {}});
}

ProfileParameter ProfileLoader::readParameter(const QDomElement& element, const std::string& device) const
{
    const QDomNamedNodeMap attributes = element.attributes();
    const auto integer = [&](const char* name, int fallback) { return mXml.xmlGetIntAttribute(attributes, QLatin1String(name), fallback); };
    const auto number = [&](const char* name, double fallback) {
        return mXml.xmlGetDoubleAttribute(attributes, QLatin1String(name), fallback);
    };
    ProfileParameter parameter;
    parameter.name = text(element, "name");
    parameter.path = device + "/" + parameter.name;
    parameter.unitMetric = text(element, "unitMetric");
    parameter.unitImperial = text(element, "unitImperial");
    parameter.viewId = text(element, "viewId");
    parameter.dataType = canasType(text(element, "dataType"));
    parameter.zarnDataType = text(element, "zarnDataType");
    parameter.enumList = numberOf(mEnumNumbers, text(element, "enumId"));
    parameter.thresholdList = numberOf(mThresholdNumbers, text(element, "thresholdId"));
    parameter.id = integer("id", 0);
    parameter.startByte = integer("startByte", 0);
    parameter.startBit = integer("startBit", 0);
    parameter.endBit = integer("endBit", 0);
    parameter.offset = number("offset", 0.0);
    parameter.factor = number("factor", 1.0);
    parameter.precision = integer("precision", 6);
    parameter.errorType = errorType(text(element, "errorType"));
    parameter.deviceIndex = static_cast<int>(mContent.devices.size());
    return parameter;
}

void ProfileLoader::noteFaultBit(const ProfileParameter& parameter)
{
    // A matrix word has no other bits, and a damaged profile may name as many as it has parameters, for each of its matrices.
    if (parameter.startBit >= 0 && parameter.startBit < FaultMatrix::kBits && !mContent.errorMatrices.empty())
        mClaims[parameter.id][parameter.startBit] = {{parameter.name, parameter.path, parameter.errorType, parameter.zarnDataType},
                                                     mContent.errorMatrices.size()};
}

void ProfileLoader::linkErrorMatrices()
{
    for (std::size_t i = 0; i < mContent.errorMatrices.size(); ++i) {
        FaultMatrix& matrix = mContent.errorMatrices[i];
        const auto claims = mClaims.find(matrix.id);
        if (claims == mClaims.end())
            continue;
        for (const auto& [bit, claim] : claims->second) {
            if (i < claim.matricesBefore) // a matrix receives only the parameters behind it
                matrix.bits[bit] = claim.bit;
        }
    }
}

} // namespace ZARN
