// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace quillon {

// Shows a window in front of the others and gives it the keyboard; a minimised one comes back.
void bringToFront(QWidget& window);

// Lets Escape and Ctrl+W close a window that is no document.
void addCloseShortcuts(QWidget& window);

} // namespace quillon
