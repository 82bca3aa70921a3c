#include "live/BusAddress.h"

#include <QCanBus>
#include <QCanBusDeviceInfo>

namespace ZARN {

QStringList BusAddress::plugins()
{
    QStringList names = QCanBus::instance()->plugins();
    names.sort();
    return names;
}

QStringList BusAddress::interfaces(const QString& plugin)
{
    QStringList names;
    for (const QCanBusDeviceInfo& info : QCanBus::instance()->availableDevices(plugin))
        names.append(info.name());
    return names;
}

BusAddress BusAddress::parse(const QString& text, QString& problem)
{
    const qsizetype colon = text.indexOf(':');
    BusAddress address{text.left(colon), colon < 0 ? QString() : text.mid(colon + 1)};
    problem.clear();
    const QStringList known = plugins();
    const QString list = known.isEmpty() ? tr("none") : known.join(", ");
    if (colon <= 0 || address.interface.isEmpty())
        problem = tr("%1: must be PLUGIN:INTERFACE, with a plugin of: %2").arg(text, list);
    else if (!known.contains(address.plugin))
        problem = tr("%1: there is no plugin \"%2\", only: %3").arg(text, address.plugin, list);
    return address;
}

} // namespace ZARN
