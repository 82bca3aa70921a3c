#include "profile/ProfileCheck.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "profile/ProfileFields.h"
#include "profile/ProfileForm.h"
#include "profile/ProfileLinks.h"

#include <QCoreApplication>

namespace ZARN {

namespace {

QStringList declaredVariants(const ProfileXml& reader, const QDomElement& root, ProfileFindings& findings)
{
    QStringList names;
    for (const ProfileVariant& variant : reader.variantsOf(root)) {
        const QString name = QString::fromStdString(variant.name);
        if (names.contains(name))
            findings.warn(root.firstChildElement("Variants"), {}, "The variant " + quoted(name) + " is declared twice.");
        else if (!name.isEmpty())
            names << name;
        if (names.size() == ProfileCheck::kMostVariants) {
            findings.warn(root.firstChildElement("Variants"), {},
                          QString("Only the first %1 variants are checked.").arg(ProfileCheck::kMostVariants));
            break;
        }
    }
    return names;
}

} // namespace

std::optional<ProfileProblem> ProfileCheck::read(const QString& path, XmlSource& source)
{
    if (const auto problem = readXml(encodeFileName(path), source))
        return ProfileProblem{problem->line, problem->column, true, problem->text};
    const QDomElement root = source.document.documentElement();
    if (ProfileXml::isProfile(root))
        return std::nullopt;
    const TextPlace place = XmlPlaces(source.text, root).of(root);
    const char* const text =
        QT_TRANSLATE_NOOP("ZARN::ProfileCheck", "It is no profile: its first element is <%1>, another one than <CanAerospaceProfile>.");
    return ProfileProblem{place.line, place.column, true,
                          QCoreApplication::translate("ZARN::ProfileCheck", text).arg(root.tagName().left(60))};
}

std::optional<ProfileProblem> ProfileCheck::refusal(const QString& path)
{
    XmlSource source;
    return read(path, source);
}

std::vector<ProfileProblem> ProfileCheck::problems(const QString& path)
{
    XmlSource source;
    if (const auto problem = read(path, source))
        return {*problem};
    const QDomElement root = source.document.documentElement();
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    const ProfileXml reader(silent);
    ProfileFindings findings(source.text, root);
    const QStringList variants = declaredVariants(reader, root, findings);
    ProfileForm(findings, variants).check(root);
    ProfileFields fields(findings);
    for (QDomElement device = root.firstChildElement("Device"); !device.isNull(); device = device.nextSiblingElement("Device"))
        fields.checkDevice(device);
    if (variants.isEmpty())
        ProfileLinks(findings, reader, {}).check(root);
    for (int i = 0; i < variants.size(); ++i) {
        findings.setVariant(i);
        ProfileLinks(findings, reader, variants[i].toStdString()).check(root);
    }
    return findings.problems(variants);
}

QString ProfileCheck::text(const ProfileProblem& problem)
{
    if (problem.line == 0)
        return problem.text;
    const char* const text = QT_TRANSLATE_NOOP("ZARN::ProfileCheck", "Line %1, column %2: %3");
    return QCoreApplication::translate("ZARN::ProfileCheck", text).arg(problem.line).arg(problem.column).arg(problem.text);
}

} // namespace ZARN
