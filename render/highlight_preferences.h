// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"
#include "render/color.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillon {

// What a highlight colour is for: the lines of each severity, then what stands out in them.
enum class HighlightRole : std::uint8_t {
    Fatal,
    Error,
    Warning,
    Notice,
    Deprecated,
    Info,
    Debug,
    Unknown,
    Date,
    ArrayDump,
};

// The colour of a role as the user may choose it.
struct HighlightPreference {
    HighlightRole role;
    // Empty for a colour that cannot be chosen.
    QLatin1StringView key;
    // The registered default, in the format of color_codec.h.
    QLatin1StringView defaultText;
    // Stands in for a stored text that means no colour.
    Color fallback;

    [[nodiscard]] constexpr bool isStored() const { return !key.isEmpty(); }
};

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
} // namespace preference_keys

// One row for each role, in the order of the roles.
inline constexpr std::array kHighlightPreferences{
    HighlightPreference{HighlightRole::Fatal, preference_keys::kColorFatal,
                        QLatin1StringView("#FF3B30"), Color::system(SystemColor::Red)},
    HighlightPreference{HighlightRole::Error, preference_keys::kColorError,
                        QLatin1StringView("#FF3B30"), Color::system(SystemColor::Red)},
    HighlightPreference{HighlightRole::Warning, preference_keys::kColorWarning,
                        QLatin1StringView("#FF9500"), Color::system(SystemColor::Orange)},
    HighlightPreference{HighlightRole::Notice, preference_keys::kColorNotice,
                        QLatin1StringView("#FFD60A"), Color::system(SystemColor::Yellow)},
    HighlightPreference{HighlightRole::Deprecated, preference_keys::kColorDeprecated,
                        QLatin1StringView("#F4C361"), Color::rgb(0.96, 0.77, 0.38)},
    HighlightPreference{HighlightRole::Info, preference_keys::kColorInfo,
                        QLatin1StringView("#0A84FF"), Color::system(SystemColor::Blue)},
    HighlightPreference{HighlightRole::Debug, preference_keys::kColorDebug,
                        QLatin1StringView("#8E8E93"), Color::system(SystemColor::Gray)},
    HighlightPreference{HighlightRole::Unknown, QLatin1StringView(), QLatin1StringView(),
                        Color::system(SystemColor::Text)},
    HighlightPreference{HighlightRole::Date, preference_keys::kColorDate,
                        QLatin1StringView("#0A84FF"), Color::system(SystemColor::Blue)},
    HighlightPreference{HighlightRole::ArrayDump, preference_keys::kColorArrayDump,
                        QLatin1StringView("#BF5AF2"), Color::system(SystemColor::Purple)},
};

constexpr const HighlightPreference& preferenceOf(HighlightRole role)
{
    return kHighlightPreferences[static_cast<std::size_t>(role)];
}

// The role of a severity's lines: the roles begin with the severities.
constexpr HighlightRole roleOf(LogSeverity severity)
{
    return static_cast<HighlightRole>(severity);
}
static_assert(roleOf(LogSeverity::Fatal) == HighlightRole::Fatal &&
              roleOf(LogSeverity::Error) == HighlightRole::Error &&
              roleOf(LogSeverity::Warning) == HighlightRole::Warning &&
              roleOf(LogSeverity::Notice) == HighlightRole::Notice &&
              roleOf(LogSeverity::Deprecated) == HighlightRole::Deprecated &&
              roleOf(LogSeverity::Info) == HighlightRole::Info &&
              roleOf(LogSeverity::Debug) == HighlightRole::Debug &&
              roleOf(LogSeverity::Unknown) == HighlightRole::Unknown);
static_assert(kHighlightPreferences.size() >= kAllSeverities.size());
static_assert(std::all_of(kHighlightPreferences.begin(), kHighlightPreferences.end(),
                          [](const HighlightPreference& row) {
                              return &preferenceOf(row.role) == &row;
                          }));

} // namespace quillon
