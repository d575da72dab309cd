// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>

#include <optional>

namespace quillon {

// The user's session bus, none where there is none. Unlike asking for the connection outright, this
// never makes the bus library start a bus of its own, which takes long and leaves a daemon behind.
std::optional<QDBusConnection> sessionBus();

} // namespace quillon
