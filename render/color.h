// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <variant>

namespace quillon {

// The colours that the desktop decides, for light and dark appearance.
enum class SystemColor : std::uint8_t {
    Text,
    SecondaryLabel,
    Label,
    TextBackground,
    ControlBackground,
    SelectedTextBackground,
    Red,
    Orange,
    Yellow,
    Blue,
    Purple,
    Gray,
};

// The name by which output refers to the colour, such as "secondaryLabelColor".
QLatin1StringView systemColorName(SystemColor color);

// sRGB components from 0 to 1. (One space stands for the several RGB spaces that a platform may
// tell apart: a stored colour and the colour shown for it are the same numbers.)
struct RgbComponents {
    double red = 0;
    double green = 0;
    double blue = 0;
    bool operator==(const RgbComponents&) const = default;
};

// A colour: fixed components, or one that the desktop decides; with an alpha from 0 to 1. Which
// pixels a system colour means is left to whoever draws.
class Color {
public:
    static constexpr Color rgb(double red, double green, double blue, double alpha = 1.0)
    {
        return Color(RgbComponents{red, green, blue}, alpha);
    }
    static constexpr Color system(SystemColor color, double alpha = 1.0)
    {
        return Color(color, alpha);
    }

    [[nodiscard]] double alpha() const { return m_alpha; }
    [[nodiscard]] Color withAlpha(double alpha) const;

    // The components of a fixed colour, null for a system colour.
    [[nodiscard]] const RgbComponents* components() const;
    // The system colour, null for a fixed one.
    [[nodiscard]] const SystemColor* systemColor() const;

    bool operator==(const Color&) const = default;

private:
    using Value = std::variant<RgbComponents, SystemColor>;
    constexpr Color(Value value, double alpha) : m_value(value), m_alpha(alpha) {}

    Value m_value;
    double m_alpha;
};

} // namespace quillon
