// SPDX-License-Identifier: MIT
#pragma once

#include "app/print_row.h"
#include "app/terminal_color.h"

namespace quillon {

// Appends the whole row with its runs' looks as escape sequences. The terminal is back to plain
// text before the line feed, so that no background runs on to the margin and a row that is cut out
// of the output stands on its own.
void appendTerminalRow(const AttributedRow& row, ColorDepth depth, ControlCharacters controls,
                       QByteArray& out);

} // namespace quillon
