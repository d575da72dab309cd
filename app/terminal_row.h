// SPDX-License-Identifier: MIT
#pragma once

#include "app/print_row.h"
#include "app/terminal_color.h"

#include <utility>
#include <vector>

namespace quillon {

// Writes whole rows with their runs' looks as escape sequences. The terminal is back to plain text
// before the line feed, so that no background runs on to the margin and a row that is cut out of
// the output stands on its own.
class TerminalRowFormat {
public:
    TerminalRowFormat(ColorDepth depth, ControlCharacters controls);

    void append(const AttributedRow& row, QByteArray& out);

private:
    // graphicRendition(), kept per look: a log has a dozen, and some five runs a row.
    const QByteArray& rendition(const RunAttributes& attributes);

    ColorDepth m_depth;
    ControlCharacters m_controls;
    std::vector<std::pair<RunAttributes, QByteArray>> m_renditions;
};

} // namespace quillon
