// SPDX-License-Identifier: MIT
#include "ui/theme/palette.h"

#include "ui/theme/contrast.h"
#include "ui/theme/shades.h"

#include <array>

namespace quillon {

namespace {

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

// Where the contrast is high, these take the place of the above.
constexpr std::array kHighContrastRoleShades
{
    RoleShades{QPalette::Window, {0xFFFFFFFF, 0xFF000000}, {0xFFFFFFFF, 0xFF000000}},
        RoleShades{QPalette::WindowText, {0xFF000000, 0xFFFFFFFF}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::Base, {0xFFFFFFFF, 0xFF000000}, {0xFFFFFFFF, 0xFF000000}},
        RoleShades{QPalette::AlternateBase, {0xFFFFFFFF, 0xFF000000}, {0xFFFFFFFF, 0xFF000000}},
        RoleShades{QPalette::ToolTipBase, {0xFFFFFFFF, 0xFF000000}, {0xFFFFFFFF, 0xFF000000}},
        RoleShades{QPalette::ToolTipText, {0xFF000000, 0xFFFFFFFF}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::PlaceholderText, {0xFF404040, 0xFFC8C8C8}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::Text, {0xFF000000, 0xFFFFFFFF}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::Button, {0xFFFFFFFF, 0xFF000000}, {0xFFFFFFFF, 0xFF000000}},
        RoleShades{QPalette::ButtonText, {0xFF000000, 0xFFFFFFFF}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::Highlight, {0xFF00419E, 0xFF00419E}, {0xFF595959, 0xFF595959}},
        RoleShades{QPalette::HighlightedText, {0xFFFFFFFF, 0xFFFFFFFF}, {0xFFFFFFFF, 0xFFFFFFFF}},
        RoleShades{QPalette::Link, {0xFF00419E, 0xFF8FC7FF}, {0xFF595959, 0xFFA6A6A6}},
        RoleShades{QPalette::LinkVisited, {0xFF55208A, 0xFFDDBBFF}, {0xFF595959, 0xFFA6A6A6}},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
        RoleShades{QPalette::Accent, {0xFF00419E, 0xFF00419E}, {0xFF595959, 0xFF595959}},
#endif
};

QColor shade(const Shades& shades, Appearance appearance)
{
    return QColor::fromRgb(appearance == Appearance::Dark ? shades.dark : shades.light);
}

void setEnabled(QPalette& palette, QPalette::ColorRole role, const QColor& color)
{
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
}

void fill(QPalette& palette, const RoleShades& row, Appearance appearance)
{
    setEnabled(palette, row.role, shade(row.enabled, appearance));
    palette.setColor(QPalette::Disabled, row.role, shade(row.disabled, appearance));
}

void setAccent(QPalette& palette, const QColor& accent, Contrast contrast)
{
    const double wanted = contrast == Contrast::High ? 7.0 : 4.5;
    const QColor surface = withContrast(accent, palette.color(QPalette::HighlightedText), wanted);
    setEnabled(palette, QPalette::Highlight, surface);
    // It also rings the button that has the keyboard.
    constexpr double kRingContrast = 3.0;
    const QColor link = withContrast(accent, palette.color(QPalette::Window), wanted);
    setEnabled(palette, QPalette::Link,
               withContrast(link, palette.color(QPalette::Button), kRingContrast));
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    setEnabled(palette, QPalette::Accent, surface);
#endif
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

Contrast contrastOf(const QPalette& palette)
{
    // Black on the grey that toolkits give to windows has 18.
    constexpr double kBlackAndWhite = 20.0;
    const double shown = contrastRatio(palette.color(QPalette::Active, QPalette::WindowText),
                                       palette.color(QPalette::Active, QPalette::Window));
    return shown >= kBlackAndWhite ? Contrast::High : Contrast::Normal;
}

QPalette paletteFor(const PaletteStyle& style)
{
    QPalette palette;
    for (const RoleShades& row : kRoleShades) {
        fill(palette, row, style.appearance);
    }
    if (style.contrast == Contrast::High) {
        for (const RoleShades& row : kHighContrastRoleShades) {
            fill(palette, row, style.appearance);
        }
    }
    if (style.accent) {
        setAccent(palette, *style.accent, style.contrast);
    }
    return palette;
}

QColor outlineColor(const QPalette& palette, float strength)
{
    QColor color = palette.color(QPalette::WindowText);
    if (contrastOf(palette) == Contrast::Normal) {
        color.setAlphaF(strength);
    }
    return color;
}

} // namespace quillon
