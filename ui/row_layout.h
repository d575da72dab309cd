// SPDX-License-Identifier: MIT
#pragma once

#include "ui/character_range.h"
#include "ui/line_breaking.h"
#include "ui/monospace_metrics.h"
#include "ui/piece_shaper.h"
#include "ui/row_measure.h"
#include "ui/shaped_line.h"
#include "ui/text_units.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

class AttributedRow;
class BreakOpportunities;

// How much room a row takes.
struct RowExtent {
    qsizetype lineCount = 1;
    // Where rows are not wrapped, the row's width; 0 where they are.
    Fixed width = 0;
};

// A stretch of a row that is drawn in one go: one visual line or a part of one.
struct RowFragment {
    qsizetype start = 0; // UTF-16 units from the start of the row
    qsizetype end = 0;
    qsizetype line = 0; // visual line within the row
    Fixed x = 0;        // where the stretch begins in its line
    // Of a stretch whose characters have their places from a text layout: the piece of the row
    // that was laid out, and the line of that layout. −1 where characters stand side by side.
    int piece = -1;
    int pieceLine = -1;

    [[nodiscard]] bool needsShaping() const { return piece >= 0; }
};

// A row cut into fragments, in order.
struct RowLayout {
    QString text; // as displayed, without the line feed
    std::vector<RowFragment> fragments;
    std::vector<ShapedPiece> pieces; // those that need shaping
    qsizetype lineCount = 1;

    // The index of the fragment that holds the offset; at a place between two, the later one.
    [[nodiscard]] std::size_t fragmentAt(qsizetype offset) const;
    // The range [first, second) of the fragments on a visual line.
    [[nodiscard]] std::pair<std::size_t, std::size_t> fragmentsOfLine(qsizetype line) const;
};

// Lays out single rows, for one font and one width. Rows without unusual characters are laid out by
// arithmetic, the others by QTextLayout, to the same lines; the row's number is set by arithmetic
// in any case, since beside some scripts a text layout takes its digits from a font that has none.
// Of a very long row with unusual characters, each piece of some thousand units is laid out for
// itself and begins a line.
class RowLayouter {
public:
    // A text layout takes some hundred bytes a character; a row of more UTF-16 units than this is
    // laid out in pieces.
    static constexpr qsizetype kPieceLength = 4096;

    // `lineWidth`: what lines are broken at, none to keep each row on one line. The references
    // must outlive the layouter.
    RowLayouter(const MonospaceMetrics& metrics, const BreakOpportunities& opportunities,
                std::optional<Fixed> lineWidth);

    // What there is to know of a row before it is measured for the first time. Reads the whole row.
    [[nodiscard]] RowMeasure firstLook(const AttributedRow& row) const;
    // The extent of a row as far as it follows from its measure, without a look at the row.
    [[nodiscard]] std::optional<RowExtent> recall(const RowMeasure& measure) const
    {
        if (!m_metrics.isUniform(measure.range)) {
            return recallMixed(measure);
        }
        if (!m_lineWidth) {
            return RowExtent{1, measure.width * m_metrics.columnAdvance()};
        }
        if (measure.width <= m_breaker.columns()) {
            return RowExtent{1, 0};
        }
        const std::optional<qsizetype> lines = measure.lineCounts.at(m_breaker.columns());
        return lines ? std::optional(RowExtent{*lines, 0}) : std::nullopt;
    }
    // The row's extent by arithmetic; none where the row has characters that need shaping. Notes in
    // `measure`, which is the row's, what has been found out.
    [[nodiscard]] std::optional<RowExtent> measure(const AttributedRow& row,
                                                   RowMeasure& measure) const;
    // Tells the processor to fetch what measuring the row will look at: the place where its first
    // line ends, if it has more than one.
    void prefetch(const AttributedRow& row) const;
    // The extent of a row with such characters, which takes a text layout: a hundred times as long
    // as arithmetic. Notes in `measure` too.
    [[nodiscard]] RowExtent measureShaped(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent extentOf(const RowLayout& layout) const;
    [[nodiscard]] RowLayout layOut(const AttributedRow& row) const;

    // The place in its line of an offset within the fragment, which may be its end.
    [[nodiscard]] Fixed xOf(const RowLayout& layout, const RowFragment& fragment,
                            qsizetype offset) const;
    // The offset within the fragment whose place is nearest to `x`.
    [[nodiscard]] qsizetype offsetAt(const RowLayout& layout, const RowFragment& fragment,
                                     Fixed x) const;
    // The line that a fragment which needs shaping is, for drawing.
    [[nodiscard]] ShapedLine shapedLine(const RowLayout& layout, const RowFragment& fragment) const;

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
    [[nodiscard]] bool needsLayout(QStringView text) const;
    void foresee(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] std::optional<RowExtent> recallMixed(const RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureMixed(const AttributedRow& row, RowMeasure& measure) const;
    // What a text layout found out about a row that is measured for the first time at this width.
    struct MixedLines {
        qsizetype count;
        // Widths in columns at which the row takes as many, besides that of the layouter.
        qsizetype from;
        qsizetype to;
    };
    [[nodiscard]] MixedLines linesOf(const QString& text, const ShapedMeasure& shaped) const;
    void note(const AttributedRow& row, const MixedLines& lines, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureInPieces(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureUniform(const AttributedRow& row, RowMeasure& measure) const;

    const MonospaceMetrics& m_metrics;
    const BreakOpportunities& m_opportunities;
    std::optional<Fixed> m_lineWidth;
    LineBreaker m_breaker;
    PieceShaper m_shaper;
    // Whether the line's width is one of those that are noted for rows measured in fractions of a
    // column: whole columns and half a one.
    bool m_isNotable;
    mutable std::u16string m_buffer;
};

} // namespace quillon
