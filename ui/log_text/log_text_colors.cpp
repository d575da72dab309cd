// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_colors.h"

#include "ui/theme/contrast.h"
#include "ui/theme/theme.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

// Lightness (of HSL, 0 to 1) from which a colour can be read on the dark background.
constexpr float kMinimumDarkLightness = 0.55F;
// What the guidelines ask of text of ordinary size.
constexpr double kReadableContrast = 4.5;
// The same where the desktop wants high contrast.
constexpr double kHighContrast = 7.0;

// The pixels that a colour which may let its background through leaves on it.
QColor composed(const QColor& color, const QColor& background)
{
    const float alpha = color.alphaF();
    const auto mixed = [alpha](float over, float under) {
        return over * alpha + under * (1 - alpha);
    };
    return QColor::fromRgbF(mixed(color.redF(), background.redF()),
                            mixed(color.greenF(), background.greenF()),
                            mixed(color.blueF(), background.blueF()));
}

} // namespace

QColor textColorOn(const Color& color, const QPalette& palette)
{
    const QColor resolved = resolvedColor(color, palette);
    if (contrastOf(palette) == Contrast::High) {
        const Color background = Color::system(SystemColor::TextBackground);
        return withContrast(resolved, resolvedColor(background, palette), kHighContrast);
    }
    if (color.components() == nullptr || appearanceOf(palette) == Appearance::Light ||
        resolved.lightnessF() >= kMinimumDarkLightness) {
        return resolved;
    }
    return QColor::fromHslF(resolved.hslHueF(), resolved.hslSaturationF(), kMinimumDarkLightness,
                            resolved.alphaF());
}

QColor backgroundColorOn(const Color& background, const QPalette& palette)
{
    return composed(textColorOn(background, palette),
                    resolvedColor(Color::system(SystemColor::TextBackground), palette));
}

QColor selectionBackground(const QPalette& palette)
{
    return resolvedColor(Color::system(SystemColor::SelectedTextBackground), palette);
}

QColor selectedTextColorOn(const Color& color, const QPalette& palette)
{
    const QColor own = textColorOn(color, palette);
    const QColor background = selectionBackground(palette);
    return contrastRatio(composed(own, background), background) >= kReadableContrast
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
