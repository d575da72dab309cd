// SPDX-License-Identifier: MIT
#pragma once

#include "search/regular_expression.h"

#include <QStringView>

#include <optional>

namespace quillon {

// What is picked out of a row whatever the user searches for. Each finds what the regular
// expression named with it finds in ICU's syntax; where characters outside the basic plane or
// outside ASCII make that a question, the expression itself answers it.

// \[\d{2}-[A-Za-z]{3}-\d{4} (\d{2}:\d{2}:\d{2}) UTC\]
// The bracketed date of PHP's error log, such as "[05-Mar-2024 10:15:42 UTC]", the first one.
std::optional<TextRange> findTimestamp(QStringView row);

// \d{2}:\d{2}:\d{2}
// The first time of day.
std::optional<TextRange> findTimeOfDay(QStringView row);

// (?:\bArray\b\s*\(|\bprint_r\s*\(|\bvar_dump\s*\() without regard to case
// Whether the row holds the beginning of a printed array or a dump call.
bool hasDumpCall(QStringView row);

} // namespace quillon
