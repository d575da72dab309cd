// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/log_text_layout.h"

namespace quillon {

// The places that a caret goes to when it moves by words: where the next word begins after a place,
// and where the last one began before it. A run of punctuation is a word too. A row's end is a stop
// of its own, and beyond it comes the next row. The same place where the text ends.
TextPosition wordStartBefore(const AttributedString& text, TextPosition position);
TextPosition wordStartAfter(const AttributedString& text, TextPosition position);

} // namespace quillon
