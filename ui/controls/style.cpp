// SPDX-License-Identifier: MIT
#include "ui/controls/style.h"

#include "ui/controls/flat_controls.h"
#include "ui/controls/slim_scroll_bar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace quillon {

namespace {

constexpr int kControlHeight = 26;
constexpr int kButtonPadding = 12;

// Rings on what was clicked would only distract.
bool hasKeyboardFocus(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
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
    // A field without a frame is part of something else, which gives it its room.
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool isFramedField = type == CT_LineEdit && frame != nullptr && frame->lineWidth > 0;
    if (type == CT_PushButton || isFramedField) {
        size.setHeight(std::max(size.height(), kControlHeight));
    }
    return size;
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_ScrollBarExtent ? kScrollBarThickness
                                        : QProxyStyle::pixelMetric(metric, option, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const
{
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return control == CC_ScrollBar && slider != nullptr
               ? scrollBarPart(*slider, part)
               : QProxyStyle::subControlRect(control, option, part, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && item != nullptr &&
        item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty()) {
        drawMenuSeparator(*painter, option->rect, option->palette);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasKeyboardFocus(*option)) {
        drawFocusRing(*painter, option->rect, option->palette);
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const
{
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider != nullptr) {
        drawScrollBar(*painter, *slider, widget);
        return;
    }
    const bool isPlainSlider = control == CC_Slider && slider != nullptr &&
                               slider->orientation == Qt::Horizontal &&
                               slider->tickPosition == QSlider::NoTicks;
    if (!isPlainSlider) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QRect handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
    drawSlider(*painter, *option, handle);
    if (hasKeyboardFocus(*option)) {
        drawFocusRing(*painter, handle, option->palette);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const
{
    // Pictures beside "open" and "cancel" say nothing that the words do not say.
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon Style::standardIcon(StandardPixmap kind, const QStyleOption* option,
                          const QWidget* widget) const
{
    // A menu bar asks for it when it is made, which would have the picture and a library to read it
    // loaded before the window shows; it is for menus that do not fit, and ours do.
    return kind == SP_ToolBarHorizontalExtensionButton
               ? QIcon()
               : QProxyStyle::standardIcon(kind, option, widget);
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
    if (element == PE_PanelMenu) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        drawMenuEdge(*painter, option->rect, option->palette);
        return;
    }
    if (element == PE_PanelScrollAreaCorner) {
        painter->fillRect(option->rect, scrollBarBackground(option->palette, widget));
        return;
    }
    if (element == PE_PanelButtonCommand) {
        drawButtonBackground(*painter, *option);
        return;
    }
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_PanelLineEdit && frame != nullptr && frame->lineWidth > 0) {
        drawFieldBackground(*painter, *option);
        if (option->state.testFlag(State_HasFocus)) {
            drawFocusRing(*painter, option->rect, option->palette);
        }
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void applyAppearance(QApplication& application, const PaletteStyle& style, double textScale)
{
    if (qobject_cast<Style*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new Style);
    }
    application.setPalette(paletteFor(style));
    application.setFont(interfaceFont(textScale));
    // The toolkit tells them only while the event loop runs.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(widget, &change);
    }
}

} // namespace quillon
