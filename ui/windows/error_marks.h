// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

class LogTextView;

// Gives the log a vertical scroll bar whose track shows where its fatal and error rows are, in
// their colours, which keep a contrast of at least 3:1 with the track. New rows cost a look at each
// of them, another text a look at each of its rows; where the marks stand is worked out when the
// bar is painted.
void showErrorMarks(LogTextView& view);

} // namespace quillon
