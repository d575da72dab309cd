// SPDX-License-Identifier: MIT
#pragma once

#include "model/display_pass.h"

namespace quillon {

// Whole passes at one go.

// Filters and styles all lines anew.
DisplayedLog rebuildDisplay(const LogLines& lines, const DisplayOptions& options,
                            const UserDefaults& defaults);

// Extends `output` by those of `newLines` that are shown. `lineCount` is the number of all lines,
// the new ones included.
DisplayedLog extendDisplay(const AttributedString& output, const LogLines& newLines,
                           qint64 lineCount, const DisplayOptions& options,
                           const UserDefaults& defaults);

} // namespace quillon
