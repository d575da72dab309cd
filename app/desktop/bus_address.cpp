// SPDX-License-Identifier: MIT
#include "app/desktop/bus_address.h"

#include <QFile>
#include <QList>

namespace quillon {

namespace {

constexpr QByteArrayView kSocketTransport("unix:");

} // namespace

std::optional<QByteArray> sessionBusAddress()
{
    const QByteArray named = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!named.isEmpty()) {
        return named.startsWith("autolaunch:") ? std::nullopt : std::optional(named);
    }
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray socket = runtimeFolder + "/bus";
    if (runtimeFolder.isEmpty() || !QFile::exists(QFile::decodeName(socket))) {
        return std::nullopt;
    }
    return "unix:path=" + socket.toPercentEncoding("/");
}

std::optional<QByteArray> busSocketName(const QByteArray& address)
{
    const QByteArray first = address.split(';').constFirst();
    if (!first.startsWith(kSocketTransport)) {
        return std::nullopt;
    }
    const QList<QByteArray> options = first.sliced(kSocketTransport.size()).split(',');
    for (const QByteArray& option : options) {
        const qsizetype equals = option.indexOf('=');
        const QByteArray key = option.first(qMax(equals, 0));
        const QByteArray value = QByteArray::fromPercentEncoding(option.sliced(equals + 1));
        if (key == "path") {
            return value;
        }
        if (key == "abstract") {
            return '\0' + value;
        }
    }
    return std::nullopt;
}

} // namespace quillon
