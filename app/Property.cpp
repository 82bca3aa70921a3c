#include "app/Property.h"

#include "app/Console.h"
#include "app/RegularFile.h"
#include "app/XmlHandler.h"

#include <QFile>

#include <locale.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ZARN {

namespace {

constexpr std::size_t maxConfigFileSize = 32 * 1024 * 1024;

QString filePath(const std::string& path)
{
    return QFile::decodeName(path.c_str());
}

/// strtod() itself follows the user's locale, in which the decimal point may be a comma.
double leadingNumber(const std::string& text)
{
    static const locale_t cLocale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strtod_l(text.c_str(), nullptr, cLocale);
}

} // namespace

Property& Property::instance()
{
    static Property property(Console::standardOutput());
    return property;
}

bool Property::readXmlFile(const std::string& path)
{
    const XmlHandler xml(mConsole);
    QDomDocument document;
    const bool read = mFile.read(document, filePath(path));
    for (QDomElement element = document.documentElement().firstChildElement("Property"); !element.isNull();
         element = element.nextSiblingElement("Property")) {
        const QDomNamedNodeMap attributes = element.attributes();
        mProperties[xml.xmlGetStdStringAttribute(attributes, "id", {})] = xml.xmlGetStdStringAttribute(attributes, "value", {});
    }
    mConsole.print("readXmlFile <%s> %d\n", path.c_str(), read ? 1 : 0);
    return true;
}

bool Property::writeXmlFile(const std::string& path) const
{
    const XmlHandler xml(mConsole);
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "ZARN");
    for (const auto& [key, value] : mProperties) {
        if (value.empty())
            continue;
        QDomElement element = xml.xmlCreateElement(document, root, "Property");
        xml.xmlCreateAttribute(document, element, "id", key);
        xml.xmlCreateAttribute(document, element, "value", value);
    }
    return mFile.write(document, filePath(path));
}

bool Property::isUnread() const
{
    return mFile.isUnread(filePath(mConfigFile));
}

bool Property::readConfigFile(const std::string& path)
{
    mConfigFile = path;
    const auto text = readRegularFile(path, maxConfigFileSize);
    if (!text || text->size() > maxConfigFileSize)
        return false;
    mProperties.clear();
    readLines(*text);
    return true;
}

bool Property::update()
{
    const auto text = readRegularFile(mConfigFile, maxConfigFileSize);
    if (!text || text->size() > maxConfigFileSize)
        return false;
    readLines(*text);
    return true;
}

void Property::readLines(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string line(text.substr(0, end));
        if (line.ends_with('\r')) // written on another system
            line.pop_back();
        readLine(std::move(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void Property::readLine(std::string line)
{
    strip(line, " \t");
    if (line.empty() || line.front() == '#' || line.front() == ';')
        return;
    const std::size_t equals = std::min(line.find('='), line.size());
    std::string key = line.substr(0, equals);
    std::string value = line.substr(std::min(equals + 1, line.size()));
    strip(key, " \t");
    strip(value, " \t\"");
    mProperties[key] = value;
}

void Property::strip(std::string& text, std::string_view characters)
{
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string::npos) {
        text.clear();
        return;
    }
    text.erase(text.find_last_not_of(characters) + 1);
    text.erase(0, first);
}

const std::string* Property::find(const std::string& key) const
{
    const auto found = mProperties.find(key);
    return found == mProperties.end() ? nullptr : &found->second;
}

std::string Property::getString(const std::string& key, const std::string& fallback) const
{
    const std::string* value = find(key);
    return value ? *value : fallback;
}

int Property::getInt(const std::string& key, int fallback) const
{
    using Limits = std::numeric_limits<int>;
    const std::string* value = find(key);
    if (!value)
        return fallback;
    const long long number = std::strtoll(value->c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

double Property::getDouble(const std::string& key, double fallback) const
{
    const std::string* value = find(key);
    return value ? leadingNumber(*value) : fallback;
}

bool Property::getSwitch(const std::string& key, bool fallback) const
{
    const std::string* value = find(key);
    return value ? *value == "true" || *value == "TRUE" || *value == "True" : fallback;
}

void Property::setString(const std::string& key, const std::string& value)
{
    mProperties[key] = value;
}

void Property::setInt(const std::string& key, int value)
{
    mProperties[key] = std::to_string(value);
}

void Property::setDouble(const std::string& key, double value)
{
    std::array<char, 32> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 6);
    mProperties[key] = std::isnan(value) ? "nan" : std::string(buffer.data(), result.ptr);
}

void Property::setSwitch(const std::string& key, bool value)
{
    mProperties[key] = value ? "true" : "false";
}

} // namespace ZARN
