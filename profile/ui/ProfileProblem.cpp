#include "profile/ui/ProfileProblem.h"

#include "app/Console.h"
#include "profile/ProfileCheck.h"

#include <QCoreApplication>
#include <QDir>

namespace ZARN {

QString profileProblem(const Console& console, const QString& path)
{
    const auto problem = ProfileCheck::refusal(path);
    if (!problem)
        return {};
    const QString text = QCoreApplication::translate("ZARN::ProfileProblem", "The file %1 cannot be used as a profile. %2")
                             .arg(QDir::toNativeSeparators(path), ProfileCheck::text(*problem));
    console.print("%s\n", text.toUtf8().constData());
    return text;
}

} // namespace ZARN
