#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <string>

namespace ZARN {

/// Names a CAN interface: the toolkit's plugin and what that plugin calls the interface, written "PLUGIN:INTERFACE".
struct BusAddress {
    Q_DECLARE_TR_FUNCTIONS(ZARN::BusAddress)

public:
    QString plugin;
    QString interface;

    /// @param problem what is wrong with the text, with the plugins that are there; else empty.
    [[nodiscard]] static BusAddress parse(const QString& text, QString& problem);
    [[nodiscard]] QString text() const { return plugin + ":" + interface; }
    /// Whether nothing but programs can be on such a bus.
    [[nodiscard]] bool isVirtual() const { return plugin == "virtualcan"; }
    /// By name.
    [[nodiscard]] static QStringList plugins();
    /// What a plugin finds on this machine.
    [[nodiscard]] static QStringList interfaces(const QString& plugin);
};

} // namespace ZARN
