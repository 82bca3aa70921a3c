#include "project/DisplayLayout.h"

#include "app/XmlHandler.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <set>

namespace ZARN {

namespace {

constexpr const char* kRoot = "ZarnLayouts";
constexpr const char* kSingle = "single";
constexpr const char* kUnit = "unit";
constexpr double kGreatestValue = 1e12;

/// Of a value that is there, and a number that can be drawn.
std::optional<double> number(const QDomElement& element, const char* attribute)
{
    bool isNumber = false;
    const double value = element.attribute(attribute).toDouble(&isNumber);
    return isNumber && std::abs(value) <= kGreatestValue ? std::optional(value) : std::nullopt;
}

/// What two attributes say; none where they say nothing that can be drawn.
std::optional<std::pair<double, double>> span(const QDomElement& element)
{
    const std::optional<double> lower = number(element, "lower"), upper = number(element, "upper");
    return lower && upper ? std::optional(std::pair(*lower, *upper)) : std::nullopt;
}

QString colourOf(const QDomElement& element)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern("#[0-9A-Fa-f]{6}"));
    const QString colour = element.attribute("color");
    return form.match(colour).hasMatch() ? colour.toLower() : QString();
}

std::vector<DisplayLayout::Parameter> readParameters(const QDomElement& layout)
{
    std::vector<DisplayLayout::Parameter> parameters;
    std::set<std::string> names;
    for (QDomElement element = layout.firstChildElement("Parameter"); !element.isNull() && names.size() < DisplayLayout::kMostParameters;
         element = element.nextSiblingElement("Parameter")) {
        const std::string name = element.attribute("name").toStdString();
        if (name.empty() || !names.insert(name).second)
            continue;
        const double height =
            std::clamp(number(element, "height").value_or(1.0), DisplayLayout::kLeastHeight, DisplayLayout::kGreatestHeight);
        parameters.push_back({name, height, colourOf(element)});
        if (const auto values = span(element); values && values->first < values->second)
            parameters.back().scale = {values->first, values->second, element.attribute("unit")};
    }
    return parameters;
}

DisplayLayout readLayout(const QDomElement& element, const QString& language)
{
    DisplayLayout layout;
    layout.name = DisplayLayout::tidyName(element.attribute("name"));
    layout.title = DisplayLayout::tidyName(element.attribute("name." + language));
    layout.parameters = readParameters(element);
    layout.isSplit = element.attribute("mode") != kSingle;
    layout.isShared = element.attribute("scales") == kUnit;
    layout.scale = span(element.firstChildElement("Scale"));
    return layout;
}

} // namespace

QString DisplayLayout::tidyName(const QString& text)
{
    QString name;
    for (const QChar character : text.left(4 * kLongestName)) {
        if (character.isPrint() || character.isSurrogate() || character.isSpace())
            name += character;
    }
    return name.simplified().left(kLongestName).trimmed();
}

std::optional<std::vector<DisplayLayout>> readLayouts(const QDomDocument& document, const QString& language)
{
    const QDomElement root = document.documentElement();
    if (root.tagName() != kRoot)
        return std::nullopt;
    std::vector<DisplayLayout> layouts;
    for (QDomElement element = root.firstChildElement("Layout"); !element.isNull() && layouts.size() < DisplayLayout::kMostLayouts;
         element = element.nextSiblingElement("Layout")) {
        DisplayLayout layout = readLayout(element, language);
        if (!layout.name.isEmpty() && std::ranges::find(layouts, layout.name, &DisplayLayout::name) == layouts.end())
            layouts.push_back(std::move(layout));
    }
    return layouts;
}

QDomDocument layoutDocument(const std::vector<DisplayLayout>& layouts, const Console& console)
{
    const XmlHandler xml(console);
    const auto text = [](double value) { return QString::number(value, 'g', 12); };
    QDomDocument document;
    const auto writeSpan = [&](QDomElement& element, double lower, double upper) {
        xml.xmlCreateAttribute(document, element, "lower", text(lower));
        xml.xmlCreateAttribute(document, element, "upper", text(upper));
    };
    QDomElement root = xml.xmlCreateElement(document, document, kRoot);
    for (const DisplayLayout& layout : layouts) {
        QDomElement element = xml.xmlCreateElement(document, root, "Layout");
        xml.xmlCreateAttribute(document, element, "name", layout.name);
        xml.xmlCreateAttribute(document, element, "mode", QString(layout.isSplit ? "split" : kSingle));
        if (layout.isShared)
            xml.xmlCreateAttribute(document, element, "scales", QString(kUnit));
        if (layout.scale) {
            QDomElement scale = xml.xmlCreateElement(document, element, "Scale");
            writeSpan(scale, layout.scale->first, layout.scale->second);
        }
        for (const DisplayLayout::Parameter& parameter : layout.parameters) {
            QDomElement child = xml.xmlCreateElement(document, element, "Parameter");
            xml.xmlCreateAttribute(document, child, "name", parameter.name);
            if (parameter.height != 1.0)
                xml.xmlCreateAttribute(document, child, "height", text(parameter.height));
            if (!parameter.colour.isEmpty())
                xml.xmlCreateAttribute(document, child, "color", parameter.colour);
            if (parameter.scale) {
                writeSpan(child, parameter.scale->lower, parameter.scale->upper);
                xml.xmlCreateAttribute(document, child, "unit", parameter.scale->unit);
            }
        }
    }
    return document;
}

} // namespace ZARN
