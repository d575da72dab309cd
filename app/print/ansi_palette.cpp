// SPDX-License-Identifier: MIT
#include "app/print/ansi_palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

constexpr int kNormal = 30;
constexpr int kBright = 90;

struct AnsiHue {
    int offset; // from kNormal and kBright
    std::array<int, 3> normal;
    std::array<int, 3> bright;
};

// What xterm makes of them, by hue, 60 degrees apart. Other terminals' palettes differ in shade.
constexpr std::array kHues{
    AnsiHue{1, {205, 0, 0}, {255, 0, 0}},     // red
    AnsiHue{3, {205, 205, 0}, {255, 255, 0}}, // yellow
    AnsiHue{2, {0, 205, 0}, {0, 255, 0}},     // green
    AnsiHue{6, {0, 205, 205}, {0, 255, 255}}, // cyan
    AnsiHue{4, {0, 0, 238}, {92, 92, 255}},   // blue
    AnsiHue{5, {205, 0, 205}, {255, 0, 255}}, // magenta
};

int squaredDistance(const std::array<int, 3>& a, const std::array<int, 3>& b)
{
    int sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    }
    return sum;
}

int grayParameter(int level)
{
    constexpr std::array kGrays{
        std::pair{0, kNormal + 0}, // black
        std::pair{127, kBright + 0}, std::pair{229, kNormal + 7},
        std::pair{255, kBright + 7}, // white
    };
    const auto nearer = [level](const auto& a, const auto& b) {
        return std::abs(a.first - level) < std::abs(b.first - level);
    };
    return std::min_element(kGrays.begin(), kGrays.end(), nearer)->second;
}

// In sixths of the circle, from 0 for red by 2 for green to below 6.
double hueOf(const std::array<int, 3>& color, int highest, int spread)
{
    const auto [red, green, blue] = color;
    const double width = spread;
    if (highest == red) {
        return std::fmod((green - blue) / width + 6.0, 6.0);
    }
    return highest == green ? (blue - red) / width + 2.0 : (red - green) / width + 4.0;
}

} // namespace

// By hue first: the nearest of all sixteen by distance makes violet of blue and cyan of sky blue.
int nearestAnsiForeground(int red, int green, int blue)
{
    constexpr int kGraySpread = 32;
    const std::array color{red, green, blue};
    const auto [lowest, highest] = std::minmax({red, green, blue});
    const int spread = highest - lowest;
    if (spread < kGraySpread) {
        return grayParameter((red + green + blue) / 3);
    }
    const auto sixth = static_cast<std::size_t>(std::lround(hueOf(color, highest, spread)));
    const AnsiHue& hue = kHues[sixth % kHues.size()];
    const bool isBright = squaredDistance(color, hue.bright) < squaredDistance(color, hue.normal);
    return (isBright ? kBright : kNormal) + hue.offset;
}

} // namespace quillon
