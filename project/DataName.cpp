#include "project/DataName.h"

#include "card/CardContainer.h"

#include <QCoreApplication>

namespace ZARN {

QString dataName(const CardContainer& container, int flight)
{
    const QString card = container.name().isEmpty() ? QStringLiteral("ZARN") : container.name();
    const auto cycle = container.loadedCycleNumber();
    if (!cycle)
        return card;
    // All at once: what a name contains is never taken for the next mark.
    const QString number = QString::number(*cycle);
    return flight > 0 ? QCoreApplication::translate("ZARN::DataName", "%1 cycle %2 flight %3").arg(card, number, QString::number(flight))
                      : QCoreApplication::translate("ZARN::DataName", "%1 cycle %2").arg(card, number);
}

} // namespace ZARN
