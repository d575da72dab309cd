// SPDX-License-Identifier: MIT
#include "ui/theme/contrast.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

double relativeLuminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor withContrast(const QColor& color, const QColor& background, double ratio)
{
    if (contrastRatio(color, background) >= ratio) {
        return color;
    }
    const bool isDarker =
        contrastRatio(Qt::black, background) > contrastRatio(Qt::white, background);
    const auto atLightness = [&color](float lightness) {
        return QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), lightness, color.alphaF())
            .toRgb();
    };
    // The lightness found last that has the ratio, and one that has not.
    float enough = isDarker ? 0.0F : 1.0F;
    float tooLittle = color.lightnessF();
    constexpr int kSteps = 12;
    for (int step = 0; step < kSteps; ++step) {
        const float middle = (enough + tooLittle) / 2;
        (contrastRatio(atLightness(middle), background) >= ratio ? enough : tooLittle) = middle;
    }
    return atLightness(enough);
}

} // namespace quillon
