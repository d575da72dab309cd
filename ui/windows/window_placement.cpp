// SPDX-License-Identifier: MIT
#include "ui/windows/window_placement.h"

#include <algorithm>

namespace quillon {

namespace {

// The title bar and edges of the usual window managers, in pixels.
constexpr QSize kFrameSize(12, 44);

} // namespace

QSize roomFor(QSize usable)
{
    return (usable - kFrameSize).expandedTo(QSize(1, 1));
}

WindowPlacement fittedTo(const WindowPlacement& placement, const QRect& usable)
{
    WindowPlacement fitted = placement;
    fitted.size = placement.size.boundedTo(roomFor(usable.size()));
    if (fitted.position) {
        const QSize outside = fitted.size + kFrameSize;
        const auto within = [](int at, int low, int high) {
            return std::clamp(at, low, std::max(low, high));
        };
        fitted.position->setX(within(placement.position->x(), usable.left(),
                                     usable.left() + usable.width() - outside.width()));
        fitted.position->setY(within(placement.position->y(), usable.top(),
                                     usable.top() + usable.height() - outside.height()));
    }
    return fitted;
}

} // namespace quillon
