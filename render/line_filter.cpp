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

bool LineFilter::allows(const LogLine& line) const
{
    return allows(line.severity()) && (!search || search->matches(line.text()));
}

} // namespace quillon
