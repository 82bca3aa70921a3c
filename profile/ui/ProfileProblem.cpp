#include "profile/ui/ProfileProblem.h"

#include "profile/Profile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ZARN {

QString profileProblem(const Console& console, const QString& path)
{
    const auto text = [&path](const char* source) {
        return QCoreApplication::translate("ZARN::ProfileProblem", source).arg(QDir::toNativeSeparators(path));
    };
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable())
        return text(QT_TRANSLATE_NOOP("ZARN::ProfileProblem", "The file %1 is not there, or cannot be read."));
    QDomDocument document;
    if (!XmlHandler(console).xmlReadFile(document, path))
        return text(QT_TRANSLATE_NOOP("ZARN::ProfileProblem", "The file %1 is damaged: it is no well-formed XML."));
    if (!Profile::isProfile(document.documentElement()))
        return text(QT_TRANSLATE_NOOP("ZARN::ProfileProblem",
                                      "The file %1 is no profile: its first element is another one than <CanAerospaceProfile>."));
    return {};
}

} // namespace ZARN
