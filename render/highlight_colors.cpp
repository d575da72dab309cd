// SPDX-License-Identifier: MIT
#include "render/highlight_colors.h"

#include "platform/user_defaults.h"
#include "render/color_codec.h"

#include <utility>

namespace quillon {

namespace {

Color colorFor(const HighlightPreference& preference, const UserDefaults& defaults)
{
    if (!preference.isStored()) {
        return preference.fallback;
    }
    const QString stored = defaults.stringForKey(preference.key).value_or(QString());
    return colorFromHex(stored).value_or(preference.fallback);
}

template <std::size_t... Indices>
HighlightColors readEach(const UserDefaults& defaults, std::index_sequence<Indices...> /*rows*/)
{
    return HighlightColors{{colorFor(kHighlightPreferences[Indices], defaults)...}};
}

} // namespace

Color colorForSeverity(LogSeverity severity, const UserDefaults& defaults)
{
    return colorFor(preferenceOf(roleOf(severity)), defaults);
}

HighlightColors HighlightColors::read(const UserDefaults& defaults)
{
    return readEach(defaults, std::make_index_sequence<kHighlightPreferences.size()>());
}

} // namespace quillon
