#include "profile/ProfileLinks.h"

namespace ZARN {

namespace {

QStringList namesOf(const std::map<QString, QDomElement>& named)
{
    QStringList names;
    for (const auto& [name, element] : named)
        names << name;
    return names;
}

QString unitPair(const QDomElement& element)
{
    return element.attribute("unitMetric") + "_" + element.attribute("unitImperial");
}

/// An identifier, as the numbers of the file may be written in several ways.
QString identifier(const QDomElement& element)
{
    return QString::number(XmlHandler::wholeNumber(element.attribute("id")).value_or(0));
}

} // namespace

std::vector<QDomElement> ProfileLinks::applied(const QDomElement& parent, const char* tag) const
{
    std::vector<QDomElement> children;
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
        if (mReader.checkVariant(mVariant, child))
            children.push_back(child);
    }
    return children;
}

void ProfileLinks::check(const QDomElement& root)
{
    collect(root);
    for (const QDomElement& child : applied(root)) {
        lists(child);
        if (child.tagName() != "Device")
            continue;
        for (const QDomElement& part : applied(child)) {
            if (part.tagName() == "ErrorMatrix")
                claim(mMatrices, identifier(part), part, "id", "both get the same bits");
            else if (part.tagName() == "Parameter")
                parameter(part);
        }
    }
}

void ProfileLinks::collect(const QDomElement& root)
{
    for (const QDomElement& list : applied(root, "UnitConversions")) {
        for (const QDomElement& unit : applied(list, "Unit"))
            claim(mUnits, unitPair(unit), unit, {}, "the later one counts");
    }
    for (const QDomElement& list : applied(root, "EnumList")) {
        for (const QDomElement& one : applied(list, "Enum"))
            mAllEnums[one.attribute("name")] = one;
    }
    for (const QDomElement& list : applied(root, "ThresholdList")) {
        for (const QDomElement& one : applied(list, "Threshold"))
            mAllThresholds[one.attribute("name")] = one;
    }
    for (const QDomElement& device : applied(root, "Device")) {
        for (const QDomElement& matrix : applied(device, "ErrorMatrix"))
            mAllMatrices[identifier(matrix)] = matrix;
    }
}

void ProfileLinks::lists(const QDomElement& child)
{
    if (child.tagName() == "EnumList") {
        for (const QDomElement& list : applied(child, "Enum"))
            enumeration(list);
    } else if (child.tagName() == "ThresholdList") {
        for (const QDomElement& list : applied(child, "Threshold"))
            thresholds(list);
    }
}

void ProfileLinks::enumeration(const QDomElement& list)
{
    claim(mEnums, list.attribute("name"), list, "name", "parameters behind it use the later one");
    Named values;
    for (const QDomElement& value : applied(list, "Value"))
        claim(values, QString::number(XmlHandler::wholeNumber(value.attribute("val")).value_or(0)), value, "val",
              "the later label is shown");
}

void ProfileLinks::thresholds(const QDomElement& list)
{
    claim(mThresholds, list.attribute("name"), list, "name", "parameters behind it use the later one");
    std::optional<double> before;
    for (const QDomElement& value : applied(list, "Value")) {
        const double boundary = value.attribute("val").toDouble();
        if (before && boundary < *before)
            mFindings.warn(value, "val", thing(value) + " stands behind a higher one, which never counts: boundaries must ascend.");
        else if (before && boundary == *before)
            mFindings.warn(value, "val", thing(value) + " stands twice: the first of the two never counts: boundaries must ascend.");
        before = boundary;
    }
}

void ProfileLinks::parameter(const QDomElement& element)
{
    claim(mNames, element.attribute("name"), element, "name", "both are shown and hidden together");
    const bool mayStandTwice = element.attribute("zarnDataType") == "LaneCheck"; // each lane has its own bit
    if (element.hasAttribute("zarnDataType") && !mayStandTwice)
        claim(mKeys, element.attribute("zarnDataType"), element, "zarnDataType", "the later one counts");
    reference(element, "enumId", mEnums, mAllEnums, "enumeration");
    reference(element, "thresholdId", mThresholds, mAllThresholds, "threshold list");
    units(element);
    if (mAllMatrices.contains(identifier(element)))
        faultBit(element);
    else
        payload(element);
}

void ProfileLinks::reference(const QDomElement& element, const QString& attribute, const Named& before, const Named& all,
                             const QString& kind)
{
    const QString name = element.attribute(attribute);
    if (name.isEmpty() || before.contains(name))
        return;
    const QString start = thing(element) + " names the " + kind + ' ' + quoted(name) + ", which ";
    if (const auto later = all.find(name); later != all.end())
        mFindings.warn(element, attribute,
                       start + QString("is declared behind it, in line %1, and so not found.").arg(mFindings.lineOf(later->second)));
    else
        mFindings.warn(element, attribute, start + "is not declared." + isMeant(name, namesOf(all)));
}

void ProfileLinks::units(const QDomElement& element)
{
    if (mUnits.contains(unitPair(element)))
        return;
    const QString attribute = element.hasAttribute("unitImperial") ? "unitImperial" : "unitMetric";
    mFindings.warn(element, attribute,
                   thing(element) + ": no conversion is declared from " + quoted(element.attribute("unitMetric")) + " to " +
                       quoted(element.attribute("unitImperial")) + ", so its values are 0 with imperial units.");
}

void ProfileLinks::payload(const QDomElement& element)
{
    const QString place =
        QStringList{identifier(element), element.attribute("startByte"), element.attribute("startBit"), element.attribute("dataType")}.join(
            u' ');
    claim(mPayloads, place, element, "id", "both show the same bytes of the same message");
    if (element.hasAttribute("errorType"))
        mFindings.warn(element, "errorType",
                       thing(element) + " has a type of error, but no error matrix has its identifier " + identifier(element) + '.');
}

void ProfileLinks::faultBit(const QDomElement& element)
{
    const QString id = identifier(element);
    if (!mMatrices.contains(id)) {
        mFindings.warn(element, {},
                       thing(element) + QString(" stands before the error matrix with its identifier, in line %1, and is no bit of it.")
                                            .arg(mFindings.lineOf(mAllMatrices.at(id))));
        return;
    }
    const int bit = XmlHandler::wholeNumber(element.attribute("startBit")).value_or(0);
    claim(mBits, id + ' ' + QString::number(bit), element, "startBit",
          QString("both claim the fault bit %1 and the later one keeps it").arg(bit));
    if (!element.hasAttribute("errorType"))
        mFindings.warn(element, {}, thing(element) + " is a fault bit without \"errorType\": it lights nothing.");
}

void ProfileLinks::claim(Named& taken, const QString& key, const QDomElement& element, const QString& attribute, const QString& outcome)
{
    const auto [first, isNew] = taken.try_emplace(key, element);
    if (!isNew && !(key.isEmpty() && !attribute.isEmpty()))
        mFindings.warn(element, attribute,
                       thing(element) + " and " + thing(first->second).replace(0, 1, "t") +
                           QString(" in line %1: %2.").arg(mFindings.lineOf(first->second)).arg(outcome));
}

} // namespace ZARN
