#include "support/ProfileBuilder.h"

#include <QFile>

#include <algorithm>

namespace ZARN::Test {

namespace {

QString text(double number)
{
    return QString::number(number, 'g', 17);
}

} // namespace

ProfileBuilder::ProfileBuilder()
{
    mWriter.writeStartElement("CanAerospaceProfile");
}

void ProfileBuilder::element(const QString& name, const Attributes& attributes)
{
    mWriter.writeEmptyElement(name);
    for (const auto& [key, value] : attributes)
        mWriter.writeAttribute(key, value);
}

void ProfileBuilder::list(const QString& name, const QString& item, const QString& itemName, const std::vector<Attributes>& values)
{
    mWriter.writeStartElement(name);
    mWriter.writeStartElement(item);
    mWriter.writeAttribute("name", itemName);
    for (const Attributes& attributes : values)
        element("Value", attributes);
    mWriter.writeEndElement();
    mWriter.writeEndElement();
}

ProfileBuilder& ProfileBuilder::variants(const QStringList& names)
{
    mWriter.writeStartElement("Variants");
    for (const QString& name : names)
        element("Variant", {{"name", name}, {"color", "#000000"}});
    mWriter.writeEndElement();
    return *this;
}

ProfileBuilder& ProfileBuilder::unit(const QString& metric, const QString& imperial, double factor, double offset)
{
    mWriter.writeStartElement("UnitConversions");
    element("Unit", {{"unitMetric", metric}, {"unitImperial", imperial}, {"factor", text(factor)}, {"offset", text(offset)}});
    mWriter.writeEndElement();
    return *this;
}

ProfileBuilder& ProfileBuilder::enumeration(const QString& name, const std::vector<std::pair<int, QString>>& labels)
{
    std::vector<Attributes> values;
    for (const auto& [value, label] : labels)
        values.push_back({{"val", QString::number(value)}, {"label", label}});
    list("EnumList", "Enum", name, values);
    return *this;
}

ProfileBuilder& ProfileBuilder::thresholds(const QString& name, const std::vector<Boundary>& boundaries)
{
    std::vector<Attributes> values;
    for (const Boundary& boundary : boundaries)
        values.push_back({{"val", text(boundary.value)}, {"state", boundary.state}, {"color", boundary.colour}});
    list("ThresholdList", "Threshold", name, values);
    return *this;
}

ProfileBuilder& ProfileBuilder::device(const QString& name)
{
    if (mInDevice)
        mWriter.writeEndElement();
    mInDevice = true;
    mWriter.writeStartElement("Device");
    mWriter.writeAttribute("name", name);
    return *this;
}

ProfileBuilder& ProfileBuilder::errorMatrix(int id, const QString& name)
{
    element("ErrorMatrix", {{"id", QString::number(id)}, {"name", name}});
    return *this;
}

ProfileBuilder& ProfileBuilder::parameter(const QString& name, int id, const QString& dataType, const Attributes& more)
{
    Attributes attributes{{"name", name}, {"id", QString::number(id)}, {"dataType", dataType}, {"startByte", "4"}};
    for (const auto& [key, value] : more) {
        const auto same = std::find_if(attributes.begin(), attributes.end(), [&k = key](const auto& a) { return a.first == k; });
        if (same == attributes.end())
            attributes.emplace_back(key, value);
        else
            same->second = value;
    }
    element("Parameter", attributes);
    return *this;
}

ProfileBuilder& ProfileBuilder::faultBit(const QString& name, int id, int bit, const QString& errorType)
{
    const QString place = QString::number(bit);
    return parameter(name, id, "BLONG", {{"startBit", place}, {"endBit", place}, {"errorType", errorType}});
}

ProfileBuilder& ProfileBuilder::position(const QString& axis, int id)
{
    return parameter(axis, id, "FLOAT", {{"viewId", axis}, {"zarnDataType", axis}});
}

QByteArray ProfileBuilder::xml()
{
    if (!mClosed)
        mWriter.writeEndDocument(); // closes what is open
    mClosed = true;
    return mBytes;
}

bool ProfileBuilder::load(Profile& profile, const std::string& variant)
{
    QDomDocument document;
    return document.setContent(xml()) && profile.loadDocument(document.documentElement(), variant);
}

QString ProfileBuilder::write(const QString& folder)
{
    QFile file(folder + "/Profile.xml");
    const QByteArray bytes = xml();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", file.fileName().toUtf8().constData());
    return file.fileName();
}

} // namespace ZARN::Test
