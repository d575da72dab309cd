// SPDX-License-Identifier: MIT
#include "model/records/log_severity.h"

#include <algorithm>

namespace quillon {

QLatin1StringView rawValue(LogSeverity severity)
{
    static constexpr std::array<QLatin1StringView, kAllSeverities.size()> kNames{
        QLatin1StringView("fatal"),  QLatin1StringView("error"),      QLatin1StringView("warning"),
        QLatin1StringView("notice"), QLatin1StringView("deprecated"), QLatin1StringView("info"),
        QLatin1StringView("debug"),  QLatin1StringView("unknown"),
    };
    return kNames[static_cast<std::size_t>(severity)];
}

std::optional<LogSeverity> severityFromRawValue(QStringView text)
{
    const auto* const found =
        std::find_if(kAllSeverities.begin(), kAllSeverities.end(),
                     [text](LogSeverity severity) { return rawValue(severity) == text; });
    if (found == kAllSeverities.end()) {
        return std::nullopt;
    }
    return *found;
}

} // namespace quillon
