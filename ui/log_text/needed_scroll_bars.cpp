// SPDX-License-Identifier: MIT
#include "ui/log_text/needed_scroll_bars.h"

namespace quillon {

QSizeF ScrollRoom::clipBeside(ScrollBars bars) const
{
    return QSizeF(area.width() - (bars.isVertical ? verticalBarWidth : 0),
                  area.height() - (bars.isHorizontal ? horizontalBarHeight : 0))
        .expandedTo(QSizeF(0, 0));
}

ScrollBars neededScrollBars(QSizeF content, const ScrollRoom& room)
{
    ScrollBars bars;
    bars.isHorizontal = content.width() > room.area.width();
    bars.isVertical = content.height() > room.clipBeside(bars).height();
    bars.isHorizontal = content.width() > room.clipBeside(bars).width();
    bars.isVertical = content.height() > room.clipBeside(bars).height();
    return bars;
}

} // namespace quillon
