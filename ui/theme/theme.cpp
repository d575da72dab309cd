// SPDX-License-Identifier: MIT
#include "ui/theme/theme.h"

#include "ui/theme/shades.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

// In the order of SystemColor. A dark yellow or orange is what keeps such text readable on white.
constexpr std::array kSystemShades{
    Shades{0xFF1D1D1F, 0xFFEBEBEF}, // Text
    Shades{0xFF64646A, 0xFFA6A6AD}, // SecondaryLabel
    Shades{0xFF1D1D1F, 0xFFEBEBEF}, // Label
    Shades{0xFFFFFFFF, 0xFF1D1D1F}, // TextBackground
    Shades{0xFFFFFFFF, 0xFF1D1D1F}, // ControlBackground
    Shades{0xFFA3CCFF, 0xFF3D6AA6}, // SelectedTextBackground
    Shades{0xFFD01224, 0xFFFF6B63}, // Red
    Shades{0xFFA84B00, 0xFFFF9F33}, // Orange
    Shades{0xFF7D5E00, 0xFFFFD60A}, // Yellow
    Shades{0xFF0A63CF, 0xFF5AB0FF}, // Blue
    Shades{0xFF8A3DC2, 0xFFD08BFA}, // Purple
    Shades{0xFF65656B, 0xFFA1A1A8}, // Gray
};
static_assert(kSystemShades.size() == static_cast<std::size_t>(SystemColor::Gray) + 1);

// The same where the contrast is high: at least 7:1 with the text background.
constexpr std::array kHighContrastShades{
    Shades{0xFF000000, 0xFFFFFFFF}, // Text
    Shades{0xFF404040, 0xFFC8C8C8}, // SecondaryLabel
    Shades{0xFF000000, 0xFFFFFFFF}, // Label
    Shades{0xFFFFFFFF, 0xFF000000}, // TextBackground
    Shades{0xFFFFFFFF, 0xFF000000}, // ControlBackground
    Shades{0xFF9CC8FF, 0xFF00419E}, // SelectedTextBackground
    Shades{0xFF9C0010, 0xFFFF8F88}, // Red
    Shades{0xFF733400, 0xFFFFB566}, // Orange
    Shades{0xFF574200, 0xFFFFE04D}, // Yellow
    Shades{0xFF00419E, 0xFF8FC7FF}, // Blue
    Shades{0xFF64209A, 0xFFDDBBFF}, // Purple
    Shades{0xFF404045, 0xFFC0C0C6}, // Gray
};
static_assert(kHighContrastShades.size() == kSystemShades.size());

// Fonts measure in pixels here, for which QFont takes whole numbers only; parts of a pixel go
// through its own point, which is 1/72 of the screen's nominal inch.
void setPixelHeight(QFont& font, double pixels)
{
    const double whole = std::round(pixels);
    if (std::abs(pixels - whole) < 0.005) {
        font.setPixelSize(std::max(1, static_cast<int>(whole)));
        return;
    }
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen != nullptr ? std::round(screen->logicalDotsPerInchY()) : 96.0;
    font.setPointSizeF(std::max(1.0, pixels * 72.0 / dotsPerInch));
}

constexpr int kBodyHeight = 13;
constexpr double kSmallestTextScale = 0.75;
constexpr double kLargestTextScale = 2.0;

// At the desktops' own text sizes.
int pixelHeight(TextStyle style)
{
    switch (style) {
    case TextStyle::Title2:
        return 17;
    case TextStyle::Headline:
    case TextStyle::Body:
        return kBodyHeight;
    case TextStyle::Caption:
    case TextStyle::Footnote:
        break;
    }
    return 11;
}

} // namespace

QColor resolvedColor(const Color& color, const QPalette& palette)
{
    QColor resolved;
    if (const RgbComponents* const rgb = color.components()) {
        const auto clamped = [](double component) {
            return static_cast<float>(std::clamp(component, 0.0, 1.0));
        };
        resolved = QColor::fromRgbF(clamped(rgb->red), clamped(rgb->green), clamped(rgb->blue));
    } else {
        const auto index = static_cast<std::size_t>(*color.systemColor());
        const Shades& shades = contrastOf(palette) == Contrast::High ? kHighContrastShades[index]
                                                                     : kSystemShades[index];
        resolved =
            QColor::fromRgb(appearanceOf(palette) == Appearance::Dark ? shades.dark : shades.light);
    }
    resolved.setAlphaF(static_cast<float>(std::clamp(color.alpha(), 0.0, 1.0)));
    return resolved;
}

double textScaleOf(double points, double dotsPerInch)
{
    // The usual desktops' own sizes reach from the first to the second.
    constexpr double kSmallestUsual = 9.0;
    constexpr double kLargestUsual = 11.0;
    constexpr double kUsualDotsPerInch = 96.0;
    const double shown = points * dotsPerInch / kUsualDotsPerInch;
    if (!(shown > 0.0)) {
        return 1.0;
    }
    return shown / std::clamp(shown, kSmallestUsual, kLargestUsual);
}

QFont interfaceFont(double textScale)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen != nullptr ? screen->logicalDotsPerInchY() : 0.0;
    const double scale = textScale * textScaleOf(font.pointSizeF(), dotsPerInch);
    font.setPixelSize(static_cast<int>(
        std::lround(kBodyHeight * std::clamp(scale, kSmallestTextScale, kLargestTextScale))));
    font.setWeight(QFont::Normal);
    return font;
}

QFont fontFor(TextStyle style, FontWeight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // Before the program has set its font there is one in the toolkit's own points.
    const int body = QGuiApplication::font().pixelSize();
    const double scale = body > 0 ? static_cast<double>(body) / kBodyHeight : 1.0;
    font.setPixelSize(static_cast<int>(std::lround(pixelHeight(style) * scale)));
    const bool isBold = style == TextStyle::Headline || weight == FontWeight::Bold;
    font.setWeight(isBold ? QFont::Bold : QFont::Normal);
    return font;
}

QFont monospacedSystemFont(double points, FontWeight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    setPixelHeight(font, points);
    font.setWeight(weight == FontWeight::Bold ? QFont::Bold : QFont::Normal);
    return font;
}

} // namespace quillon
