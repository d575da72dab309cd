// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace quillon {

// The program's icon, drawn at whatever size and scale is asked for; at 16 and at 24 pixels it is a
// drawing of its own. Window managers are offered the sizes that desktops use. Needs no plugin of
// the toolkit's.
QIcon appIcon();

} // namespace quillon
