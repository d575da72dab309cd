// SPDX-License-Identifier: MIT
#include "render/line_filter.h"

namespace quillon {

bool LineFilter::allows(LogSeverity severity) const
{
    if (onlyErrors) {
        return severity == LogSeverity::Fatal || severity == LogSeverity::Error;
    }
    switch (severity) {
    case LogSeverity::Warning:
        return showWarning;
    case LogSeverity::Notice:
        return showNotice;
    case LogSeverity::Deprecated:
        return showDeprecated;
    default:
        return true;
    }
}

Verdict LineFilter::decide(const LogLine& line) const
{
    if (!allows(line.severity())) {
        return Verdict::NoMatch;
    }
    return search ? search->decide(line.text()) : Verdict::Match;
}

} // namespace quillon
