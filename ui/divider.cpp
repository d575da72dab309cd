// SPDX-License-Identifier: MIT
#include "ui/divider.h"

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
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.18F);
    QPainter(this).fillRect(rect(), line);
}

} // namespace quillon
