// SPDX-License-Identifier: MIT
#pragma once

#include "render/color.h"

#include <QString>

#include <optional>

namespace quillon {

// The colour that a preference text means: "#RRGGBB" or "#RRGGBBAA", the "#" and white space around
// it optional. The digits are read as a hexadecimal number (with an optional "0x") up to the first
// character that is none; no colour where there is no digit or the length is another.
std::optional<Color> colorFromHex(const QString& text);

// "#RRGGBB" in upper case, each component rounded to the nearest of 256 steps, halves upwards, and
// not clamped; alpha is not written. "#000000" for a colour without components of its own.
QString hexFromColor(const Color& color);

} // namespace quillon
