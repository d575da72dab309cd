// SPDX-License-Identifier: MIT
#include "render/color.h"

#include <array>

namespace quillon {

QLatin1StringView systemColorName(SystemColor color)
{
    static constexpr std::array kNames{
        QLatin1StringView("textColor"),
        QLatin1StringView("secondaryLabelColor"),
        QLatin1StringView("labelColor"),
        QLatin1StringView("textBackgroundColor"),
        QLatin1StringView("controlBackgroundColor"),
        QLatin1StringView("selectedTextBackgroundColor"),
        QLatin1StringView("systemRedColor"),
        QLatin1StringView("systemOrangeColor"),
        QLatin1StringView("systemYellowColor"),
        QLatin1StringView("systemBlueColor"),
        QLatin1StringView("systemPurpleColor"),
        QLatin1StringView("systemGrayColor"),
    };
    return kNames[static_cast<std::size_t>(color)];
}

Color Color::withAlpha(double alpha) const
{
    return Color(m_value, alpha);
}

const RgbComponents* Color::components() const
{
    return std::get_if<RgbComponents>(&m_value);
}

const SystemColor* Color::systemColor() const
{
    return std::get_if<SystemColor>(&m_value);
}

} // namespace quillon
