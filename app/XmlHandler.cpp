#include "app/XmlHandler.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/SafeFile.h"
#include "app/XmlReader.h"

#include <QHashFunctions>

#include <array>
#include <charconv>
#include <cmath>

namespace ZARN {

namespace {

/// Text without the characters that no XML file can hold: one of them would make the whole file unreadable.
QString storable(QString text)
{
    text.removeIf([](QChar character) {
        const char16_t code = character.unicode();
        return (code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code >= 0xfffe;
    });
    return text;
}

/// Fixed notation with twelve decimals, whatever the user's locale.
QString fixedText(double value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    std::array<char, 352> buffer{}; // the largest double has 309 digits before the point
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 12);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

/// The toolkit also knows a "0b" prefix, which is none of ours.
bool hasBinaryPrefix(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'+') || text.startsWith(u'-'))
        text = text.sliced(1);
    return text.startsWith(u"0b", Qt::CaseInsensitive);
}

} // namespace

XmlHandler::XmlHandler(const Console& console) : mConsole(console)
{
    // Attributes are written in the order of a hash table. A fixed seed makes it the same on every run; tables made
    // earlier keep the seed that they were made with.
    [[maybe_unused]] static const bool fixed = [] {
        QHashSeed::setDeterministicGlobalSeed();
        return true;
    }();
}

QDomElement XmlHandler::xmlCreateElement(QDomDocument& document, QDomDocument& parent, const QString& name) const
{
    QDomElement element = document.createElement(name);
    parent.appendChild(element);
    return element;
}

QDomElement XmlHandler::xmlCreateElement(QDomDocument& document, QDomElement& parent, const QString& name) const
{
    QDomElement element = document.createElement(name);
    parent.appendChild(element);
    return element;
}

QDomText XmlHandler::xmlCreateTextElement(QDomDocument& document, QDomElement& parent, const QString& text) const
{
    QDomText node = document.createTextNode(storable(text));
    parent.appendChild(node);
    return node;
}

void XmlHandler::xmlCreateAttribute(QDomDocument&, QDomElement& element, const QString& name, const QString& value) const
{
    // An attribute node made and set by hand would stand beside one of the same name instead of replacing it.
    element.setAttribute(name, storable(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, const std::string& value) const
{
    xmlCreateAttribute(document, element, name, QString::fromStdString(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, int value) const
{
    xmlCreateAttribute(document, element, name, QString::number(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, long value) const
{
    xmlCreateAttribute(document, element, name, QString::number(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, unsigned long value) const
{
    xmlCreateAttribute(document, element, name, static_cast<long>(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, double value) const
{
    xmlCreateAttribute(document, element, name, fixedText(value));
}

void XmlHandler::xmlCreateParameter(QDomElement& element, const QString& name, const std::string& value) const
{
    element.setAttribute(name, storable(QString::fromStdString(value)));
}

QString XmlHandler::xmlGetStringAttribute(const QDomNamedNodeMap& attributes, const QString& name, const QString& fallback) const
{
    const QDomNode node = attributes.namedItem(name);
    return node.isNull() ? fallback : node.nodeValue();
}

std::string XmlHandler::xmlGetStdStringAttribute(const QDomNamedNodeMap& attributes, const QString& name, const std::string& fallback) const
{
    const QDomNode node = attributes.namedItem(name);
    return node.isNull() ? fallback : node.nodeValue().toStdString();
}

std::optional<int> XmlHandler::wholeNumber(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber, 0);
    return isNumber && !hasBinaryPrefix(text) ? std::optional(number) : std::nullopt;
}

int XmlHandler::xmlGetIntAttribute(const QDomNamedNodeMap& attributes, const QString& name, int fallback) const
{
    const QString value = attributes.namedItem(name).nodeValue();
    return value.isEmpty() ? fallback : wholeNumber(value).value_or(0);
}

double XmlHandler::xmlGetDoubleAttribute(const QDomNamedNodeMap& attributes, const QString& name, double fallback) const
{
    const QString value = attributes.namedItem(name).nodeValue();
    return value.isEmpty() ? fallback : value.toDouble();
}

bool XmlHandler::xmlGetBoolAttribute(const QDomNamedNodeMap& attributes, const QString& name, bool fallback) const
{
    const QDomNode node = attributes.namedItem(name);
    if (node.isNull())
        return fallback;
    const QString value = node.nodeValue();
    return value == QLatin1String("true") || value == QLatin1String("1");
}

bool XmlHandler::xmlWriteFile(const QDomDocument& document, const QString& path) const
{
    return xmlWriteText(document.toString(4).toStdString(), path);
}

bool XmlHandler::xmlWriteText(const std::string& text, const QString& path) const
{
    const std::string name = encodeFileName(path);
    SafeFile file(name);
    if (file.open() && file.write(text) && file.commit())
        return true;
    mConsole.print("could not open file for writing !<%s>\n", name.c_str());
    return false;
}

bool XmlHandler::xmlWriteFile(const QDomDocument& document, const QString& directory, const QString& fileName) const
{
    return xmlWriteFile(document, directory + u'/' + fileName);
}

bool XmlHandler::xmlReadFile(QDomDocument& document, const QString& path) const
{
    const std::string name = encodeFileName(path);
    XmlSource source;
    if (const auto problem = readXml(name, source)) {
        mConsole.print(problem->isUnread ? "could not open file <%s>\n" : "could not set content <%s>\n", name.c_str());
        return false;
    }
    document = source.document;
    return true;
}

bool XmlHandler::xmlReadFile(QDomDocument& document, const QString& directory, const QString& fileName) const
{
    return xmlReadFile(document, directory + u'/' + fileName);
}

} // namespace ZARN
