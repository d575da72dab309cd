// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/desktop_preferences.h"

#include <QObject>

#include <optional>

class QApplication;

namespace quillon {

// Keeps the program looking as the user wants it, at start and from then on. What counts is, in
// this order: QUILLON_APPEARANCE ("light", "dark", "light-contrast" or "dark-contrast") in the
// environment, meant for screenshots; the preferences that the desktop publishes; the palette that
// the desktop gives to applications. The application object must outlive it.
class AppearanceFollower : public QObject {
    Q_OBJECT

public:
    explicit AppearanceFollower(QApplication& application);

    // The desktop's preferences have become known or have changed.
    void setPreferences(const DesktopPreferences& preferences);

    // Notices that the desktop's palette or font has changed.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();
    [[nodiscard]] PaletteStyle wantedStyle() const;
    [[nodiscard]] double wantedTextScale() const;

    QApplication& m_application;
    const std::optional<PaletteStyle> m_override;
    DesktopPreferences m_preferences;
    PaletteStyle m_desktopStyle; // of its palette
    std::optional<PaletteStyle> m_appliedStyle;
    double m_appliedTextScale = 0.0;
};

} // namespace quillon
