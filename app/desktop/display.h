// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>

namespace quillon {

// Whether there is a display for the windowing library, which ends the whole program where it finds
// none. The program's arguments and its environment choose the platform as they do for the library.
// A platform that needs no display counts as one, and so does one that is not known here: then the
// library decides.
bool isDisplayReachable(const QByteArrayList& arguments);

} // namespace quillon
