// SPDX-License-Identifier: MIT
#pragma once

#include "app/command_line/command_line.h"
#include "app/print/terminal_color.h"

#include <QByteArray>

#include <optional>

namespace quillon {

// What the environment says of colours, each variable as it is, empty where it is not set.
struct ColorEnvironment {
    QByteArray noColor;       // NO_COLOR
    QByteArray clicolorForce; // CLICOLOR_FORCE
    QByteArray colorTerm;     // COLORTERM
    QByteArray term;          // TERM

    static ColorEnvironment ofThisProcess();
};

// How many colours the output has, none where rows are to be plain. What was asked for on the
// command line counts first; then NO_COLOR, which no script can mean by accident, then
// CLICOLOR_FORCE; else a terminal has colours unless it is "dumb".
std::optional<ColorDepth> chooseColors(ColorWhen when, bool isTerminal,
                                       const ColorEnvironment& environment);

} // namespace quillon
