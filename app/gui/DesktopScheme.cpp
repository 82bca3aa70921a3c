#include "app/gui/DesktopScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace ZARN {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr int kPatience = 500; // milliseconds

/// The desktops put the value into one variant or two.
QVariant inner(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopScheme::DesktopScheme(QObject* pParent) : QObject(pParent)
{
    QDBusConnection::sessionBus().connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                                          SLOT(slotSetting(QString, QString, QDBusVariant)));
}

std::optional<bool> DesktopScheme::isDark()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return {};
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question << QString::fromLatin1(kGroup) << QString::fromLatin1(kKey);
    const QDBusMessage answer = bus.call(question, QDBus::Block, kPatience);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        return {};
    enum { eNoPreference, eDark, eLight };
    const uint scheme = inner(answer.arguments().front()).toUInt();
    return scheme == eDark || scheme == eLight ? std::optional(scheme == eDark) : std::nullopt;
}

void DesktopScheme::slotSetting(const QString& group, const QString& key, const QDBusVariant& /*value*/)
{
    if (group == QLatin1String(kGroup) && key == QLatin1String(kKey))
        Q_EMIT signalChanged();
}

} // namespace ZARN
