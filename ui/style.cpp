// SPDX-License-Identifier: MIT
#include "ui/style.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace quillon {

namespace {

constexpr int kControlHeight = 26;
constexpr int kButtonPadding = 12;
constexpr double kRingWidth = 2.0;
constexpr double kRingRadius = 4.0;

// Rings on what was clicked would only distract.
bool hasKeyboardFocus(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void drawFocusRing(QPainter& painter, const QRect& around, const QPalette& palette)
{
    constexpr double kInset = kRingWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Link), kRingWidth));
    painter.drawRoundedRect(QRectF(around).adjusted(kInset, kInset, -kInset, -kInset), kRingRadius,
                            kRingRadius);
    painter.restore();
}

} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton) {
        size.rwidth() += kButtonPadding;
    }
    if (type == CT_PushButton || type == CT_LineEdit) {
        size.setHeight(std::max(size.height(), kControlHeight));
    }
    return size;
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasKeyboardFocus(*option)) {
        drawFocusRing(*painter, option->rect, option->palette);
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_Slider && hasKeyboardFocus(*option)) {
        const QRect handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
        drawFocusRing(*painter, handle, option->palette);
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) {
        // Around the whole button: what the style gives is a rectangle inside of it.
        const bool isButton = qobject_cast<const QAbstractButton*>(widget) != nullptr;
        drawFocusRing(*painter, isButton ? widget->rect() : option->rect, option->palette);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool isFramed = frame != nullptr && frame->lineWidth > 0;
    if (element == PE_PanelLineEdit && isFramed && option->state.testFlag(State_HasFocus)) {
        drawFocusRing(*painter, option->rect, option->palette);
    }
}

} // namespace quillon
