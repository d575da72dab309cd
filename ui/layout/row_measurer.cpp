// SPDX-License-Identifier: MIT
#include "ui/layout/row_measurer.h"

#include "render/attributed_string.h"
#include "ui/layout/character_range.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/row_layouter.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr qsizetype kWidestNoted = std::numeric_limits<quint32>::max();

// Columns before the row's text: its number and a tab.
qsizetype indentOf(const AttributedRow& row)
{
    const qsizetype digits = row.prefixLength() - 1;
    return (digits / MonospaceMetrics::kTabColumns + 1) * MonospaceMetrics::kTabColumns;
}

void noteWidth(Fixed width, RowMeasure& measure)
{
    if (width <= kWidestNoted) {
        measure.width = static_cast<quint32>(width);
    }
}

} // namespace

RowMeasurer::RowMeasurer(const MonospaceMetrics& metrics, const LineBreaker& breaker,
                         const WordLineBreaker& words, const PieceShaper& shaper,
                         const RowLayouter& layouter, std::optional<Fixed> lineWidth)
    : m_metrics(metrics), m_breaker(breaker), m_words(words), m_shaper(shaper),
      m_layouter(layouter), m_lineWidth(lineWidth),
      m_isNotable(lineWidth.has_value() &&
                  *lineWidth % metrics.columnAdvance() == metrics.columnAdvance() / 2)
{
}

RowMeasure RowMeasurer::initialMeasure(const AttributedRow& row) const
{
    RowMeasure measure;
    measure.range = characterRangeOf(row.text());
    if (measure.range != CharacterRange::Any) {
        measure.width =
            static_cast<quint32>(std::min(indentOf(row) + row.text().size(), kWidestNoted));
    } else {
        constexpr qsizetype kLongest = std::numeric_limits<quint16>::max();
        measure.asciiLength = static_cast<quint16>(
            asciiBlocks(QStringView(row.text()).first(std::min(row.text().size(), kLongest))));
    }
    return measure;
}

RowExtent RowMeasurer::measure(const AttributedRow& row, RowMeasure& measure) const
{
    if (const auto known = knownExtent(measure)) {
        return *known;
    }
    if (m_metrics.isUniform(measure.range) &&
        indentOf(row) * m_metrics.columnAdvance() < *m_lineWidth) {
        return measureUniform(row, measure);
    }
    if (measure.shaping == RowShaping::Unknown) {
        const QStringView unknown = QStringView(row.text()).sliced(measure.asciiLength);
        measure.shaping = m_metrics.needsShaping(unknown) ? RowShaping::ByWords : RowShaping::None;
    }
    return measure.shaping == RowShaping::None ? measureMixed(row, measure)
                                               : measureShaped(row, measure);
}

RowExtent RowMeasurer::measureUniform(const AttributedRow& row, RowMeasure& measure) const
{
    const qsizetype indent = indentOf(row);
    const BrokenLines lines =
        m_breaker.breakUniform(row.text(), indent * m_metrics.columnAdvance(), nullptr);
    // A row that takes two lines takes two until it fits on one. (Spaces at its end may hang, so
    // that it fits sooner.)
    const bool staysTwo = lines.count == 2 && !row.text().endsWith(u' ');
    measure.lineCounts.add(std::max(lines.columns, indent + 1),
                           staysTwo ? measure.width - 1 : m_breaker.columns(), lines.count);
    return RowExtent{lines.count, 0};
}

// What is known of a row whose characters are of many widths. A column is left between what a row
// takes and where it is taken to fit: a text layout also asks how far the ink of each word's last
// letter reaches.
std::optional<RowExtent> RowMeasurer::knownMixedExtent(const RowMeasure& measure) const
{
    if (measure.range != CharacterRange::Any) {
        return std::nullopt;
    }
    if (!m_lineWidth) {
        return measure.width > 0 ? std::optional(RowExtent{1, measure.width}) : std::nullopt;
    }
    if (measure.width > 0 && measure.width + m_metrics.columnAdvance() <= *m_lineWidth) {
        return RowExtent{1, 0};
    }
    const auto lines =
        m_isNotable ? measure.lineCounts.at(m_breaker.columns()) : std::optional<qsizetype>();
    return lines ? std::optional(RowExtent{*lines, 0}) : std::nullopt;
}

RowExtent RowMeasurer::measureMixed(const AttributedRow& row, RowMeasure& measure) const
{
    // Control characters are measured as their pictures either way, so the row needs no copy of
    // its own to be measured.
    m_buffer.assign(QString::number(row.number()).toStdU16String());
    m_buffer += u'\t';
    m_buffer.append(reinterpret_cast<const char16_t*>(row.text().utf16()),
                    static_cast<std::size_t>(row.text().size()));
    const bool isNoted = measure.range == CharacterRange::Any;
    if (!m_lineWidth) {
        const Fixed width = widthOf(m_buffer, 0, m_metrics);
        if (isNoted) {
            noteWidth(width, measure);
        }
        return RowExtent{1, width};
    }
    const qsizetype count = m_breaker.breakMixed(m_buffer, nullptr);
    if (isNoted) {
        const qsizetype columns = m_breaker.columns();
        note(row, MixedLines{count, columns, count == 1 ? KnownLineCounts::kWidest : columns},
             measure);
    }
    return RowExtent{count, 0};
}

