// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// A sentence or text for the terminal in the user's language. Its French source text is written
// with plain spaces before : ; ? ! and inside « », which become the narrow no-break spaces
// (U+202F) that belong there.
QString messageText(const char* text);

} // namespace quillon
