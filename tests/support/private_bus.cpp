// SPDX-License-Identifier: MIT
#include "tests/support/private_bus.h"

namespace quillon {

PrivateBus::PrivateBus(const QProcessEnvironment& environment)
    : m_daemon(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--session"), QStringLiteral("--nofork"),
                QStringLiteral("--print-address=1"),
                QStringLiteral("--address=unix:path=") + m_folder.path(QStringLiteral("bus"))},
               environment),
      m_address(QString::fromLatin1(m_daemon.readLine()))
{
}

} // namespace quillon
