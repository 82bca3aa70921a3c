#include "project/Project.h"

#include "app/Console.h"
#include "profile/Profile.h"
#include "project/FormulaXml.h"

namespace ZARN {

namespace {

constexpr const char* kParameters = "Parameters";
constexpr const char* kCanProperties = "CanProperties";

/// Calls `visit` with every child element of that name.
template <typename Visitor> void forEachChild(const QDomElement& parent, const char* name, Visitor visit)
{
    const QString wanted = QString::fromLatin1(name);
    for (QDomElement child = parent.firstChildElement(wanted); !child.isNull(); child = child.nextSiblingElement(wanted))
        visit(child);
}

} // namespace

Project& Project::instance()
{
    static Project project(Console::standardOutput(), Profile::instance());
    return project;
}

void Project::clear()
{
    mNames.clear();
    mCanProperties.clear();
    mProfile.setFormulas({});
}

bool Project::readProject(const QString& path)
{
    QDomDocument document;
    if (!mFile.read(document, path))
        return false;
    readRoot(document.documentElement());
    setProfileData();
    return true;
}

void Project::readRoot(const QDomElement& root)
{
    const XmlHandler xml(mConsole);
    const auto text = [&xml](const QDomElement& element, const char* attribute) {
        return xml.xmlGetStdStringAttribute(element.attributes(), QString::fromLatin1(attribute), {});
    };
    // Lists that stand in the file more than once add up.
    if (!root.firstChildElement(kParameters).isNull())
        mNames.clear();
    if (!root.firstChildElement(kCanProperties).isNull())
        mCanProperties.clear();
    mProfile.setFormulas(FormulaXml(xml).read(root)); // another project's would be saved with this one
    forEachChild(root, kParameters, [&](const QDomElement& list) {
        forEachChild(list, "Parameter", [&](const QDomElement& parameter) { mNames.insert(text(parameter, "name")); });
    });
    forEachChild(root, kCanProperties, [&](const QDomElement& list) {
        forEachChild(list, "Property", [&](const QDomElement& property) { mCanProperties[text(property, "id")] = text(property, "value"); });
    });
}

bool Project::saveProject(const QString& path)
{
    takeProfileData();
    const XmlHandler xml(mConsole);
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "ZarnProject");
    QDomElement parameters = xml.xmlCreateElement(document, root, kParameters);
    for (const auto& [device, parameter] : mProfile.model().parameters()) {
        if (!mProfile.isSelected(parameter.name))
            continue;
        QDomElement element = xml.xmlCreateElement(document, parameters, "Parameter");
        xml.xmlCreateAttribute(document, element, "name", parameter.name);
    }
    QDomElement properties = xml.xmlCreateElement(document, root, kCanProperties);
    for (const auto& [id, value] : mCanProperties) {
        QDomElement element = xml.xmlCreateElement(document, properties, "Property");
        xml.xmlCreateAttribute(document, element, "id", id);
        xml.xmlCreateAttribute(document, element, "value", value);
    }
    FormulaXml(xml).write(document, root, mProfile.formulas());
    mFile.write(document, path);
    return true;
}

void Project::setProfileData()
{
    for (const auto& [device, parameter] : mProfile.model().parameters())
        mProfile.setSelected(parameter.name, mNames.contains(parameter.name));
}

void Project::takeProfileData()
{
    for (const auto& [device, parameter] : mProfile.model().parameters()) {
        if (mProfile.isSelected(parameter.name))
            mNames.insert(parameter.name);
        else
            mNames.erase(parameter.name);
    }
}

} // namespace ZARN
