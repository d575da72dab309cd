// SPDX-License-Identifier: MIT
#include "ui/layout/shaped_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

ShapedLine::ShapedLine(std::shared_ptr<const QTextLayout> layout, const ShapedLinePlace& place,
                       Fixed columnAdvance)
    : m_layout(std::move(layout)), m_line(m_layout->lineAt(place.line)), m_place(place),
      m_columnAdvance(toPoints(columnAdvance)), m_contentEnd(findContentEnd())
{
}

// White space that hangs is no part of the line's width, and it has no glyphs; no more has a tab
// within the line.
qsizetype ShapedLine::findContentEnd() const
{
    const QString text = m_layout->text();
    qsizetype end = m_place.end;
    for (; end > m_place.start && text[inLayout(end - 1)].isSpace(); --end) {
        const int last = inLayout(end - 1);
        const bool hangs = text[last] == u'\t'
                               ? m_line.cursorToX(last) >= m_line.horizontalAdvance()
                               : m_line.glyphRuns(last, 1).isEmpty();
        if (!hangs) {
            break;
        }
    }
    return end;
}

double ShapedLine::xOf(qsizetype offset) const
{
    if (offset < m_contentEnd) {
        return layoutX() + m_line.cursorToX(inLayout(offset));
    }
    if (m_contentEnd == m_place.end) {
        return layoutX() + m_line.naturalTextWidth();
    }
    return layoutX() + m_line.horizontalAdvance() +
           static_cast<double>(offset - m_contentEnd) * m_columnAdvance;
}

qsizetype ShapedLine::offsetAt(double x) const
{
    const double beyond = x - layoutX() - m_line.horizontalAdvance();
    if (beyond < 0) {
        const qsizetype offset = m_line.xToCursor(x - layoutX()) + m_place.shift;
        return std::clamp(offset, m_place.start, m_contentEnd);
    }
    const double columns =
        std::min(beyond / m_columnAdvance, static_cast<double>(m_place.end - m_contentEnd));
    return m_contentEnd + static_cast<qsizetype>(std::llround(columns));
}

std::vector<LineSpan> ShapedLine::spansOf(qsizetype start, qsizetype end) const
{
    std::vector<LineSpan> spans;
    // Of two cursor positions one cannot tell what is between them where the direction changes.
    for (const QGlyphRun& run : glyphRuns(start, end)) {
        const QRectF box = run.boundingRect();
        spans.push_back(LineSpan{layoutX() + box.left(), layoutX() + box.right()});
    }
    // Tabs have no glyphs.
    const QString text = m_layout->text();
    const int last = inLayout(std::min(end, m_contentEnd));
    for (qsizetype at = text.indexOf(u'\t', inLayout(start)); at >= 0 && at < last;
         at = text.indexOf(u'\t', at + 1)) {
        const double before = layoutX() + m_line.cursorToX(static_cast<int>(at));
        const double after = layoutX() + m_line.cursorToX(static_cast<int>(at + 1));
        spans.push_back(LineSpan{std::min(before, after), std::max(before, after)});
    }
    if (end > m_contentEnd) {
        spans.push_back(LineSpan{xOf(std::max(start, m_contentEnd)), xOf(end)});
    }
    return spans;
}

QList<QGlyphRun> ShapedLine::glyphRuns(qsizetype start, qsizetype end) const
{
    const qsizetype last = std::min(end, m_contentEnd);
    return start < last ? m_line.glyphRuns(inLayout(start), static_cast<int>(last - start))
                        : QList<QGlyphRun>();
}

} // namespace quillon
