// SPDX-License-Identifier: MIT
#pragma once

#include "model/open_panel_request.h"

class QWidget;

namespace quillon {

// The desktop's open dialog, or our toolkit's own where the desktop has none, over a window. It is
// modal and returns when the user has decided. Without the window there is no dialog either.
OpenPanel openPanelOver(QWidget& window);

} // namespace quillon
