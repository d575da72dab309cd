// SPDX-License-Identifier: MIT
#pragma once

#include "render/text_attributes.h"

#include <QByteArray>

#include <cstdint>

namespace quillon {

// How many colours a terminal has.
enum class ColorDepth : std::uint8_t { Ansi16, Indexed256, TrueColor };

// The terminal's colours, as COLORTERM and TERM tell: 24-bit for "truecolor" or "24bit" in the one
// or a name like "xterm-direct" in the other, 256 for a name like "xterm-256color", else the 16
// that every terminal with colours has.
ColorDepth colorDepthOf(const QByteArray& colorTerm, const QByteArray& term);

// The parameters of the terminal's "select graphic rendition" sequence (ECMA-48, 8.3.117) for a
// run's style, without "ESC [" and "m"; empty for the terminal's plain text. Fixed colours lose
// their alpha. System colours become the terminal's own ones, which the user has set up to be
// legible there, and a search match is shown in reverse video, which stands out on any background.
QByteArray graphicRendition(const RunAttributes& attributes, ColorDepth depth);

// The entry of the 256-colour palette that is nearest to the components (each from 0 to 255), from
// 16 on: what the first 16 look like is up to the terminal.
int nearestPaletteEntry(int red, int green, int blue);

} // namespace quillon
