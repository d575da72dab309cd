// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme/palette.h"

#include <QColor>

#include <optional>

namespace quillon {

// How the user of a desktop likes programs to look, as far as the desktop tells.
struct DesktopPreferences {
    std::optional<Appearance> appearance = std::nullopt;
    std::optional<QColor> accent = std::nullopt;
    bool wantsHighContrast = false;
    double textScale = 1.0; // 1.25 for texts a quarter larger than usual
    bool operator==(const DesktopPreferences&) const = default;
};

} // namespace quillon
