// SPDX-License-Identifier: MIT
#include "ui/layout/row_places.h"

#include "ui/layout/line_breaking.h"
#include "ui/layout/monospace_metrics.h"

namespace quillon {

ShapedLine RowPlaces::shapedLine(const RowLayout& layout, const RowFragment& fragment) const
{
    const ShapedPiece& piece = layout.pieces[static_cast<std::size_t>(fragment.piece)];
    return ShapedLine(m_shaper.layOut(layout.text, piece),
                      ShapedLinePlace{.line = fragment.pieceLine,
                                      .start = fragment.start,
                                      .end = fragment.end,
                                      .shift = piece.start - piece.lead,
                                      .x = piece.lead > 0 ? 0 : fragment.x},
                      m_metrics.columnAdvance());
}

Fixed RowPlaces::xOf(const RowLayout& layout, const RowFragment& fragment, qsizetype offset) const
{
    if (fragment.needsShaping()) {
        return toFixed(shapedLine(layout, fragment).xOf(offset));
    }
    const QStringView before =
        QStringView(layout.text).sliced(fragment.start, offset - fragment.start);
    return fragment.x + widthOf(before, fragment.x, m_metrics);
}

qsizetype RowPlaces::offsetAt(const RowLayout& layout, const RowFragment& fragment, Fixed x) const
{
    if (fragment.needsShaping()) {
        return shapedLine(layout, fragment).offsetAt(toPoints(x));
    }
    Fixed left = fragment.x;
    for (qsizetype at = fragment.start; at < fragment.end; ++at) {
        const QStringView character = QStringView(layout.text).sliced(at, 1);
        const Fixed right = left + widthOf(character, left, m_metrics);
        if (x < (left + right) / 2) {
            return at;
        }
        left = right;
    }
    return fragment.end;
}

} // namespace quillon
