// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_units.h"

#include <QStringView>

#include <optional>
#include <vector>

namespace quillon {

class BreakOpportunities;
class MonospaceMetrics;

// How a text was broken into lines.
struct BrokenLines {
    qsizetype count = 1;
    // Lines of so many columns or more, up to those that it was broken for, are broken at the same
    // places.
    qsizetype columns = 0;
};

// Tells where the visual lines of a displayed row begin, worked out by arithmetic on advances. The
// rules are QTextLayout's with WrapAtWordBoundaryOrAnywhere: a line ends after white space, which
// may hang past the width (spaces as many as there are, tabs but one), or where the line breaking
// algorithm allows it inside a word; a word that has no such place and does not fit on a line of
// its own is cut where the line is full.
class LineBreaker {
public:
    // Both must outlive the breaker.
    LineBreaker(const MonospaceMetrics& metrics, const BreakOpportunities& opportunities,
                Fixed width);

    // Whole columns that fit on a line.
    [[nodiscard]] qsizetype columns() const { return m_columns; }

    // For text whose characters all have the column advance, white space being spaces only. Reads
    // no more than the ends of the lines. `firstIndent` is where the first line starts, after a tab
    // (so that the text may also begin on the next line). Where `starts` is not null, appends the
    // offset at which each line but the first begins.
    [[nodiscard]] BrokenLines breakUniform(QStringView text, Fixed firstIndent,
                                           std::vector<qsizetype>* starts) const;

    // For any text without characters that need shaping. Reads all of it. Gives the number of
    // lines; `starts` as above.
    [[nodiscard]] qsizetype breakMixed(QStringView text, std::vector<qsizetype>* starts) const;

private:
    // Where the line that begins at `start` ends, in text such as breakMixed takes.
    [[nodiscard]] qsizetype lineEnd(QStringView text, qsizetype start) const;

    const MonospaceMetrics& m_metrics;
    const BreakOpportunities& m_opportunities;
    Fixed m_width;
    qsizetype m_columns;
};

// The x at which the next tab stop after `x` stands.
Fixed nextTabStop(Fixed x, const MonospaceMetrics& metrics);

// The width of a text without line breaks that has no characters that need shaping; the text
// begins at x = `start` of its line.
Fixed widthOf(QStringView text, Fixed start, const MonospaceMetrics& metrics);

} // namespace quillon
