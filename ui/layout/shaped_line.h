// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_units.h"

#include <QGlyphRun>
#include <QList>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace quillon {

// A part of a line from left to right, in points from where the line begins.
struct LineSpan {
    double left = 0;
    double right = 0;
};

// Where in a row a line of a text layout stands.
struct ShapedLinePlace {
    int line = 0;        // of the text layout
    qsizetype start = 0; // UTF-16 units from the start of the row
    qsizetype end = 0;
    qsizetype shift = 0; // from offsets of the text layout to those of the row
    Fixed x = 0;         // where the text layout begins in the row's line
};

// One line of a text layout, asked in offsets of the row that it is a part of. It stays in the
// layout of its paragraph, since by itself it would not know which way a number at its start or a
// mark at its end runs. White space that hangs past the line's width has no place in a text layout;
// here it stands at the right end of the line, a column each.
class ShapedLine {
public:
    ShapedLine(std::shared_ptr<const QTextLayout> layout, const ShapedLinePlace& place,
               Fixed columnAdvance);

    // Points from where the row's line begins to the place of an offset, which may be the line's
    // end.
    [[nodiscard]] double xOf(qsizetype offset) const;
    // The offset whose place is nearest to `x`.
    [[nodiscard]] qsizetype offsetAt(double x) const;
    // What the characters [start, end) cover; several spans where the font or the direction of
    // writing changes.
    [[nodiscard]] std::vector<LineSpan> spansOf(qsizetype start, qsizetype end) const;
    // The glyphs of the characters [start, end), in points from layoutX() and from ascent() above
    // the baseline.
    [[nodiscard]] QList<QGlyphRun> glyphRuns(qsizetype start, qsizetype end) const;
    [[nodiscard]] double layoutX() const { return toPoints(m_place.x); }
    [[nodiscard]] double ascent() const { return m_line.ascent(); }

private:
    [[nodiscard]] int inLayout(qsizetype offset) const
    {
        return static_cast<int>(offset - m_place.shift);
    }
    [[nodiscard]] qsizetype findContentEnd() const;

    std::shared_ptr<const QTextLayout> m_layout;
    QTextLine m_line;
    ShapedLinePlace m_place;
    double m_columnAdvance;
    qsizetype m_contentEnd; // where the white space begins that hangs
};

} // namespace quillon
