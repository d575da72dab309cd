// SPDX-License-Identifier: MIT
#include "ui/controls/flat_controls.h"

#include "ui/theme/palette.h"

#include <QPainter>
#include <QStyleOption>

namespace quillon {

namespace {

constexpr float kOutlineStrength = 0.22F;
constexpr float kGrooveStrength = 0.22F;
constexpr float kHandleEdgeStrength = 0.35F;
constexpr float kMenuEdgeStrength = 0.25F;
constexpr double kRingWidth = 2.0;
constexpr double kGrooveThickness = 4.0;
constexpr double kHandleDiameter = 14.0;

// The text colour, thinned.
QColor tintOf(const QStyleOption& option, float strength)
{
    QColor tint = option.palette.color(QPalette::WindowText);
    tint.setAlphaF(strength);
    return tint;
}

void drawRounded(QPainter& painter, const QRectF& rect, const QColor& fill, const QPen& outline)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), kControlRadius, kControlRadius);
    painter.restore();
}

} // namespace

void drawButtonBackground(QPainter& painter, const QStyleOption& button)
{
    const bool isEnabled = button.state.testFlag(QStyle::State_Enabled);
    const bool isHeld = button.state.testFlag(QStyle::State_Sunken);
    const bool isHovered = isEnabled && button.state.testFlag(QStyle::State_MouseOver);
    drawRounded(painter, QRectF(button.rect), button.palette.color(QPalette::Button),
                outlineColor(button.palette, isEnabled ? kOutlineStrength : kOutlineStrength / 2));
    if (isHeld || isHovered) {
        drawRounded(painter, QRectF(button.rect), tintOf(button, isHeld ? 0.16F : 0.06F),
                    Qt::NoPen);
    }
}

void drawFieldBackground(QPainter& painter, const QStyleOption& field)
{
    drawRounded(painter, QRectF(field.rect), field.palette.color(QPalette::Base),
                outlineColor(field.palette, kOutlineStrength));
}

void drawSlider(QPainter& painter, const QStyleOption& slider, const QRect& handle)
{
    const bool isEnabled = slider.state.testFlag(QStyle::State_Enabled);
    const double middle = QRectF(handle).center().y();
    const double knobMiddle = QRectF(handle).center().x();
    const QRectF groove(slider.rect.left(), middle - kGrooveThickness / 2, slider.rect.width(),
                        kGrooveThickness);
    const bool isMirrored = slider.direction == Qt::RightToLeft;
    QRectF filled = groove;
    if (isMirrored) {
        filled.setLeft(knobMiddle);
    } else {
        filled.setRight(knobMiddle);
    }

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tintOf(slider, kGrooveStrength));
    painter.drawRoundedRect(groove, kGrooveThickness / 2, kGrooveThickness / 2);
    painter.setBrush(isEnabled ? slider.palette.color(QPalette::Highlight) : tintOf(slider, 0.3F));
    painter.drawRoundedRect(filled, kGrooveThickness / 2, kGrooveThickness / 2);

    constexpr double kRadius = kHandleDiameter / 2;
    painter.setPen(outlineColor(slider.palette, kHandleEdgeStrength));
    painter.setBrush(isEnabled ? QColor(Qt::white) : slider.palette.color(QPalette::Button));
    painter.drawEllipse(QPointF(knobMiddle, middle), kRadius - 0.5, kRadius - 0.5);
    painter.restore();
}

void drawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette,
                   double cornerRadius)
{
    constexpr double kInset = kRingWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Link), kRingWidth));
    painter.drawRoundedRect(around.adjusted(kInset, kInset, -kInset, -kInset), cornerRadius,
                            cornerRadius);
    painter.restore();
}

void drawMenuEdge(QPainter& painter, const QRect& menu, const QPalette& palette)
{
    painter.save();
    painter.setPen(outlineColor(palette, kMenuEdgeStrength));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(menu.adjusted(0, 0, -1, -1));
    painter.restore();
}

void drawMenuSeparator(QPainter& painter, const QRect& item, const QPalette& palette)
{
    constexpr int kMargin = 8;
    const QRect line(item.left() + kMargin, item.center().y(), item.width() - 2 * kMargin, 1);
    painter.fillRect(line, outlineColor(palette, kMenuEdgeStrength));
}

} // namespace quillon
