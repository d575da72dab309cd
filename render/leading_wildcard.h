// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// The pattern, in ICU's syntax, without what its alternatives begin with if that is any number of
// any characters: ".*a|(.*)b" becomes "a|b". In every text both match or neither does, but to find
// nothing the one takes the square of a line's length, as an engine tries each place and looks from
// there to the line's end. Where they match is another matter. The pattern as it is where it is too
// involved to tell.
QString withoutLeadingWildcards(const QString& pattern);

} // namespace quillon