RowExtent RowMeasurer::measureShaped(const AttributedRow& row, RowMeasure& measure) const
{
    const QString& text = row.text();
    const Fixed indent = indentOf(row) * m_metrics.columnAdvance();
    const bool hasRoom = !m_lineWidth || indent <= *m_lineWidth;
    if (!hasRoom || row.length() > RowLayouter::kPieceLength) {
        return measureByLayout(row, measure);
    }
    const auto lines = m_words.measure(text, indent, measure.asciiLength);
    if (!lines) {
        return measureByLayout(row, measure);
    }
    if (!m_lineWidth) {
        noteWidth(lines->oneLine, measure);
        return RowExtent{1, lines->oneLine};
    }
    const ShapedMeasure shaped{static_cast<int>(lines->count), lines->widest, lines->oneLine};
    noteLines(row, linesOf(shaped, text.endsWith(u' ')), measure);
    return RowExtent{lines->count, 0};
}

RowExtent RowMeasurer::measureByLayout(const AttributedRow& row, RowMeasure& measure) const
{
    measure.shaping = RowShaping::ByLayout;
    const QString text = displayedText(row);
    const bool hasRoom = !m_lineWidth || indentOf(row) * m_metrics.columnAdvance() <= *m_lineWidth;
    const bool endsInSpace = text.back().isSpace();
    if (!hasRoom || text.size() > RowLayouter::kPieceLength ||
        (endsInSpace && text.back() != u' ') || text.contains(QChar::LineSeparator) ||
        text.contains(QChar::ParagraphSeparator)) {
        return measureInPieces(row, measure);
    }
    const ShapedMeasure shaped =
        m_shaper.measure(text, ShapedPiece{row.prefixLength(), text.size(),
                                           indentOf(row) / MonospaceMetrics::kTabColumns});
    if (shaped.lineCount == 1 && !(m_lineWidth && endsInSpace)) {
        noteWidth(shaped.widestLine, measure);
    }
    if (!m_lineWidth) {
        return RowExtent{1, shaped.widestLine};
    }
    note(row, linesOf(shaped, text.endsWith(u' ') || text.contains(kSoftHyphen)), measure);
    return RowExtent{shaped.lineCount, 0};
}

// A narrower line is broken at the same places as long as each line fits on it; and a row that
// takes two lines takes two until it fits on one. (Spaces at its end may hang, so that it fits
// sooner, and a soft hyphen takes room only where a line ends in it.)
RowMeasurer::MixedLines RowMeasurer::linesOf(const ShapedMeasure& shaped, bool mayFitSooner) const
{
    const Fixed column = m_metrics.columnAdvance();
    const qsizetype from = (shaped.widestLine + column / 2 + column - 1) / column;
    qsizetype to = m_breaker.columns();
    if (shaped.lineCount == 1) {
        to = KnownLineCounts::kWidest;
    } else if (shaped.lineCount == 2 && !mayFitSooner) {
        to = (shaped.oneLine - column - column / 2) / column;
    }
    return MixedLines{shaped.lineCount, from, to};
}

RowExtent RowMeasurer::measureInPieces(const AttributedRow& row, RowMeasure& measure) const
{
    const RowExtent extent = m_layouter.extentOf(m_layouter.layOut(row));
    if (m_lineWidth) {
        const qsizetype columns = m_breaker.columns();
        note(row, MixedLines{extent.lineCount, columns, columns}, measure);
    }
    return extent;
}

// Of tabs, which hang past the width in another way than spaces, nothing is concluded: only the
// width at hand is noted.
void RowMeasurer::note(const AttributedRow& row, const MixedLines& lines, RowMeasure& measure) const
{
    if (!row.text().contains(u'\t')) {
        noteLines(row, lines, measure);
    } else if (const qsizetype columns = m_breaker.columns();
               m_isNotable && columns > indentOf(row)) {
        measure.lineCounts = KnownLineCounts();
        measure.lineCounts.add(columns, columns, lines.count);
    }
}

// Between the widths that were noted before and these, the row takes as many lines too.
void RowMeasurer::noteLines(const AttributedRow& row, const MixedLines& lines,
                            RowMeasure& measure) const
{
    const qsizetype columns = m_breaker.columns();
    const qsizetype indent = indentOf(row);
    if (!m_isNotable || columns <= indent) {
        return;
    }
    measure.lineCounts.add(std::clamp(lines.from, indent + 1, columns), std::max(lines.to, columns),
                           lines.count);
}

} // namespace quillon
