// SPDX-License-Identifier: MIT
#include "ui/layout/row_layouter.h"

#include "render/attributed_string.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/row_places.h"

#include <QTextLayout>

#include <algorithm>

namespace quillon {

namespace {

// Drawing and hit-testing walk a fragment from its start, so that of an unbroken line of two
// million characters they must not have to walk it all.
constexpr qsizetype kFragmentLength = 1024;
// How far before the end of a piece a good place to cut is looked for.
constexpr qsizetype kCutReach = 256;

qsizetype pieceEnd(QStringView text, qsizetype start)
{
    const qsizetype limit = start + RowLayouter::kPieceLength;
    if (limit >= text.size()) {
        return text.size();
    }
    for (qsizetype at = limit; at > limit - kCutReach; --at) {
        if (isBreakableSpace(text[at - 1].unicode())) {
            return at;
        }
    }
    for (qsizetype at = limit; at > limit - kCutReach; --at) {
        if (!needsShaping(text[at].unicode()) && !needsShaping(text[at - 1].unicode())) {
            return at;
        }
    }
    return text[limit].isLowSurrogate() ? limit - 1 : limit;
}

} // namespace

RowLayouter::RowLayouter(const MonospaceMetrics& metrics, const LineBreaker& breaker,
                         const PieceShaper& shaper, const RowPlaces& places,
                         std::optional<Fixed> lineWidth)
    : m_metrics(metrics), m_breaker(breaker), m_shaper(shaper), m_places(places),
      m_lineWidth(lineWidth)
{
}

RowExtent RowLayouter::extentOf(const RowLayout& layout) const
{
    const RowFragment& last = layout.fragments.back();
    return RowExtent{layout.lineCount, m_lineWidth ? 0 : m_places.xOf(layout, last, last.end)};
}

RowLayout RowLayouter::layOut(const AttributedRow& row) const
{
    RowLayout layout;
    layout.text = displayedText(row);
    if (m_lineWidth) {
        layOutWrapped(layout, row.prefixLength());
    } else {
        layOutUnwrapped(layout, row.prefixLength());
    }
    return layout;
}

// Rows that need no shaping are one piece of any length; the others are cut. The number and its tab
// are never part of a piece that needs shaping.
std::vector<RowLayouter::Piece> RowLayouter::pieces(QStringView text, qsizetype prefixLength) const
{
    if (!m_metrics.needsShaping(text)) {
        return {Piece{0, text.size(), false}};
    }
    std::vector<Piece> pieces;
    qsizetype start = 0;
    do {
        const qsizetype end = pieceEnd(text, start);
        const bool isShaped = m_metrics.needsShaping(text.sliced(start, end - start));
        if (isShaped && start == 0) {
            pieces.push_back(Piece{0, prefixLength, false});
            start = prefixLength;
        }
        pieces.push_back(Piece{start, end, isShaped});
        start = end;
    } while (start < text.size());
    return pieces;
}

void RowLayouter::layOutWrapped(RowLayout& layout, qsizetype prefixLength) const
{
    layout.lineCount = 0;
    for (const Piece& piece : pieces(layout.text, prefixLength)) {
        if (piece.needsShaping) {
            const qsizetype lead = piece.start == prefixLength ? leadBehindNumber(layout) : 0;
            appendShapedLines(layout, ShapedPiece{piece.start, piece.end, lead});
        } else {
            appendLines(layout, piece);
        }
    }
}

// The tab stop on the number's line where the text begins; none where the tab reaches past the
// width, so that the text begins on the next line.
qsizetype RowLayouter::leadBehindNumber(const RowLayout& layout) const
{
    const RowFragment& number = layout.fragments.back();
    const Fixed x = m_places.xOf(layout, number, number.end);
    return x <= *m_lineWidth ? x / m_metrics.tabDistance() : 0;
}

void RowLayouter::appendLines(RowLayout& layout, const Piece& piece) const
{
    const QStringView text = QStringView(layout.text).sliced(piece.start, piece.end - piece.start);
    std::vector<qsizetype> starts{0};
    static_cast<void>(m_breaker.breakMixed(text, &starts));
    starts.push_back(text.size());
    for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
        layout.fragments.push_back(RowFragment{.start = piece.start + starts[i],
                                               .end = piece.start + starts[i + 1],
                                               .line = layout.lineCount++});
    }
}

void RowLayouter::appendShapedLines(RowLayout& layout, const ShapedPiece& piece) const
{
    const auto shaped = m_shaper.layOut(layout.text, piece);
    const qsizetype firstLine = layout.lineCount - (piece.lead > 0 ? 1 : 0);
    for (int i = 0; i < shaped->lineCount(); ++i) {
        const QTextLine line = shaped->lineAt(i);
        const qsizetype start = piece.start - piece.lead + line.textStart();
        const RowFragment fragment{.start = std::max(start, piece.start),
                                   .end = start + line.textLength(),
                                   .line = firstLine + i,
                                   .x = i == 0 ? piece.lead * m_metrics.tabDistance() : 0,
                                   .piece = static_cast<int>(layout.pieces.size()),
                                   .pieceLine = i};
        // Beside the number there may be no room for the text's first word.
        if (fragment.start < fragment.end) {
            layout.fragments.push_back(fragment);
        }
    }
    layout.lineCount = firstLine + shaped->lineCount();
    layout.pieces.push_back(piece);
}

void RowLayouter::layOutUnwrapped(RowLayout& layout, qsizetype prefixLength) const
{
    Fixed x = 0;
    for (const Piece& piece : pieces(layout.text, prefixLength)) {
        if (piece.needsShaping) {
            const qsizetype lead = piece.start == prefixLength ? x / m_metrics.tabDistance() : 0;
            const RowFragment fragment{.start = piece.start,
                                       .end = piece.end,
                                       .x = x,
                                       .piece = static_cast<int>(layout.pieces.size()),
                                       .pieceLine = 0};
            layout.fragments.push_back(fragment);
            layout.pieces.push_back(ShapedPiece{piece.start, piece.end, lead});
            x = m_places.xOf(layout, fragment, piece.end);
            continue;
        }
        qsizetype start = piece.start;
        do {
            const qsizetype end = std::min(piece.end, start + kFragmentLength);
            const RowFragment fragment{.start = start, .end = end, .x = x};
            layout.fragments.push_back(fragment);
            x = m_places.xOf(layout, fragment, end);
            start = end;
        } while (start < piece.end);
    }
}

} // namespace quillon
