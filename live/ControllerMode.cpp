#include "live/ControllerMode.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

namespace ZARN {

namespace {

constexpr int kPatience = 1000; // milliseconds

/// Where users without rights of administration do not look.
QString programOfLinks()
{
    const QString found = QStandardPaths::findExecutable("ip");
    return found.isEmpty() ? QStandardPaths::findExecutable("ip", {"/usr/sbin", "/sbin"}) : found;
}

} // namespace

EConfirming confirming(const BusAddress& address)
{
    if (address.isVirtual())
        return EConfirming::eNever;
    const QString program = programOfLinks();
    if (address.plugin != "socketcan" || program.isEmpty())
        return EConfirming::eUnknown;
    QProcess process;
    process.start(program, {"-details", "-json", "link", "show", "dev", address.interface}, QIODevice::ReadOnly);
    if (process.waitForFinished(kPatience))
        return confirmingOf(process.readAllStandardOutput());
    process.kill();
    process.waitForFinished(kPatience);
    return EConfirming::eUnknown;
}

EConfirming confirmingOf(const QByteArray& links)
{
    const QJsonObject info = QJsonDocument::fromJson(links).array().first().toObject().value("linkinfo").toObject();
    const QString kind = info.value("info_kind").toString();
    if (kind == "vcan" || kind == "vxcan")
        return EConfirming::eNever;
    if (kind != "can")
        return EConfirming::eUnknown;
    // Only the modes that are on are listed; without any there is no list.
    const bool isListenOnly = info.value("info_data").toObject().value("ctrlmode").toArray().contains("LISTEN-ONLY");
    return isListenOnly ? EConfirming::eNever : EConfirming::eAlways;
}

} // namespace ZARN
