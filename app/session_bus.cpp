// SPDX-License-Identifier: MIT
#include "app/session_bus.h"

#include <QFileInfo>

namespace quillon {

namespace {

bool isSessionBusNamed()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        return true;
    }
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
}

} // namespace

std::optional<QDBusConnection> sessionBus()
{
    if (!isSessionBusNamed()) {
        return std::nullopt;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

} // namespace quillon
