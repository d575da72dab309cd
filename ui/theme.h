// SPDX-License-Identifier: MIT
#pragma once

#include "render/color.h"
#include "render/text_attributes.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <cstdint>

class QApplication;

namespace quillon {

enum class Appearance : std::uint8_t { Light, Dark };

// The appearance that a palette shows: dark when its windows are darker than their text.
Appearance appearanceOf(const QPalette& palette);

// Every role and group of an appearance. Texts keep a contrast of at least 4.5:1 with the surfaces
// that they stand on, disabled ones excepted.
QPalette paletteFor(Appearance appearance);

// Gives all widgets the program's style and the appearance's palette. May be called again at any
// time; what is on screen follows.
void applyAppearance(QApplication& application, Appearance appearance);

// The pixels that a colour means under a palette. System colours follow the palette's appearance;
// those used for text keep a contrast of at least 4.5:1 with the text background.
QColor resolvedColor(const Color& color, const QPalette& palette);

// The text styles of the windows' own texts, from headings to the smallest.
enum class TextStyle : std::uint8_t { Title2, Headline, Body, Caption, Footnote };

// The desktop's interface font in a style. Headlines are bold in any case.
QFont fontFor(TextStyle style, FontWeight weight = FontWeight::Regular);

// The desktop's monospaced font, `points` high. One point is one device-independent pixel; parts of
// a pixel count.
QFont monospacedSystemFont(double points, FontWeight weight);

} // namespace quillon
