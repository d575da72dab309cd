// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace quillon {

// Whether the pattern, in ICU's syntax, begins with any number of any characters, as ".*a" and
// "(.+)a" do. Such a pattern, if it matches at all behind some place of a line, matches at that
// place; trying the others too, as an engine does, takes the square of the line's length to find
// nothing. False also where the pattern is too involved to tell.
bool hasLeadingWildcard(QStringView pattern);

// The next place behind `from` where such a pattern needs to be tried: behind the next character
// that "." does not match. Past the text's end where there is none.
// https://unicode-org.github.io/icu/userguide/strings/regexp.html (Line Terminators)
qsizetype nextWildcardStart(QStringView text, qsizetype from);

} // namespace quillon
