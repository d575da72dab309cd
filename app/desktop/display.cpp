// SPDX-License-Identifier: MIT
#include "app/desktop/display.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {

namespace {

// The value of an option of the windowing library, which takes one dash or two.
QByteArray optionValue(const QByteArrayList& arguments, const QByteArray& name)
{
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments[i] == '-' + name || arguments[i] == "--" + name) {
            return arguments[i + 1];
        }
    }
    return QByteArray();
}

bool isPluginInstalled(const QString& pattern)
{
    QStringList folders{qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    const QStringList libraryPaths = QCoreApplication::libraryPaths();
    for (const QString& path : libraryPaths) {
        folders.append(path + QStringLiteral("/platforms"));
    }
    return std::any_of(folders.cbegin(), folders.cend(), [&pattern](const QString& folder) {
        return !folder.isEmpty() && !QDir(folder).entryList({pattern}, QDir::Files).isEmpty();
    });
}

bool isWaylandSocketAnswering()
{
    // An open connection that was handed over; it has no name.
    if (!qEnvironmentVariableIsEmpty("WAYLAND_SOCKET")) {
        return true;
    }
    QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty()) {
        name = "wayland-0";
    }
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool isConnected =
        ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(descriptor);
    return isConnected;
}

// Asks the library that the platform's plugin stands on, so that names, hosts and permissions are
// what they are for the plugin. Not linked: where it is missing there is no X for us either.
bool isXServerAnswering(const QByteArray& display)
{
    void* const library = ::dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return false;
    }
    const auto xcbConnect =
        reinterpret_cast<void* (*)(const char*, int*)>(::dlsym(library, "xcb_connect"));
    const auto xcbHasError =
        reinterpret_cast<int (*)(void*)>(::dlsym(library, "xcb_connection_has_error"));
    const auto xcbDisconnect =
        reinterpret_cast<void (*)(void*)>(::dlsym(library, "xcb_disconnect"));
    if (xcbConnect == nullptr || xcbHasError == nullptr || xcbDisconnect == nullptr) {
        return false;
    }
    void* const connection = xcbConnect(display.isEmpty() ? nullptr : display.constData(), nullptr);
    const bool isConnected = xcbHasError(connection) == 0;
    xcbDisconnect(connection);
    return isConnected;
}

bool isXReachable(const QByteArrayList& arguments)
{
    const QByteArray display = optionValue(arguments, "display");
    const bool isNamed = !display.isEmpty() || !qEnvironmentVariableIsEmpty("DISPLAY");
    return isNamed && isPluginInstalled(QStringLiteral("libqxcb.so")) &&
           isXServerAnswering(display);
}

bool isWaylandReachable()
{
    return isPluginInstalled(QStringLiteral("libqwayland*.so")) && isWaylandSocketAnswering();
}

// The library tries Wayland unasked in a session of that kind only.
bool isWaylandSession()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
}

} // namespace

bool isDisplayReachable(const QByteArrayList& arguments)
{
    QByteArray chosen = optionValue(arguments, "platform");
    if (chosen.isEmpty()) {
        chosen = qgetenv("QT_QPA_PLATFORM");
    }
    if (chosen.isEmpty()) {
        return isXReachable(arguments) || (isWaylandSession() && isWaylandReachable());
    }
    const QByteArrayList platforms = chosen.split(';');
    return std::any_of(platforms.cbegin(), platforms.cend(), [&](const QByteArray& platform) {
        const QByteArray name = platform.split(':').constFirst();
        if (name == "xcb") {
            return isXReachable(arguments);
        }
        return !name.startsWith("wayland") || isWaylandReachable();
    });
}

} // namespace quillon
