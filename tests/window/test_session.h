// SPDX-License-Identifier: MIT
#pragma once

#include "tests/app/print/quillon_process.h"
#include "tests/support/private_bus.h"
#include "tests/support/temporary_folder.h"

#include <QProcessEnvironment>
#include <QString>

#include <memory>

namespace quillon {

// What desktops have in common: folders and a session bus of their own, and none of what belongs to
// whoever runs the tests.
class TestSession {
public:
    TestSession();

    // For the programs of the desktop; more is to be added as it comes up.
    [[nodiscard]] QProcessEnvironment& environment() { return m_environment; }
    [[nodiscard]] const QProcessEnvironment& environment() const { return m_environment; }
    // To be called once what programs that the bus starts need is in the environment.
    void startBus();
    // What the program under test needs to come up here on that platform of the toolkit.
    [[nodiscard]] QuillonProcess::Environment variables(const QString& platform) const;

private:
    TemporaryFolder m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<PrivateBus> m_bus;
};

} // namespace quillon
