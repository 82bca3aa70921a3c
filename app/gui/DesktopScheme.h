#pragma once

#include <QDBusVariant>
#include <QObject>

#include <optional>

namespace ZARN {

/// What the user's desktop says of light and dark where it says so on the session bus, as today's desktops do. The toolkit's platform palette
/// does not follow them all. Owned by who wants to know of changes.
class DesktopScheme : public QObject {
    Q_OBJECT

public:
    explicit DesktopScheme(QObject* pParent = nullptr);

    /// Nothing where no desktop says it, or the user has no preference. Waits for half a second at most.
    [[nodiscard]] static std::optional<bool> isDark();

Q_SIGNALS:
    void signalChanged();

private Q_SLOTS:
    void slotSetting(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace ZARN
