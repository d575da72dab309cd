// SPDX-License-Identifier: MIT
#include "render/highlight_colors.h"

#include "platform/user_defaults.h"
#include "render/color_codec.h"
#include "render/preference_keys.h"

namespace quillon {

namespace {

struct SeverityPreference {
    QLatin1StringView key;
    Color fallback;
};

SeverityPreference preferenceOf(LogSeverity severity)
{
    using namespace preference_keys;
    switch (severity) {
    case LogSeverity::Fatal:
        return {kColorFatal, Color::system(SystemColor::Red)};
    case LogSeverity::Error:
        return {kColorError, Color::system(SystemColor::Red)};
    case LogSeverity::Warning:
        return {kColorWarning, Color::system(SystemColor::Orange)};
    case LogSeverity::Notice:
        return {kColorNotice, Color::system(SystemColor::Yellow)};
    case LogSeverity::Deprecated:
        return {kColorDeprecated, Color::rgb(0.96, 0.77, 0.38)};
    case LogSeverity::Info:
        return {kColorInfo, Color::system(SystemColor::Blue)};
    case LogSeverity::Debug:
        return {kColorDebug, Color::system(SystemColor::Gray)};
    case LogSeverity::Unknown:
        break;
    }
    return {QLatin1StringView(), Color::system(SystemColor::Text)};
}

Color colorForKey(QLatin1StringView key, const Color& fallback, const UserDefaults& defaults)
{
    return colorFromHex(defaults.stringForKey(key).value_or(QString())).value_or(fallback);
}

} // namespace

Color colorForSeverity(LogSeverity severity, const UserDefaults& defaults)
{
    const SeverityPreference preference = preferenceOf(severity);
    if (severity == LogSeverity::Unknown) {
        return preference.fallback;
    }
    return colorForKey(preference.key, preference.fallback, defaults);
}

HighlightColors HighlightColors::read(const UserDefaults& defaults)
{
    const auto of = [&defaults](LogSeverity level) {
        return colorForSeverity(level, defaults);
    };
    return HighlightColors{
        .severity = {of(LogSeverity::Fatal), of(LogSeverity::Error), of(LogSeverity::Warning),
                     of(LogSeverity::Notice), of(LogSeverity::Deprecated), of(LogSeverity::Info),
                     of(LogSeverity::Debug), of(LogSeverity::Unknown)},
        .date =
            colorForKey(preference_keys::kColorDate, Color::system(SystemColor::Blue), defaults),
        .arrayDump = colorForKey(preference_keys::kColorArrayDump,
                                 Color::system(SystemColor::Purple), defaults),
    };
}

} // namespace quillon
