// SPDX-License-Identifier: MIT
#pragma once

#include "render/color.h"
#include "render/text_attributes.h"
#include "ui/theme/palette.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <cstdint>

namespace quillon {

// The pixels that a colour means under a palette. System colours follow the palette's appearance;
// those used for text keep a contrast of at least 4.5:1 with the text background, 7:1 where the
// palette's contrast is high.
QColor resolvedColor(const Color& color, const QPalette& palette);

// The text styles of the windows' own texts, from headings to the smallest.
enum class TextStyle : std::uint8_t { Title2, Headline, Body, Caption, Footnote };

// How much larger than usual a desktop shows its texts, from its font's points and its screen's
// dots per inch: 1 for each of the usual desktops' own sizes, and where there is nothing to tell.
double textScaleOf(double points, double dotsPerInch);

// What the application's font is to be: the desktop's interface font, 13 pixels high at the
// desktops' own text sizes, larger or smaller as the desktop's font is, and by `textScale` on top;
// from three quarters to twice as high in all.
QFont interfaceFont(double textScale = 1.0);

// The application's font in a style, larger or smaller with it. Headlines are bold in any case.
QFont fontFor(TextStyle style, FontWeight weight = FontWeight::Regular);

// The desktop's monospaced font, `points` high. One point is one device-independent pixel; parts of
// a pixel count.
QFont monospacedSystemFont(double points, FontWeight weight);

} // namespace quillon
