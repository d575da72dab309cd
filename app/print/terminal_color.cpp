// SPDX-License-Identifier: MIT
#include "app/print/terminal_color.h"

#include "app/print/ansi_palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace quillon {

namespace {

constexpr int kCubeStart = 16;
constexpr int kGrayStart = 232;
constexpr int kGrayCount = 24;
constexpr std::array kCubeSteps{0, 95, 135, 175, 215, 255};

struct Rgb {
    int red;
    int green;
    int blue;
};

int squaredDistance(const Rgb& a, const Rgb& b)
{
    const auto square = [](int value) {
        return value * value;
    };
    return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

int nearestCubeStep(int value)
{
    const auto nearer = [value](int a, int b) {
        return std::abs(a - value) < std::abs(b - value);
    };
    const auto* const step = std::min_element(kCubeSteps.begin(), kCubeSteps.end(), nearer);
    return static_cast<int>(step - kCubeSteps.begin());
}

int grayLevel(int index)
{
    return 8 + 10 * index;
}

int byteOf(double component)
{
    return static_cast<int>(std::lround(std::clamp(component, 0.0, 1.0) * 255.0));
}

QByteArray foregroundOf(SystemColor color)
{
    switch (color) {
    case SystemColor::SecondaryLabel:
    case SystemColor::Gray:
        return "90";
    case SystemColor::Red:
        return "31";
    case SystemColor::Orange:
        return "33";
    case SystemColor::Yellow:
        return "93";
    case SystemColor::Blue:
        return "94";
    case SystemColor::Purple:
        return "35";
    default:
        return {};
    }
}

QByteArray foregroundOf(const RgbComponents& components, ColorDepth depth)
{
    const int red = byteOf(components.red);
    const int green = byteOf(components.green);
    const int blue = byteOf(components.blue);
    if (depth == ColorDepth::Ansi16) {
        return QByteArray::number(nearestAnsiForeground(red, green, blue));
    }
    if (depth == ColorDepth::Indexed256) {
        return "38;5;" + QByteArray::number(nearestPaletteEntry(red, green, blue));
    }
    return "38;2;" + QByteArray::number(red) + ';' + QByteArray::number(green) + ';' +
           QByteArray::number(blue);
}

void addParameter(const QByteArray& parameter, QByteArray& parameters)
{
    if (!parameter.isEmpty() && !parameters.isEmpty()) {
        parameters += ';';
    }
    parameters += parameter;
}

} // namespace

ColorDepth colorDepthOf(const QByteArray& colorTerm, const QByteArray& term)
{
    if (colorTerm == "truecolor" || colorTerm == "24bit" || term.endsWith("-direct")) {
        return ColorDepth::TrueColor;
    }
    return term.contains("256color") ? ColorDepth::Indexed256 : ColorDepth::Ansi16;
}

QByteArray graphicRendition(const RunAttributes& attributes, ColorDepth depth)
{
    QByteArray parameters;
    if (attributes.weight == FontWeight::Bold) {
        addParameter("1", parameters);
    }
    if (attributes.background) {
        addParameter("7", parameters);
    }
    if (const RgbComponents* const components = attributes.foreground.components()) {
        addParameter(foregroundOf(*components, depth), parameters);
    } else {
        addParameter(foregroundOf(*attributes.foreground.systemColor()), parameters);
    }
    return parameters;
}

int nearestPaletteEntry(int red, int green, int blue)
{
    const Rgb wanted{red, green, blue};
    const int r = nearestCubeStep(red);
    const int g = nearestCubeStep(green);
    const int b = nearestCubeStep(blue);
    const auto step = [](int index) {
        return kCubeSteps[static_cast<std::size_t>(index)];
    };
    const Rgb cube{step(r), step(g), step(b)};

    const int average = (red + green + blue) / 3;
    const int gray = std::clamp((average - 3) / 10, 0, kGrayCount - 1);
    const Rgb grayColor{grayLevel(gray), grayLevel(gray), grayLevel(gray)};

    if (squaredDistance(wanted, grayColor) < squaredDistance(wanted, cube)) {
        return kGrayStart + gray;
    }
    return kCubeStart + 36 * r + 6 * g + b;
}

} // namespace quillon
