// SPDX-License-Identifier: MIT
#pragma once

#include "render/color.h"

#include <QtGlobal>

#include <cstdint>
#include <optional>

namespace quillon {

enum class FontWeight : std::uint8_t { Regular, Bold };
enum class LineBreakMode : std::uint8_t { WordWrapping, Clipping };

// What a whole pass has in common: the monospaced font's size in points, the text colour and how
// long lines break.
struct BaseAttributes {
    double fontSize = 13.0;
    Color foreground = Color::system(SystemColor::Text);
    LineBreakMode lineBreakMode = LineBreakMode::WordWrapping;
    bool operator==(const BaseAttributes&) const = default;
};

// What one span of a row looks like beyond its base attributes.
struct RunAttributes {
    Color foreground = Color::system(SystemColor::Text);
    std::optional<Color> background;
    FontWeight weight = FontWeight::Regular;
    bool operator==(const RunAttributes&) const = default;
};

// A span of a row; start and length in UTF-16 units from the start of the row.
struct AttributeRun {
    qsizetype start = 0;
    qsizetype length = 0;
    RunAttributes attributes;

    [[nodiscard]] qsizetype end() const { return start + length; }
    bool operator==(const AttributeRun&) const = default;
};

} // namespace quillon
