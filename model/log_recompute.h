// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_line.h"
#include "render/attributed_string.h"
#include "render/line_filter.h"

#include <optional>

namespace quillon {

class UserDefaults;

// What decides which lines are shown and how, as the view model has it when a pass begins.
struct DisplayOptions {
    // The filter's search is made from the query and needs not be set.
    LineFilter filter;
    QString query;
    BaseAttributes baseAttributes;
};

// What a pass publishes.
struct DisplayedLog {
    AttributedString output;
    QString statusLine;
};

// Filters and styles all lines anew.
DisplayedLog rebuildDisplay(const LogLines& lines, const DisplayOptions& options,
                            const UserDefaults& defaults);

// Extends `output` by those of `newLines` that are shown; nothing when none is. `lineCount` is the
// number of all lines, the new ones included. Costs no more for a long log than for a short one.
std::optional<DisplayedLog> extendDisplay(const AttributedString& output, const LogLines& newLines,
                                          qint64 lineCount, const DisplayOptions& options,
                                          const UserDefaults& defaults);

} // namespace quillon
