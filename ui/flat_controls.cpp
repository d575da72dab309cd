// SPDX-License-Identifier: MIT
#include "ui/flat_controls.h"

#include <QPainter>
#include <QStyleOption>

namespace quillon {

namespace {

constexpr float kOutlineStrength = 0.22F;
constexpr double kRingWidth = 2.0;
constexpr double kGrooveThickness = 4.0;
constexpr double kHandleDiameter = 14.0;

QColor inkOf(const QStyleOption& option, float strength)
{
    QColor ink = option.palette.color(QPalette::WindowText);
    ink.setAlphaF(strength);
    return ink;
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

void drawButtonGround(QPainter& painter, const QStyleOption& button)
{
    const bool isEnabled = button.state.testFlag(QStyle::State_Enabled);
    const bool isHeld = button.state.testFlag(QStyle::State_Sunken);
    const bool isHovered = isEnabled && button.state.testFlag(QStyle::State_MouseOver);
    drawRounded(painter, QRectF(button.rect), button.palette.color(QPalette::Button),
                inkOf(button, isEnabled ? kOutlineStrength : kOutlineStrength / 2));
    if (isHeld || isHovered) {
        drawRounded(painter, QRectF(button.rect), inkOf(button, isHeld ? 0.16F : 0.06F), Qt::NoPen);
    }
}

void drawFieldGround(QPainter& painter, const QStyleOption& field)
{
    drawRounded(painter, QRectF(field.rect), field.palette.color(QPalette::Base),
                inkOf(field, kOutlineStrength));
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
    painter.setBrush(inkOf(slider, kOutlineStrength));
    painter.drawRoundedRect(groove, kGrooveThickness / 2, kGrooveThickness / 2);
    painter.setBrush(isEnabled ? slider.palette.color(QPalette::Highlight) : inkOf(slider, 0.3F));
    painter.drawRoundedRect(filled, kGrooveThickness / 2, kGrooveThickness / 2);

    constexpr double kRadius = kHandleDiameter / 2;
    painter.setPen(inkOf(slider, 0.35F));
    painter.setBrush(isEnabled ? QColor(Qt::white) : slider.palette.color(QPalette::Button));
    painter.drawEllipse(QPointF(knobMiddle, middle), kRadius - 0.5, kRadius - 0.5);
    painter.restore();
}

void drawFocusRing(QPainter& painter, const QRect& around, const QPalette& palette)
{
    constexpr double kInset = kRingWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Link), kRingWidth));
    painter.drawRoundedRect(QRectF(around).adjusted(kInset, kInset, -kInset, -kInset),
                            kControlRadius, kControlRadius);
    painter.restore();
}

} // namespace quillon
