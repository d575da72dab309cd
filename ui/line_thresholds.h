// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace quillon {

class BreakOpportunities;

// From which widths on a row takes no more than so many lines. For text as
// LineBreaker::breakUniform takes it, without a space at its end (which may hang past any width),
// that begins behind `indent` columns, of which there are more than the text itself has room for on
// one line. All in columns.

// A width at which, as on all wider ones, the text takes at most two lines: the narrowest or little
// more. Reads the middle of the text only.
[[nodiscard]] qsizetype columnsForTwoLines(QStringView text, qsizetype indent,
                                           const BreakOpportunities& opportunities);

// The narrowest such width; takes twice as long.
[[nodiscard]] qsizetype fewestColumnsForTwoLines(QStringView text, qsizetype indent,
                                                 const BreakOpportunities& opportunities);

// A width at which, as on all wider ones, the text takes at most three lines: the narrowest or
// little more. Reads the text at a third and two thirds.
[[nodiscard]] qsizetype columnsForThreeLines(QStringView text, qsizetype indent,
                                             const BreakOpportunities& opportunities);

} // namespace quillon
