// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>
#include <optional>

namespace quillon {

enum class Appearance : std::uint8_t { Light, Dark };
enum class Contrast : std::uint8_t { Normal, High };

// What a palette is made for.
struct PaletteStyle {
    PaletteStyle(Appearance shownAppearance = Appearance::Light,
                 Contrast shownContrast = Contrast::Normal,
                 std::optional<QColor> desktopAccent = std::nullopt)
        : appearance(shownAppearance), contrast(shownContrast), accent(desktopAccent)
    {
    }
    bool operator==(const PaletteStyle&) const = default;

    Appearance appearance;
    Contrast contrast;
    // What marks the selected and the active; none for the program's own blue.
    std::optional<QColor> accent;
};

// The appearance that a palette shows: dark when its windows are darker than their text.
Appearance appearanceOf(const QPalette& palette);

// The contrast that a palette shows: high when its texts and windows are black and white.
Contrast contrastOf(const QPalette& palette);

// Every role and group. Texts keep a contrast of at least 4.5:1 with the surfaces that they stand
// on, 7:1 in high contrast; disabled ones are excepted. An accent is made darker or lighter as far
// as that takes.
QPalette paletteFor(const PaletteStyle& style);

// The lines around and between controls: the text colour, thinned to that strength (0 to 1) where
// the contrast is normal.
QColor outlineColor(const QPalette& palette, float strength);

} // namespace quillon
