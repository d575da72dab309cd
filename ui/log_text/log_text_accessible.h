// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

class LogTextView;

// Lets assistive programs read the view as a text, and tells them what changes in it: what is new
// of the text, as changesOfLogText() has it, the selection and the caret. Each character's colours
// and weight can be asked for, and the severity of its row. To be called once for a view, before it
// is shown.
void makeAccessible(LogTextView& view);

} // namespace quillon
