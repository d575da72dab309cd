// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/log_text_layout.h"

#include <QPointF>
#include <QRectF>

namespace quillon {

// Between places in the text and points of the text's frame (its top left corner is the origin,
// insets and padding included; points right and down).

// Where lines begin within the frame.
QPointF textOrigin();

// The place in the text nearest to a point. Right of a line that wraps it is the line's end, which
// is where the next line begins.
TextPosition positionAt(const LogTextLayout& layout, QPointF point);

// The character whose box holds the point, by the place before it; nearest to the point outside.
TextPosition characterAt(const LogTextLayout& layout, QPointF point);

// The box of the character after a place; without width at the end of a row.
QRectF boxAt(const LogTextLayout& layout, TextPosition position);

// The visual line, from the top of the text, that a place is on.
qint64 lineOf(const LogTextLayout& layout, TextPosition position);

} // namespace quillon
