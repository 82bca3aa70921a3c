#include "profile/ProfileForm.h"

#include "app/XmlHandler.h"
#include "profile/CanasType.h"

#include <QColor>

#include <cmath>

namespace ZARN {

namespace {

enum EKind { eText, eWhole, eFraction, eColour, eState, eDataTypeName, eErrorTypeName, eVariantNames };

QStringList dataTypeNames()
{
    QStringList names;
    for (const char* name : canasTypeNames())
        names << name;
    return names;
}

} // namespace

/// An attribute that the reader knows, and what follows when it is left out but should not be; empty when it may be.
struct ProfileForm::Attribute {
    const char* name;
    EKind kind = eText;
    const char* missing = "";
};

struct ProfileForm::Rule {
    std::vector<Attribute> attributes;
    QStringList children;
};

/// By tag; a Value's with that of its parent before it.
const std::map<QString, ProfileForm::Rule>& ProfileForm::rules()
{
    static constexpr Attribute variant{"variant", eVariantNames};
    static const char* const unnamed = "nothing can refer to it";
    static const std::map<QString, Rule> all{
        {"CanAerospaceProfile",
         {{{"version"}, {"profileId"}, {"name"}, {"comment"}}, {"Variants", "UnitConversions", "EnumList", "ThresholdList", "Device"}}},
        {"Variants", {{}, {"Variant"}}},
        {"Variant", {{{"name", eText, "it cannot be chosen"}, {"color", eColour}}, {}}},
        {"UnitConversions", {{variant}, {"Unit"}}},
        {"Unit",
         {{{"unitMetric"},
           {"unitImperial"},
           {"factor", eFraction, "it is 0 and every value becomes the offset"},
           {"offset", eFraction},
           variant},
          {}}},
        {"EnumList", {{variant}, {"Enum"}}},
        {"Enum", {{{"name", eText, unnamed}, variant}, {"Value"}}},
        {"Enum/Value", {{{"val", eWhole, "it is 0"}, {"label", eText, "the value is shown without a name"}, variant}, {}}},
        {"ThresholdList", {{variant}, {"Threshold"}}},
        {"Threshold", {{{"name", eText, unnamed}, variant}, {"Value"}}},
        {"Threshold/Value",
         {{{"val", eFraction, "it is 0"},
           {"state", eState, "the band counts as OK"},
           {"color", eColour, "the band has no colour"},
           variant},
          {}}},
        {"Device", {{{"name", eText, "its group has no name"}, variant}, {"ErrorMatrix", "Parameter"}}},
        {"ErrorMatrix", {{{"id", eWhole, "it is 0"}, {"name", eText, "the matrix is shown without one"}, variant}, {}}},
        {"Parameter",
         {{{"name", eText, "it is listed without one"},
           {"id", eWhole, "it is 0 and no other message is read"},
           {"dataType", eDataTypeName, "it has no value"},
           {"startByte", eWhole, "it is 0, the head of the message; the data begin at byte 4"},
           {"startBit", eWhole},
           {"endBit", eWhole},
           {"factor", eFraction},
           {"offset", eFraction},
           {"precision", eWhole},
           {"unitMetric"},
           {"unitImperial"},
           {"viewId"},
           {"zarnDataType"},
           {"enumId"},
           {"thresholdId"},
           {"errorType", eErrorTypeName},
           variant},
          {}}}};
    return all;
}

void ProfileForm::element(const QDomElement& element, const QString& ruleName)
{
    const Rule& rule = rules().at(ruleName);
    unknownAttributes(element, rule);
    for (const Attribute& known : rule.attributes)
        attribute(element, known);
    children(element, rule, ruleName);
}

void ProfileForm::children(const QDomElement& parent, const Rule& rule, const QString& ruleName)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        if (rule.children.contains(tag)) {
            element(child, tag == "Value" ? ruleName + "/Value" : tag);
        } else {
            mFindings.warn(child, {},
                           "The element <" + tag.left(60) + "> is not known within <" + parent.tagName() +
                               "> and passed over, with everything in it." + isMeant(tag, rule.children));
        }
    }
    if ((ruleName == "Enum" || ruleName == "Threshold") && parent.firstChildElement("Value").isNull())
        mFindings.warn(parent, {}, thing(parent) + " has no <Value>.");
}

