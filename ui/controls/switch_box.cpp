// SPDX-License-Identifier: MIT
#include "ui/controls/switch_box.h"

#include "ui/controls/flat_controls.h"

#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr QSizeF kTrackSize(34, 20);
constexpr int kRingMargin = 4;
constexpr int kGap = 8;

} // namespace

SwitchBox::SwitchBox(const QString& text, QWidget* parent) : QCheckBox(text, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize SwitchBox::sizeHint() const
{
    const int textWidth = fontMetrics().horizontalAdvance(text());
    const int height = std::max(fontMetrics().height(), static_cast<int>(kTrackSize.height()));
    return {textWidth + kGap + static_cast<int>(kTrackSize.width()) + kRingMargin,
            height + 2 * kRingMargin};
}

void SwitchBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter, text());
    paintTrack(painter);
    if (hasFocus()) {
        const QRectF ring = trackRect().adjusted(-3.5, -3.5, 3.5, 3.5);
        drawFocusRing(painter, ring, palette(), ring.height() / 2);
    }
}

bool SwitchBox::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

QRectF SwitchBox::trackRect() const
{
    const double left = isRightToLeft() ? kRingMargin : width() - kTrackSize.width() - kRingMargin;
    return {QPointF(left, (height() - kTrackSize.height()) / 2), kTrackSize};
}

void SwitchBox::paintTrack(QPainter& painter) const
{
    const QRectF track = trackRect();
    const double radius = track.height() / 2;
    // A grey that stands out from the window by 3:1 or more in either appearance.
    QColor off = palette().color(QPalette::WindowText);
    off.setAlphaF(0.5F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? palette().color(QPalette::Highlight) : off);
    painter.drawRoundedRect(track, radius, radius);

    const bool isKnobRight = isChecked() != isRightToLeft();
    const double inset = isDown() ? 3.0 : 2.0;
    const double knob = track.height() - 2 * inset;
    const double x = isKnobRight ? track.right() - inset - knob : track.left() + inset;
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(x, track.top() + inset, knob, knob));
}

} // namespace quillon
