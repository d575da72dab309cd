// SPDX-License-Identifier: MIT
#include "tests/window/wayland_desktop.h"

#include "tests/support/spin_until.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

namespace {

const QString kSocket = QStringLiteral("wayland-test");

} // namespace

WaylandDesktop::WaylandDesktop(QSize screen, int scale)
{
    QProcessEnvironment& environment = m_session.environment();
    m_compositor = std::make_unique<HelperProcess>(
        QStringLiteral("weston"),
        QStringList{QStringLiteral("--no-config"), QStringLiteral("--backend=headless-backend.so"),
                    QStringLiteral("--use-pixman"), QStringLiteral("--debug"),
                    QStringLiteral("--idle-time=0"), QStringLiteral("--socket=") + kSocket,
                    QStringLiteral("--width=%1").arg(screen.width()),
                    QStringLiteral("--height=%1").arg(screen.height()),
                    QStringLiteral("--scale=%1").arg(scale)},
        environment);
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), kSocket);
    environment.insert(QStringLiteral("XDG_PICTURES_DIR"), m_pictures.path(QString()));
    const QString socket =
        environment.value(QStringLiteral("XDG_RUNTIME_DIR")) + QLatin1Char('/') + kSocket;
    EXPECT_TRUE(spinUntil([&socket] { return QFile::exists(socket); }))
        << "the compositor does not come up";
    m_session.startBus();
}

QImage WaylandDesktop::picture() const
{
    const QDir folder(m_pictures.path(QString()));
    for (const QString& former : folder.entryList(QDir::Files)) {
        QFile::remove(folder.filePath(former));
    }
    outputOf(QStringLiteral("weston-screenshooter"), QStringList(), environment());
    const QStringList taken = folder.entryList(QDir::Files);
    return taken.isEmpty() ? QImage() : QImage(folder.filePath(taken.constFirst()));
}

} // namespace quillon
