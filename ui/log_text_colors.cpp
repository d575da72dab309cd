// SPDX-License-Identifier: MIT
#include "ui/log_text_colors.h"

#include "ui/theme.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

// Lightness (of HSL, 0 to 1) from which a colour can be read on the dark background.
constexpr float kMinimumDarkLightness = 0.55F;
// What the guidelines ask of text of ordinary size.
constexpr double kReadableContrast = 4.5;

double relativeLuminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

// The pixels that a colour which may let its ground through leaves on it.
QColor composed(const QColor& color, const QColor& ground)
{
    const float alpha = color.alphaF();
    const auto mixed = [alpha](float over, float under) {
        return over * alpha + under * (1 - alpha);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()),
                            mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor textColorOn(const Color& color, const QPalette& palette)
{
    const QColor resolved = resolvedColor(color, palette);
    if (color.components() == nullptr || appearanceOf(palette) == Appearance::Light ||
        resolved.lightnessF() >= kMinimumDarkLightness) {
        return resolved;
    }
    return QColor::fromHslF(resolved.hslHueF(), resolved.hslSaturationF(), kMinimumDarkLightness,
                            resolved.alphaF());
}

QColor selectionGround(const QPalette& palette)
{
    return resolvedColor(Color::system(SystemColor::SelectedTextBackground), palette);
}

QColor selectedTextColorOn(const Color& color, const QPalette& palette)
{
    const QColor own = textColorOn(color, palette);
    const QColor ground = selectionGround(palette);
    return contrastRatio(composed(own, ground), ground) >= kReadableContrast
               ? own
               : resolvedColor(Color::system(SystemColor::Text), palette);
}

QRgb LogTextColors::known(Pixels& pixels, const Color& color,
                          QColor (*find)(const Color&, const QPalette&))
{
    for (const auto& [known, value] : pixels) {
        if (known == color) {
            return value;
        }
    }
    pixels.emplace_back(color, find(color, m_palette).rgba());
    return pixels.back().second;
}

} // namespace quillon
