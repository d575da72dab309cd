// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/line_breaking.h"
#include "ui/layout/row_layout.h"

#include <optional>

namespace quillon {

class AttributedRow;
class RowPlaces;

// Lays out single rows, for one font and one width. Rows without unusual characters are laid out by
// arithmetic, the others by QTextLayout, to the same lines; the row's number is set by arithmetic
// in any case, since beside some scripts a text layout takes its digits from a font that has none.
// Of a very long row with unusual characters, each piece of 4,096 units is laid out for
// itself and begins a line.
class RowLayouter {
public:
    // A text layout takes some hundred bytes a character; a row of more UTF-16 units than this is
    // laid out in pieces.
    static constexpr qsizetype kPieceLength = 4096;

    // `lineWidth`: what lines are broken at, none to keep each row on one line. The references
    // must outlive the layouter.
    RowLayouter(const MonospaceMetrics& metrics, const LineBreaker& breaker,
                const PieceShaper& shaper, const RowPlaces& places, std::optional<Fixed> lineWidth);

    // The row's lines, and what is drawn on each.
    [[nodiscard]] RowLayout layOut(const AttributedRow& row) const;
    // How much room a layout takes that was made here.
    [[nodiscard]] RowExtent extentOf(const RowLayout& layout) const;

private:
    // A part of a row that is laid out in one go.
    struct Piece {
        qsizetype start;
        qsizetype end;
        bool needsShaping;
    };

    void layOutWrapped(RowLayout& layout, qsizetype prefixLength) const;
    void layOutUnwrapped(RowLayout& layout, qsizetype prefixLength) const;
    void appendLines(RowLayout& layout, const Piece& piece) const;
    void appendShapedLines(RowLayout& layout, const ShapedPiece& piece) const;
    [[nodiscard]] qsizetype leadBehindNumber(const RowLayout& layout) const;
    [[nodiscard]] std::vector<Piece> pieces(QStringView text, qsizetype prefixLength) const;

    const MonospaceMetrics& m_metrics;
    const LineBreaker& m_breaker;
    const PieceShaper& m_shaper;
    const RowPlaces& m_places;
    std::optional<Fixed> m_lineWidth;
};

} // namespace quillon
