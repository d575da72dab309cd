// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

class LogTextView;

// Lets assistive programs read LogTextViews as texts. Harmless when done again.
void installLogTextAccessibility();

// Tells them that a view's text has been replaced.
void announceReplacedLogText(LogTextView& view);

} // namespace quillon
