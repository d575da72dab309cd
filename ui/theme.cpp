// SPDX-License-Identifier: MIT
#include "ui/theme.h"

#include "ui/style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

struct Shades {
    QRgb light;
    QRgb dark;
};

QColor shade(const Shades& shades, Appearance appearance)
{
    return QColor::fromRgb(appearance == Appearance::Dark ? shades.dark : shades.light);
}

struct RoleShades {
    QPalette::ColorRole role;
    Shades enabled;
    Shades disabled;
};

// A neutral with a trace of blue; the accent is strong enough for white text in both appearances.
constexpr std::array kRoleShades
{
    RoleShades{QPalette::Window, {0xFFF3F3F6, 0xFF2A2A2D}, {0xFFF3F3F6, 0xFF2A2A2D}},
        RoleShades{QPalette::WindowText, {0xFF1D1D1F, 0xFFEBEBEF}, {0xFFA3A3A9, 0xFF6E6E75}},
        RoleShades{QPalette::Base, {0xFFFFFFFF, 0xFF1D1D1F}, {0xFFF3F3F6, 0xFF2A2A2D}},
        RoleShades{QPalette::AlternateBase, {0xFFF7F7F9, 0xFF242427}, {0xFFF3F3F6, 0xFF2A2A2D}},
        RoleShades{QPalette::ToolTipBase, {0xFFFFFFFF, 0xFF3A3A3E}, {0xFFFFFFFF, 0xFF3A3A3E}},
        RoleShades{QPalette::ToolTipText, {0xFF1D1D1F, 0xFFEBEBEF}, {0xFFA3A3A9, 0xFF6E6E75}},
        RoleShades{QPalette::PlaceholderText, {0xFF6A6A70, 0xFF9C9CA3}, {0xFFB4B4BA, 0xFF5E5E64}},
        RoleShades{QPalette::Text, {0xFF1D1D1F, 0xFFEBEBEF}, {0xFFA3A3A9, 0xFF6E6E75}},
        RoleShades{QPalette::Button, {0xFFFAFAFC, 0xFF48484D}, {0xFFF0F0F3, 0xFF343438}},
        RoleShades{QPalette::ButtonText, {0xFF1D1D1F, 0xFFEBEBEF}, {0xFFA3A3A9, 0xFF6E6E75}},
        RoleShades{QPalette::BrightText, {0xFFFFFFFF, 0xFFFFFFFF}, {0xFFFFFFFF, 0xFFFFFFFF}},
        RoleShades{QPalette::Light, {0xFFFFFFFF, 0xFF5A5A60}, {0xFFFFFFFF, 0xFF444448}},
        RoleShades{QPalette::Midlight, {0xFFF8F8FA, 0xFF505055}, {0xFFF8F8FA, 0xFF3A3A3E}},
        RoleShades{QPalette::Mid, {0xFFC9C9CF, 0xFF1F1F22}, {0xFFD5D5DA, 0xFF252528}},
        RoleShades{QPalette::Dark, {0xFFA6A6AD, 0xFF18181A}, {0xFFB9B9BF, 0xFF1E1E20}},
        RoleShades{QPalette::Shadow, {0xFF6F6F76, 0xFF0C0C0D}, {0xFF8E8E95, 0xFF121213}},
        RoleShades{QPalette::Highlight, {0xFF0A63CF, 0xFF2469CC}, {0xFFC4C4CA, 0xFF4A4A4F}},
        RoleShades{QPalette::HighlightedText, {0xFFFFFFFF, 0xFFFFFFFF}, {0xFF6F6F76, 0xFF9C9CA3}},
        RoleShades{QPalette::Link, {0xFF0A5BC0, 0xFF6DB4FF}, {0xFFA3A3A9, 0xFF6E6E75}},
        RoleShades{QPalette::LinkVisited, {0xFF6E3BA8, 0xFFC79BFF}, {0xFFA3A3A9, 0xFF6E6E75}},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
        RoleShades{QPalette::Accent, {0xFF0A63CF, 0xFF2469CC}, {0xFFC4C4CA, 0xFF4A4A4F}},
#endif
};

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

int pixelHeight(TextStyle style)
{
    switch (style) {
    case TextStyle::Title2:
        return 17;
    case TextStyle::Headline:
    case TextStyle::Body:
        return 13;
    case TextStyle::Caption:
    case TextStyle::Footnote:
        break;
    }
    return 11;
}

} // namespace

Appearance appearanceOf(const QPalette& palette)
{
    const auto lightness = [&palette](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role).lightnessF();
    };
    return lightness(QPalette::Window) < lightness(QPalette::WindowText) ? Appearance::Dark
                                                                         : Appearance::Light;
}

QPalette paletteFor(Appearance appearance)
{
    QPalette palette;
    for (const RoleShades& row : kRoleShades) {
        const QColor enabled = shade(row.enabled, appearance);
        palette.setColor(QPalette::Active, row.role, enabled);
        palette.setColor(QPalette::Inactive, row.role, enabled);
        palette.setColor(QPalette::Disabled, row.role, shade(row.disabled, appearance));
    }
    return palette;
}

void applyAppearance(QApplication& application, Appearance appearance)
{
    if (qobject_cast<Style*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new Style);
    }
    application.setPalette(paletteFor(appearance));
    application.setFont(fontFor(TextStyle::Body));
}

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
        resolved = shade(kSystemShades[index], appearanceOf(palette));
    }
    resolved.setAlphaF(static_cast<float>(std::clamp(color.alpha(), 0.0, 1.0)));
    return resolved;
}

QFont fontFor(TextStyle style, FontWeight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    setPixelHeight(font, pixelHeight(style));
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
