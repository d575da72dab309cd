// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPalette;
class QRect;
class QRectF;
class QStyleOption;

namespace quillon {

// How round the corners of buttons, fields and focus rings are, in pixels.
inline constexpr double kControlRadius = 6.0;

// The background of a push button, which shows whether the pointer is over it and whether it is
// held.
void drawButtonBackground(QPainter& painter, const QStyleOption& button);

// The background and outline of a text field.
void drawFieldBackground(QPainter& painter, const QStyleOption& field);

// A horizontal slider whose handle is in the rectangle given: the groove is coloured on the side of
// the small values.
void drawSlider(QPainter& painter, const QStyleOption& slider, const QRect& handle);

// What marks the control that has the keyboard, in all windows: a ring just inside of the
// rectangle's edge, in a colour with a contrast of at least 3:1 with every surface of the palette.
void drawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette,
                   double cornerRadius = kControlRadius);

// What sets a menu off from whatever is below it, and a group of its items from the others.
void drawMenuEdge(QPainter& painter, const QRect& menu, const QPalette& palette);
void drawMenuSeparator(QPainter& painter, const QRect& item, const QPalette& palette);

} // namespace quillon
