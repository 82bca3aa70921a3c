#include "profile/ProfileXml.h"

#include "app/Console.h"

#include <QStringList>

#include <set>

namespace ZARN {

namespace {

constexpr const char* kRootName = "CanAerospaceProfile";

} // namespace

bool ProfileXml::isProfile(const QDomElement& root)
{
    return root.tagName() == QLatin1String(kRootName);
}

std::vector<ProfileVariant> ProfileXml::variantsOf(const QDomElement& root) const
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

bool ProfileXml::checkVariant(const std::string& variant, const QDomNode& node) const
{
    return checkVariant(variant, xmlGetStringAttribute(node.attributes(), "variant", ""));
}

bool ProfileXml::checkVariant(const std::string& variant, const QString& attribute) const
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

} // namespace ZARN
