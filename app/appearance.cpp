// SPDX-License-Identifier: MIT
#include "app/appearance.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace quillon {

namespace {

std::optional<Appearance> appearanceFromEnvironment()
{
    const QString wanted = qEnvironmentVariable("QUILLON_APPEARANCE");
    if (wanted == QLatin1StringView("light")) {
        return Appearance::Light;
    }
    if (wanted == QLatin1StringView("dark")) {
        return Appearance::Dark;
    }
    return std::nullopt;
}

} // namespace

AppearanceFollower::AppearanceFollower(QApplication& application)
    : m_application(application), m_override(appearanceFromEnvironment()),
      m_desktopPalette(appearanceOf(QApplication::palette()))
{
    m_application.installEventFilter(this);
    apply();
}

void AppearanceFollower::setPreference(std::optional<Appearance> preference)
{
    m_preference = preference;
    apply();
}

bool AppearanceFollower::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ThemeChange) {
        // Ours lies over the desktop's, which shows again once ours is taken away.
        QApplication::setPalette(QPalette());
        m_desktopPalette = appearanceOf(QApplication::palette());
        m_applied.reset();
        apply();
    }
    return QObject::eventFilter(watched, event);
}

void AppearanceFollower::apply()
{
    const Appearance wanted = m_override.value_or(m_preference.value_or(m_desktopPalette));
    if (m_applied != wanted) {
        m_applied = wanted;
        applyAppearance(m_application, wanted);
    }
}

} // namespace quillon
