// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

namespace quillon {

// Which scroll bars stand beside a content.
struct ScrollBars {
    bool isVertical = false;
    bool isHorizontal = false;
    bool operator==(const ScrollBars&) const = default;
};

// What a scroll area has to show its content in, in points.
struct ScrollRoom {
    QSizeF area; // without scroll bars
    double verticalBarWidth = 0;
    double horizontalBarHeight = 0;

    // What is left of the area beside the scroll bars.
    [[nodiscard]] QSizeF clipBeside(ScrollBars bars) const;
};

// The scroll bars that a content of that size needs: each where the content is larger than what the
// other one leaves of the area.
ScrollBars neededScrollBars(QSizeF content, const ScrollRoom& room);

} // namespace quillon
