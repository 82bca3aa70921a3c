#include "profile/ProfileFields.h"

#include "app/XmlHandler.h"
#include "profile/CanasType.h"
#include "profile/ValueDecoder.h"

namespace ZARN {

namespace {

constexpr int kPayload = 8;
constexpr int kData = 4; ///< where the data of a message begin

int numberOf(const QDomElement& element, const char* attribute, int fallback = 0)
{
    const QString text = element.attribute(attribute);
    return text.isEmpty() ? fallback : XmlHandler::wholeNumber(text).value_or(0);
}

/// A key that the program looks for, and the metric unit in which it takes the values.
struct WellKnown {
    const char* key;
    const char* unit; ///< "" when any will do
};
constexpr WellKnown kWellKnown[] = {{"GroundSpeed", "km/h"}, {"ThrottleA", "%"}, {"Altitude", "m"}, {"Latitude", ""},
                                    {"Longitude", ""},       {"Track", ""},      {"FuelA", ""},     {"FuelB", ""},
                                    {"EngineSpeed", ""},     {"LaneCheck", ""}};

bool isMisspelled(const QString& text, const char* name)
{
    return text != QLatin1String(name) && text.trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

} // namespace

void ProfileFields::checkDevice(const QDomElement& device)
{
    if (isMisspelled(device.attribute("name"), "WarningLamp"))
        warn(device, "name", "is not the one of the warning lamps: that is \"WarningLamp\".");
    for (QDomElement child = device.firstChildElement("Parameter"); !child.isNull(); child = child.nextSiblingElement("Parameter"))
        parameter(child);
}

void ProfileFields::warn(const QDomElement& element, const char* attribute, const QString& text)
{
    mFindings.warn(element, attribute, thing(element) + ' ' + text);
}

void ProfileFields::parameter(const QDomElement& element)
{
    const QString type = element.attribute("dataType");
    const int code = canasType(type.toStdString());
    const int size = ValueDecoder::rawSize(code);
    const bool isField = code == eBLong || code == eBShort;
    if (size == 0 && (code != eNoData || type == "NODATA"))
        warn(element, "dataType", "has the data type " + type + ", which carries no value: it is 0 everywhere.");
    if (size > 0)
        bytes(element, size);
    if (isField)
        bits(element, size * 8);
    else if (size > 0 && numberOf(element, "endBit") != 0)
        warn(element, "endBit", "names bits, which have no effect with " + type + ": only BSHORT and BLONG are bit fields.");
    if (code == eBLong && element.attribute("enumId").isEmpty())
        warn(element, "dataType", "has the type BLONG and no \"enumId\": its text is \"Invalid ENUM Type\".");
    if (!isField && !element.attribute("enumId").isEmpty())
        warn(element, "enumId", "names an enumeration, but only BSHORT and BLONG show labels.");
    precision(element);
    wellKnown(element);
}

void ProfileFields::bytes(const QDomElement& element, int size)
{
    const int first = numberOf(element, "startByte");
    if (first < 0 || first > kPayload - size)
        warn(element, "startByte",
             QString("takes %1 bytes from byte %2 on, beyond the payload of %3: those read as 0.").arg(size).arg(first).arg(kPayload));
    else if (first < kData && !element.attribute("startByte").isEmpty())
        warn(element, "startByte",
             QString("begins at byte %1, in the head of the message: the data begin at byte %2.").arg(first).arg(kData));
}

void ProfileFields::bits(const QDomElement& element, int wordBits)
{
    const int first = numberOf(element, "startBit");
    const int last = numberOf(element, "endBit");
    if (first < 0 || first >= wordBits)
        warn(element, "startBit", QString("begins at bit %1 of a word that has the bits 0 to %2.").arg(first).arg(wordBits - 1));
    else if (last >= wordBits)
        warn(element, "endBit", QString("ends at bit %1 of a word that has the bits 0 to %2.").arg(last).arg(wordBits - 1));
    else if (last < first)
        warn(element, "endBit", QString("ends at bit %1, before its first bit %2.").arg(last).arg(first));
    for (const auto& [name, neutral] : {std::pair("factor", 1.0), {"offset", 0.0}}) {
        if (const QString text = element.attribute(name); !text.isEmpty() && text.toDouble() != neutral)
            warn(element, name, QString("is a bit field, which is never scaled: \"%1\" has no effect.").arg(name));
    }
}

void ProfileFields::precision(const QDomElement& element)
{
    const int digits = numberOf(element, "precision", 6);
    if (digits < 0 || digits > ValueDecoder::kHighestPrecision)
        warn(element, "precision",
             QString("has the precision %1, which is held to 0 to %2.").arg(digits).arg(ValueDecoder::kHighestPrecision));
}

void ProfileFields::wellKnown(const QDomElement& element)
{
    const QString key = element.attribute("zarnDataType");
    for (const WellKnown& known : kWellKnown) {
        if (isMisspelled(key, known.key))
            warn(element, "zarnDataType",
                 QString("has the key %1, which the program does not look for: it looks for \"%2\".").arg(quoted(key), known.key));
        if (key == known.key && *known.unit != '\0' && element.attribute("unitMetric") != known.unit)
            warn(element, "zarnDataType",
                 QString("is the %1, which the program takes as %2, and has the unit %3.")
                     .arg(key, known.unit, quoted(element.attribute("unitMetric"))));
    }
    for (const char* view : {"Latitude", "Longitude"}) {
        const QString viewId = element.attribute("viewId");
        if (isMisspelled(viewId, view))
            warn(element, "viewId", QString("has the view %1, which is no position: that is \"%2\".").arg(quoted(viewId), view));
        if (viewId == view && element.attribute("dataType") != "FLOAT")
            warn(element, "viewId", QString("has the view %1, but only a FLOAT is turned into degrees.").arg(viewId));
        if (key == view && viewId != view)
            warn(element, "zarnDataType", QString("is the %1 and has another view: it is not turned into degrees.").arg(key));
    }
}

} // namespace ZARN
