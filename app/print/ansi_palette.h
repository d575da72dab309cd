// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

// The parameter of "select graphic rendition" (30 to 37, 90 to 97) for the one of a terminal's 16
// colours that looks most like the components, each from 0 to 255.
int nearestAnsiForeground(int red, int green, int blue);

} // namespace quillon
