// SPDX-License-Identifier: MIT
#pragma once

#include "ui/windows/window_placement.h"

#include <QString>

#include <optional>

namespace quillon {

// The file that remembers the main window's placement between runs, which is no setting:
// $XDG_STATE_HOME/Quillon/window, in ~/.local/state where the variable names no absolute path.
QString windowStateFile();

// What the file holds. None where it is missing, is no regular file or holds anything but what
// writeWindowState() writes.
std::optional<WindowPlacement> readWindowState(const QString& path);

// Replaces the file as a whole, with its folder where that is missing. False where that cannot be
// done; nothing but the memory is lost then. Never touches what is not a regular file.
bool writeWindowState(const QString& path, const WindowPlacement& placement);

} // namespace quillon
