// SPDX-License-Identifier: MIT
#include "search/matching_budget.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr qint64 kNoLimit = std::numeric_limits<qint64>::max();

// What a long text may cost in all and in one span: so many steps for each of its units beyond
// those that every text has, and so many readings of the whole of it, but in either case some
// pieces. Ordinary expressions take one to five steps for a unit and read a text once or twice. A
// span may use as many steps as finding a place from the text's end backwards takes. Measured on
// a line of 2 MiB: 2.4 s for all of it and 0.1 s for a span.
constexpr qint64 kStepsPerUnit = 8;
constexpr qint64 kStepsPerUnitInSpan = 1;
constexpr qint64 kFewestReportsForMarks = 3;
constexpr qint64 kReadings = 64;
constexpr qint64 kReadingsInSpan = 16;
constexpr qint64 kFewestPieces = 20'000'000;
constexpr qint64 kFewestPiecesInSpan = 1'000'000;

} // namespace

MatchingBudget MatchingBudget::forText(qsizetype length)
{
    if (length <= kLongestShortText) {
        return MatchingBudget({kFewestReports, kNoLimit}, {kFewestReports, kNoLimit});
    }
    const auto amount = [length](qint64 stepsPerUnit, qint64 readings, qint64 fewestPieces) {
        return Amount{kFewestReports + length * stepsPerUnit / kStepsPerReport,
                      std::max(fewestPieces, readings * length / kPieceLength)};
    };
    return MatchingBudget(amount(kStepsPerUnit, kReadings, kFewestPieces),
                          amount(kStepsPerUnitInSpan, kReadingsInSpan, kFewestPiecesInSpan));
}

MatchingBudget MatchingBudget::forMarks(qsizetype length)
{
    if (length > kLongestShortText) {
        return forText(length);
    }
    const qint64 reports = kFewestReportsForMarks + length * kStepsPerUnit / kStepsPerReport;
    return MatchingBudget({reports, kNoLimit}, {reports, kNoLimit});
}

MatchingBudget MatchingBudget::unlimited()
{
    return MatchingBudget({kNoLimit, kNoLimit}, {kNoLimit, kNoLimit});
}

void MatchingBudget::beginSpan()
{
    m_span = m_perSpan;
}

bool MatchingBudget::takeReport()
{
    return --m_span.reports > 0 && --m_whole.reports > 0;
}

} // namespace quillon
