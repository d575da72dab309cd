// SPDX-License-Identifier: MIT
#include "tests/window/test_session.h"

#include <QFile>

namespace quillon {

TestSession::TestSession()
{
    for (const char* const name :
         {"XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "WAYLAND_DISPLAY", "DISPLAY",
          "DESKTOP_SESSION", "QT_QPA_PLATFORMTHEME", "XMODIFIERS"}) {
        m_environment.remove(QString::fromLatin1(name));
    }
    QFile(m_folder.path(QString()))
        .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path(QString()));
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                         m_folder.path(QStringLiteral("config")));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
}

void TestSession::startBus()
{
    m_bus = std::make_unique<PrivateBus>(m_environment);
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_bus->address());
}

QuillonProcess::Environment TestSession::variables(const QString& platform) const
{
    QuillonProcess::Environment variables{
        {QStringLiteral("QT_QPA_PLATFORM"), platform},
        {QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1")},
        {QStringLiteral("QUILLON_APPEARANCE"), QStringLiteral("light")},
        {QStringLiteral("XDG_CURRENT_DESKTOP"), QString()},
        {QStringLiteral("QT_QPA_PLATFORMTHEME"), QString()},
    };
    // The keyboard library copies names out of the window system's messages by their length, which
    // a check of whole strings takes for reading past their end. Its leaks are told apart by who
    // asked for the memory, some calls up, through libraries without frame pointers.
    const QString asan = QStringLiteral("ASAN_OPTIONS");
    variables.append({asan, m_environment.value(asan) + QStringLiteral(":strict_string_checks=0"
                                                                       ":fast_unwind_on_malloc=0"
                                                                       ":malloc_context_size=5")});
    for (const char* const name :
         {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"}) {
        const QString variable = QString::fromLatin1(name);
        variables.append({variable, m_environment.value(variable)});
    }
    return variables;
}

} // namespace quillon
