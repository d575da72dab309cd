// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace quillon {

// Where a window stands and how large it is, in device-independent pixels.
struct WindowPlacement {
    // Upper left corner of the window with its frame; none where the platform tells nobody.
    std::optional<QPoint> position;
    QSize size; // of the inside; while the window is maximised, as it will be afterwards
    bool isMaximised = false;
    bool operator==(const WindowPlacement&) const = default;
};

// What a window's inside can take of a screen whose usable area has that size. How much of it a
// frame takes is not known before the window shows, so this leaves room for a thick one.
QSize roomFor(QSize usable);

// The placement made to fit the usable area of a screen: no larger than it has room for, and moved
// as little as possible until all of it is inside.
WindowPlacement fittedTo(const WindowPlacement& placement, const QRect& usable);

} // namespace quillon
