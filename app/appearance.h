// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme.h"

#include <QObject>

#include <optional>

class QApplication;

namespace quillon {

// Keeps the program light or dark as the user wants it, at start and from then on. What counts is,
// in this order: QUILLON_APPEARANCE ("light" or "dark") in the environment, meant for screenshots;
// the preference that the desktop publishes; the palette that the desktop gives to applications.
// The application object must outlive it.
class AppearanceFollower : public QObject {
    Q_OBJECT

public:
    explicit AppearanceFollower(QApplication& application);

    // The desktop's preference has become known or has changed; none when it has no preference.
    void setPreference(std::optional<Appearance> preference);

    // Notices that the desktop's palette has changed.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    QApplication& m_application;
    const std::optional<Appearance> m_override;
    std::optional<Appearance> m_preference;
    Appearance m_desktopPalette;
    std::optional<Appearance> m_applied;
};

} // namespace quillon
