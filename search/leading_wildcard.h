// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace quillon {

// A pattern, in ICU's syntax, some of whose alternatives begin with any number of any characters,
// such as ".*a|(.*)b|c", taken apart.
struct LeadingWildcards {
    // All alternatives, without that: "a|b|c". In every text both match or neither does, but to
    // find nothing the whole pattern takes the square of a line's length, as an engine tries each
    // place and looks from there to the line's end. Where they match is another matter.
    QString shorter;
    // What follows the wildcards: "a|b". Behind the last place that it matches at, no alternative
    // that begins with a wildcard matches any more.
    QString behind;
    // The alternatives that begin otherwise, "c"; empty where there are none.
    QString others;
};

// None where no alternative of the pattern begins with a wildcard and goes on, or where the pattern
// is too involved to tell.
std::optional<LeadingWildcards> leadingWildcardsOf(const QString& pattern);

} // namespace quillon
