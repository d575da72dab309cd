// SPDX-License-Identifier: MIT
#include "ui/line_thresholds.h"

#include "ui/break_opportunities.h"

#include <algorithm>

namespace quillon {

namespace {

// The length of the text up to `end` without the spaces that stand there: those hang.
qsizetype contentBefore(QStringView text, qsizetype end)
{
    while (end > 0 && text[end - 1] == u' ') {
        --end;
    }
    return end;
}

// How much of the text the first of two lines of the same length holds.
qsizetype halfOf(QStringView text, qsizetype indent)
{
    return std::max<qsizetype>(0, (text.size() - indent) / 2);
}

} // namespace

// Of the places in the first half of the two lines, the last one leaves least to the second line.
// The text may also begin on the second line, under its number.
qsizetype columnsForTwoLines(QStringView text, qsizetype indent,
                             const BreakOpportunities& opportunities)
{
    const qsizetype half = halfOf(text, indent);
    return std::max(text.size() - opportunities.lastIn(text, 0, half).value_or(0), indent + 1);
}

// Of the places in the second half, the first one asks least of the first line.
qsizetype fewestColumnsForTwoLines(QStringView text, qsizetype indent,
                                   const BreakOpportunities& opportunities)
{
    qsizetype columns = columnsForTwoLines(text, indent, opportunities);
    for (qsizetype at = halfOf(text, indent) + 1; at < text.size(); ++at) {
        const bool isAfterSpace = text[at - 1] == u' ';
        if (!isAfterSpace && indent + at >= columns) {
            break;
        }
        if (text[at] == u' ' || !(isAfterSpace || opportunities.isBefore(text, at))) {
            continue;
        }
        const qsizetype first = indent + contentBefore(text, at);
        columns = std::min(columns, std::max(first, text.size() - at));
        break;
    }
    return std::max(columns, indent + 1);
}

qsizetype columnsForThreeLines(QStringView text, qsizetype indent,
                               const BreakOpportunities& opportunities)
{
    const qsizetype third = std::max<qsizetype>(0, (text.size() - 2 * indent) / 3);
    const qsizetype second = opportunities.lastIn(text, 0, third).value_or(0);
    const qsizetype half = second + (text.size() - second) / 2;
    const qsizetype last = opportunities.lastIn(text, second, half).value_or(second);
    return std::max({indent + second, text.size() - last, indent + 1});
}

} // namespace quillon
