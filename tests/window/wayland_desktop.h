// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/helper_process.h"
#include "tests/window/test_session.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace quillon {

// A Wayland desktop of its own for a test: a compositor whose screen is in memory, and a session
// bus. It has no keyboard and no pointer, so what is done there is done by a screen reader.
class WaylandDesktop {
public:
    // The screen's size is in the windows' own pixels, of which each takes `scale` of the screen's
    // in either direction.
    WaylandDesktop(QSize screen, int scale);

    // What a program needs to come up here.
    [[nodiscard]] QuillonProcess::Environment variables() const
    {
        return m_session.variables(QStringLiteral("wayland"));
    }
    [[nodiscard]] const QProcessEnvironment& environment() const { return m_session.environment(); }
    // What the screen looks like now.
    [[nodiscard]] QImage picture() const;

private:
    TestSession m_session;
    TemporaryFolder m_pictures;
    std::unique_ptr<HelperProcess> m_compositor;
};

} // namespace quillon
