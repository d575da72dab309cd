// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

// "Lignes: N • Affichées: S", the counts in the user's integer format.
QString countsStatus(qint64 lineCount, qint64 shownCount);

// "Lignes: N • Affichées: 0 (filtrées)": there are lines, and none of them is shown.
QString allFilteredStatus(qint64 lineCount);

// "Lignes: N", after a file was opened or lines were appended.
QString lineCountStatus(qint64 lineCount);

// How many lines are hidden because it takes too long to find out whether they match; empty for
// none.
QString undecidedText(qint64 lineCount);

} // namespace quillon
