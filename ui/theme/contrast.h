// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace quillon {

// The contrast ratio of two opaque colours by the Web Content Accessibility Guidelines: from 1,
// the same lightness, to 21, black and white.
double contrastRatio(const QColor& one, const QColor& other);

// The colour, made darker or lighter no further than it takes to have that contrast ratio with an
// opaque background; black or white where the ratio is out of reach. Its hue and alpha stay.
QColor withContrast(const QColor& color, const QColor& background, double ratio);

} // namespace quillon
