// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/helper_process.h"
#include "tests/support/temporary_folder.h"

#include <QProcessEnvironment>
#include <QString>

namespace quillon {

// A session bus of the test's own, which ends with the object. Programs that the bus starts get the
// environment.
class PrivateBus {
public:
    explicit PrivateBus(
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

    // As DBUS_SESSION_BUS_ADDRESS has it.
    [[nodiscard]] const QString& address() const { return m_address; }

private:
    TemporaryFolder m_folder;
    HelperProcess m_daemon;
    const QString m_address;
};

} // namespace quillon
