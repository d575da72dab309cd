// SPDX-License-Identifier: MIT
#pragma once

#include "app/print/print_row.h"
#include "app/print/terminal_color.h"

#include <QByteArray>

#include <vector>

namespace quillon {

// Writes whole rows with their runs' styles as escape sequences. The terminal is back to plain text
// before the line feed, so that no background runs on to the margin and a row that is cut out of
// the output stands on its own.
class TerminalRowFormat {
public:
    TerminalRowFormat(ColorDepth depth, ControlCharacters controls, RowNumber number);

    void append(const AttributedRow& row, QByteArray& out);

private:
    // A style as the terminal has it. The escape sequences are kept whole: a log has a dozen
    // styles, and some five runs a row.
    struct TerminalStyle {
        RunAttributes attributes;
        QByteArray parameters; // as graphicRendition() gives them
        QByteArray fromPlain;  // the sequence that leads to it from plain text
        QByteArray fromOther;  // and from any other style
    };

    const TerminalStyle& styleOf(const RunAttributes& attributes);

    ColorDepth m_depth;
    ControlCharacters m_controls;
    RowNumber m_number;
    std::vector<TerminalStyle> m_styles;
};

} // namespace quillon
