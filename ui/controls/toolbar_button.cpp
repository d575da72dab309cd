// SPDX-License-Identifier: MIT
#include "ui/controls/toolbar_button.h"

#include "ui/controls/flat_controls.h"

#include <QPainter>

namespace quillon {

namespace {

constexpr int kHeight = 30;
constexpr int kSidePadding = 7;

QColor withAlpha(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

} // namespace

ToolbarButton::ToolbarButton(Kind kind, const Content& content, QWidget* parent)
    : QToolButton(parent)
{
    setIcon(symbolIcon(content.symbol));
    setIconSize(QSize(content.symbolSize, content.symbolSize));
    setToolTip(content.toolTip);
    setAccessibleName(content.toolTip);
    setCheckable(kind == Kind::Toggle);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize ToolbarButton::sizeHint() const
{
    return {iconSize().width() + 2 * kSidePadding, kHeight};
}

void ToolbarButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackground(painter);
    paintSymbol(painter);
    paintFocusRing(painter);
}

void ToolbarButton::paintBackground(QPainter& painter) const
{
    if (!isEnabled() && !isChecked()) {
        return;
    }
    const QColor text = palette().color(QPalette::ButtonText);
    const QColor accent = palette().color(isEnabled() ? QPalette::Link : QPalette::ButtonText);
    const bool isHeld = isDown() && isEnabled();
    QColor fill = Qt::transparent;
    if (isChecked()) {
        fill = withAlpha(accent, isHeld ? 0.30F : underMouse() ? 0.22F : 0.15F);
    } else if (isHeld) {
        fill = withAlpha(text, 0.20F);
    } else if (underMouse()) {
        fill = withAlpha(text, 0.09F);
    }
    painter.setPen(isChecked() ? QPen(withAlpha(accent, 0.45F)) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kControlRadius,
                            kControlRadius);
}

void ToolbarButton::paintSymbol(QPainter& painter) const
{
    QRect place(QPoint(), iconSize());
    place.moveCenter(rect().center());
    const QIcon::Mode mode = !isEnabled()               ? QIcon::Disabled
                             : underMouse() || isDown() ? QIcon::Active
                                                        : QIcon::Normal;
    icon().paint(&painter, place, Qt::AlignCenter, mode, isChecked() ? QIcon::On : QIcon::Off);
}

void ToolbarButton::paintFocusRing(QPainter& painter) const
{
    if (!hasFocus()) {
        return;
    }
    drawFocusRing(painter, rect(), palette());
}

} // namespace quillon