void ProfileForm::unknownAttributes(const QDomElement& element, const Rule& rule)
{
    QStringList known;
    for (const Attribute& attribute : rule.attributes)
        known << attribute.name;
    const QDomNamedNodeMap given = element.attributes();
    for (int i = 0; i < given.count(); ++i) {
        const QString name = given.item(i).nodeName();
        if (known.contains(name))
            continue;
        const QString outcome = name == "variant" ? " has no effect here." : " is not known and passed over." + isMeant(name, known);
        mFindings.warn(element, name, thing(element) + ": the attribute " + quoted(name) + outcome);
    }
}

void ProfileForm::attribute(const QDomElement& element, const Attribute& attribute)
{
    const QString name = attribute.name;
    const QString value = element.attribute(name);
    if (value.isEmpty()) {
        if (*attribute.missing != '\0')
            mFindings.warn(element, name, thing(element) + " has no " + quoted(name) + ": " + attribute.missing + '.');
        return;
    }
    static const QStringList types = dataTypeNames();
    switch (attribute.kind) {
    case eText: break;
    case eWhole: number(element, name, value, true); break;
    case eFraction: number(element, name, value, false); break;
    case eColour:
        if (!QColor::fromString(value).isValid())
            mFindings.warn(element, name, thing(element) + ": " + quoted(value) + " is no colour.");
        break;
    case eState: word(element, name, value, {"OK", "WARNING", "LIMIT"}, "no state, and the band counts as OK"); break;
    case eDataTypeName: word(element, name, value, types, "no data type, and the parameter has no value"); break;
    case eErrorTypeName: word(element, name, value, {"Info", "Warning", "Fault"}, "no type of error, and the bit lights nothing"); break;
    case eVariantNames: variantNames(element, value); break;
    }
}

void ProfileForm::number(const QDomElement& element, const QString& name, const QString& value, bool isWhole)
{
    const QString start = thing(element) + ": the attribute " + quoted(name) + " is " + quoted(value);
    if (isWhole) {
        const auto read = XmlHandler::wholeNumber(value);
        if (!read)
            mFindings.warn(element, name, start + ", which is no whole number of 32 bits and reads as 0.");
        else if (value.trimmed().toInt() != *read && !value.contains(u'x', Qt::CaseInsensitive))
            mFindings.warn(element, name, start + QString(" and reads as %1, for a leading 0 makes a number octal.").arg(*read));
        return;
    }
    bool isNumber = false;
    const double read = value.toDouble(&isNumber);
    if (std::isinf(read) || std::isnan(read))
        mFindings.warn(element, name, start + ", which is not finite.");
    else if (!isNumber)
        mFindings.warn(element, name,
                       start + ", which is no number and reads as 0." + (value.contains(u',') ? " Fractions use a point." : ""));
    else if (read == 0.0 && name == "factor")
        mFindings.warn(element, name, start + ": every value becomes the offset.");
}

void ProfileForm::word(const QDomElement& element, const QString& name, const QString& value, const QStringList& known,
                       const QString& outcome)
{
    if (!known.contains(value))
        mFindings.warn(element, name, thing(element) + ": " + quoted(value) + " is " + outcome + '.' + isMeant(value, known));
}

void ProfileForm::variantNames(const QDomElement& element, const QString& value)
{
    for (const QString& item : value.split(u',')) {
        const QString trimmed = item.trimmed();
        const QString name = trimmed.startsWith(u'!') ? trimmed.mid(1) : trimmed;
        if (!mVariants.contains(name))
            mFindings.warn(element, "variant",
                           thing(element) + " names the variant " + quoted(name) + ", which is not declared." + isMeant(name, mVariants));
    }
}

} // namespace ZARN
