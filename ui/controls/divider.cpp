// SPDX-License-Identifier: MIT
#include "ui/controls/divider.h"

#include "ui/theme/palette.h"

#include <QPainter>

namespace quillon {

Divider::Divider(Qt::Orientation orientation, QWidget* parent) : QWidget(parent)
{
    if (orientation == Qt::Horizontal) {
        setFixedHeight(1);
    } else {
        setFixedWidth(1);
    }
}

void Divider::paintEvent(QPaintEvent* /*event*/)
{
    constexpr float kStrength = 0.18F;
    QPainter(this).fillRect(rect(), outlineColor(palette(), kStrength));
}

} // namespace quillon
