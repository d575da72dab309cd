// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_defaults.h"

#include <QString>

namespace quillon {

// The keys of the user defaults. Colours are texts in the format of color_codec.h.
namespace preference_keys {
inline constexpr QLatin1StringView kColorFatal{"prefs.color.fatal"};
inline constexpr QLatin1StringView kColorError{"prefs.color.error"};
inline constexpr QLatin1StringView kColorWarning{"prefs.color.warning"};
inline constexpr QLatin1StringView kColorNotice{"prefs.color.notice"};
inline constexpr QLatin1StringView kColorDeprecated{"prefs.color.deprecated"};
inline constexpr QLatin1StringView kColorInfo{"prefs.color.info"};
inline constexpr QLatin1StringView kColorDebug{"prefs.color.debug"};
inline constexpr QLatin1StringView kColorDate{"prefs.color.date"};
inline constexpr QLatin1StringView kColorArrayDump{"prefs.color.arraydump"};
// Boolean: whether lines are wrapped at start.
inline constexpr QLatin1StringView kWrapDefault{"prefs.wrap.default"};
// Number, points: the text size at start.
inline constexpr QLatin1StringView kFontDefault{"prefs.font.default"};
// Text: a folder the user likes to note. Nothing starts in it.
inline constexpr QLatin1StringView kDefaultFolder{"prefs.default.folder"};
} // namespace preference_keys

// Every key with its default, in the order above.
const UserDefaults::Table& defaultPreferences();

} // namespace quillon
