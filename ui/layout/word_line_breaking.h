// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_units.h"

#include <QStringView>

#include <optional>

namespace quillon {

class BreakOpportunities;
class MonospaceMetrics;

// What a text takes whose lines were broken by the widths of its words.
struct WordLines {
    qsizetype count = 1;
    // The width of the widest line without the spaces at its end. Lines of that width hold the
    // text as well.
    Fixed widest = 0;
    // The width of the whole text on one line without the spaces at its end: what a text layout
    // makes it where lines are not broken. Where they are, a line that is narrower by a column does
    // not hold it.
    Fixed oneLine = 0;
};

// Measures text with characters that need shaping as QTextLayout would, without one: the words with
// such characters by what is kept of their widths, and what stands between them by arithmetic, of
// which only the ends of the lines are read.
class WordLineBreaker {
public:
    // The references must outlive the breaker; `lineWidth` as for RowLayouter.
    WordLineBreaker(const MonospaceMetrics& metrics, const BreakOpportunities& opportunities,
                    std::optional<Fixed> lineWidth);

    // The lines of a text that begins `indent` points right of where its lines do, behind a tab (so
    // that it may also begin on the next line). None where it takes a text layout to tell: a word
    // is wider than a line, reaches to its end by a hair, or has a control character, tab, soft
    // hyphen or other space than U+0020 in it; or lines are not broken, and the text ends in a
    // space. The text's first `asciiLength` UTF-16 units are known to be ASCII.
    [[nodiscard]] std::optional<WordLines> measure(QStringView text, Fixed indent,
                                                   qsizetype asciiLength = 0) const;

private:
    class Walk;

    const MonospaceMetrics& m_metrics;
    const BreakOpportunities& m_opportunities;
    std::optional<Fixed> m_lineWidth;
};

} // namespace quillon
