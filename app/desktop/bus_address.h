// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace quillon {

// The address of the user's session bus as the environment has it, none where it names none. An
// address that asks for a bus to be started is none.
std::optional<QByteArray> sessionBusAddress();

// The name of the local socket that a bus address begins with, as the system takes it: a path, or
// for an abstract socket its name after a NUL. Nothing for any other way to a bus, such as one over
// the network or through a program to be started.
std::optional<QByteArray> busSocketName(const QByteArray& address);

} // namespace quillon
