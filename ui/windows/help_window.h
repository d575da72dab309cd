// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace quillon {

// The one help window of the process. It is made when it is first shown and then kept: closing only
// hides it, so that it comes back where the user left it, at the size and scroll position it had.
class HelpWindow {
public:
    HelpWindow() = delete;

    // Brings the window to the front, making it first when there is none. Needs the QApplication.
    static void show();

    // The window, null as long as it has not been shown.
    static QWidget* window();
};

} // namespace quillon
