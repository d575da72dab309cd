// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPalette;
class QRect;
class QStyleOption;

namespace quillon {

// How round the corners of buttons, fields and focus rings are, in pixels.
inline constexpr double kControlRadius = 6.0;

// The ground of a push button, which shows whether the pointer is over it and whether it is held.
void drawButtonGround(QPainter& painter, const QStyleOption& button);

// The ground and outline of a text field.
void drawFieldGround(QPainter& painter, const QStyleOption& field);

// A horizontal slider whose handle is in the rectangle given: the groove is coloured on the side of
// the small values.
void drawSlider(QPainter& painter, const QStyleOption& slider, const QRect& handle);

// A ring just inside of the rectangle's edge.
void drawFocusRing(QPainter& painter, const QRect& around, const QPalette& palette);

} // namespace quillon
