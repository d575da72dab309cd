// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_defaults.h"
#include "render/highlight_preferences.h"

#include <QString>

namespace quillon {

// The keys of the user defaults beside those of the colours (highlight_preferences.h).
namespace preference_keys {
// Boolean: whether lines are wrapped at start.
inline constexpr QLatin1StringView kWrapDefault{"prefs.wrap.default"};
// Number, points: the text size at start.
inline constexpr QLatin1StringView kFontDefault{"prefs.font.default"};
// Text: a folder the user likes to note. Nothing starts in it.
inline constexpr QLatin1StringView kDefaultFolder{"prefs.default.folder"};
} // namespace preference_keys

// The text sizes that can be chosen, in points.
inline constexpr int kSmallestFontSize = 10;
inline constexpr int kLargestFontSize = 24;

// Every key with its default: the colours in the order of their roles, then the keys above.
const UserDefaults::Table& defaultPreferences();

} // namespace quillon
