// SPDX-License-Identifier: MIT
#include "app/desktop/appearance.h"

#include "ui/controls/style.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

#include <array>
#include <utility>

namespace quillon {

namespace {

std::optional<PaletteStyle> styleFromEnvironment()
{
    const QString wanted = qEnvironmentVariable("QUILLON_APPEARANCE");
    const std::array<std::pair<QLatin1StringView, PaletteStyle>, 4> styles{{
        {QLatin1StringView("light"), {Appearance::Light, Contrast::Normal}},
        {QLatin1StringView("dark"), {Appearance::Dark, Contrast::Normal}},
        {QLatin1StringView("light-contrast"), {Appearance::Light, Contrast::High}},
        {QLatin1StringView("dark-contrast"), {Appearance::Dark, Contrast::High}},
    }};
    for (const auto& [name, style] : styles) {
        if (wanted == name) {
            return style;
        }
    }
    return std::nullopt;
}

PaletteStyle styleOfDesktopsPalette()
{
    const QPalette palette = QApplication::palette();
    return {appearanceOf(palette), contrastOf(palette)};
}

// Under X11 the desktop's text scaling reaches the toolkit as the screen's resolution, which makes
// everything larger.
bool isTextScaledByToolkit()
{
    return QApplication::platformName() == QLatin1StringView("xcb");
}

} // namespace

AppearanceFollower::AppearanceFollower(QApplication& application)
    : m_application(application), m_override(styleFromEnvironment()),
      m_desktopStyle(styleOfDesktopsPalette())
{
    m_application.installEventFilter(this);
    apply();
}

void AppearanceFollower::setPreferences(const DesktopPreferences& preferences)
{
    m_preferences = preferences;
    apply();
}

bool AppearanceFollower::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ThemeChange) {
        // Ours lies over the desktop's, which shows again once ours is taken away.
        QApplication::setPalette(QPalette());
        m_desktopStyle = styleOfDesktopsPalette();
        m_appliedStyle.reset();
        apply();
    }
    return QObject::eventFilter(watched, event);
}

PaletteStyle AppearanceFollower::wantedStyle() const
{
    if (m_override) {
        return *m_override;
    }
    PaletteStyle style = m_desktopStyle;
    style.appearance = m_preferences.appearance.value_or(style.appearance);
    style.accent = m_preferences.accent;
    if (m_preferences.wantsHighContrast) {
        style.contrast = Contrast::High;
    }
    return style;
}

double AppearanceFollower::wantedTextScale() const
{
    return isTextScaledByToolkit() ? 1.0 : m_preferences.textScale;
}

void AppearanceFollower::apply()
{
    const PaletteStyle style = wantedStyle();
    const double textScale = wantedTextScale();
    if (m_appliedStyle != style || m_appliedTextScale != textScale) {
        m_appliedStyle = style;
        m_appliedTextScale = textScale;
        applyAppearance(m_application, style, textScale);
    }
}

} // namespace quillon
