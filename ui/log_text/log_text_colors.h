// SPDX-License-Identifier: MIT
#pragma once

#include "render/color.h"

#include <QColor>
#include <QPalette>

#include <utility>
#include <vector>

namespace quillon {

// Colours fixed for a light background, made legible on a dark one where they are too dark for it;
// everything else as resolvedColor() has it. In high contrast all keep at least 7:1.
QColor textColorOn(const Color& color, const QPalette& palette);

// What a text with that background stands on: the background, and where it lets it through, that of
// the whole view.
QColor backgroundColorOn(const Color& background, const QPalette& palette);

// What selected text stands on.
QColor selectionBackground(const QPalette& palette);

// The colour of a text while it is selected: its own, as textColorOn() has it, where that keeps a
// contrast of at least 4.5:1 with the selection's background, else that of plain text. No
// background suits both the light yellow of a notice and the red of a fatal error.
QColor selectedTextColorOn(const Color& color, const QPalette& palette);

// What the colours of a log mean under one palette, each worked out once.
class LogTextColors {
public:
    // The palette must outlive the object and stay as it is.
    explicit LogTextColors(const QPalette& palette) : m_palette(palette) {}

    // As textColorOn() and selectedTextColorOn() have it.
    QRgb plain(const Color& color) { return known(m_plain, color, textColorOn); }
    QRgb selected(const Color& color) { return known(m_selected, color, selectedTextColorOn); }

private:
    using Pixels = std::vector<std::pair<Color, QRgb>>;
    QRgb known(Pixels& pixels, const Color& color, QColor (*find)(const Color&, const QPalette&));

    const QPalette& m_palette;
    Pixels m_plain;
    Pixels m_selected;
};

} // namespace quillon
