// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace quillon {

// Whether ICU compiles a pattern in a tenth of a second, as it does any that somebody has typed.
// It takes up to five milliseconds for a set of characters that goes beyond ASCII, as it looks for
// all their cases, and for each group it moves what it has compiled by then. Judged by how many of
// both there are, and so the same on every machine.
bool compilesInTime(QStringView pattern);

} // namespace quillon
