// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/line_breaking.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/piece_shaper.h"
#include "ui/layout/row_layout.h"
#include "ui/layout/row_measure.h"
#include "ui/layout/word_line_breaking.h"

#include <QString>

#include <optional>
#include <string>

namespace quillon {

class AttributedRow;
class RowLayouter;

// Tells how much room rows take, for one font and one width, as the layouter would lay them out,
// and keeps what it has found out in a measure for each row.
class RowMeasurer {
public:
    // The references must outlive the measurer; `lineWidth` as for RowLayouter.
    RowMeasurer(const MonospaceMetrics& metrics, const LineBreaker& breaker,
                const WordLineBreaker& words, const PieceShaper& shaper,
                const RowLayouter& layouter, std::optional<Fixed> lineWidth);

    // What there is to know of a row before it is measured for the first time. Reads the whole row.
    [[nodiscard]] RowMeasure initialMeasure(const AttributedRow& row) const;
    // The extent of a row as far as it follows from its measure, without a look at the row.
    [[nodiscard]] std::optional<RowExtent> knownExtent(const RowMeasure& measure) const
    {
        if (!m_metrics.isUniform(measure.range)) {
            return knownMixedExtent(measure);
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
    // The extent of any row. Where the widths of its words do not tell, that takes a text layout, a
    // hundred times as long as arithmetic. Notes in `measure`, which is the row's, what has been
    // found out.
    [[nodiscard]] RowExtent measure(const AttributedRow& row, RowMeasure& measure) const;

private:
    // What was found out about a row that is measured for the first time at this width.
    struct MixedLines {
        qsizetype count;
        // Widths in columns at which the row takes as many, besides that of the measurer.
        qsizetype from;
        qsizetype to;
    };

    [[nodiscard]] std::optional<RowExtent> knownMixedExtent(const RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureUniform(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureMixed(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureShaped(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureByLayout(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] RowExtent measureInPieces(const AttributedRow& row, RowMeasure& measure) const;
    [[nodiscard]] MixedLines linesOf(const ShapedMeasure& shaped, bool mayFitSooner) const;
    void note(const AttributedRow& row, const MixedLines& lines, RowMeasure& measure) const;
    // Of a row without tabs.
    void noteLines(const AttributedRow& row, const MixedLines& lines, RowMeasure& measure) const;

    const MonospaceMetrics& m_metrics;
    const LineBreaker& m_breaker;
    const WordLineBreaker& m_words;
    const PieceShaper& m_shaper;
    const RowLayouter& m_layouter;
    std::optional<Fixed> m_lineWidth;
    // Whether the line's width is one of those that are noted for rows measured in fractions of a
    // column: whole columns and half a one.
    bool m_isNotable;
    mutable std::u16string m_buffer; // one for all rows
};

} // namespace quillon
