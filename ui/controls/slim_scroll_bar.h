// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>
#include <QStyle>

class QPainter;
class QPalette;
class QStyleOptionSlider;
class QWidget;

namespace quillon {

// How thick a scroll bar is, in pixels.
inline constexpr int kScrollBarThickness = 12;

// The part of a scroll bar in the bar's own coordinates. There are no arrow buttons: the groove is
// the whole bar, and the slider in it is never too short to be caught.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);

// Draws the bar on the background of the view that it scrolls: a slim rounded slider, wider and
// stronger under the pointer and while it is dragged, over the marks of a MarkedScrollBar.
void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QWidget* widget);

// What a view's background is under its bars.
QColor scrollBarBackground(const QPalette& palette, const QWidget* widget);

} // namespace quillon
