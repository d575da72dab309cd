// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

class AttributedString;
class LogTextView;

// Lets assistive programs read LogTextViews as texts. Harmless when done again.
void installLogTextAccessibility();

// Tells them, where there are any, what is new in a view that showed `former` before, as
// changesOfLogText() has it.
void announceChangedLogText(LogTextView& view, const AttributedString& former);

// Tells them where the selection and the caret are, if they are elsewhere than when last told.
void announceLogTextSelection(LogTextView& view);

} // namespace quillon
