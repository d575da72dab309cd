// SPDX-License-Identifier: MIT
#include "ui/log_text_layout.h"

#include <algorithm>

namespace quillon {

namespace {

// Rows kept in detail: more than a large screen shows.
constexpr std::size_t kMaximumCachedRows = 256;
// UTF-16 units from which on a row is laid out in detail at once instead of being measured first
// and laid out when it is shown: for a line of two million, that is half of the work.
constexpr qsizetype kLongRow = 65'536;
// Measuring a row is mostly waiting for its text to come from memory, so that of a later row is
// sent for meanwhile.
constexpr int kPrefetchAhead = 8;

// Texts without a row that is known before the known ones are given up: as many as keys are typed
// into the search field, and taken back, without a row with such characters being found.
constexpr int kMaximumForeignTexts = 32;

} // namespace

LogTextLayout::LogTextLayout() = default;
LogTextLayout::~LogTextLayout() = default;

void LogTextLayout::layOut(const AttributedString& text,
                           std::shared_ptr<const MonospaceMetrics> metrics,
                           std::optional<Fixed> lineWidth)
{
    const bool sameLines = m_metrics == metrics && m_lineWidth == lineWidth;
    const bool sameRows = text.isExtensionOf(m_text);
    const qsizetype firstRow = sameLines && sameRows ? m_text.rows().size() : 0;
    if (m_metrics != metrics) {
        forgetFont();
    }
    if (!sameRows) {
        keepShapedRows();
        m_mixedRows.clear();
        m_measures.clear();
        m_measures.reserve(static_cast<std::size_t>(text.rows().size()));
    }
    if (!sameLines) {
        m_metrics = std::move(metrics);
        m_lineWidth = lineWidth;
        m_layouter = std::make_unique<RowLayouter>(*m_metrics, m_opportunities, m_lineWidth);
    }
    m_text = text;
    if (firstRow == 0) {
        m_cachedRows.clear();
        m_width = 0;
    }
    measureRowsFrom(firstRow);
    if (!sameRows) {
        dropForeignRows();
    }
}

void LogTextLayout::forgetFont()
{
    m_knownRows.clear();
    for (const std::size_t row : m_mixedRows) {
        m_measures[row] = RowMeasure();
    }
}

void LogTextLayout::keepShapedRows()
{
    for (const std::size_t index : m_mixedRows) {
        if (m_measures[index].isShaped) {
            const AttributedRow& row = m_text.rows()[static_cast<qsizetype>(index)];
            m_knownRows.insert(row.text().constData(),
                               KnownRow{row.text(), row.prefixLength(), m_measures[index]});
        }
    }
}

// What another log had need not be kept.
void LogTextLayout::dropForeignRows()
{
    m_textsWithoutKnownRow = m_hasKnownRow ? 0 : m_textsWithoutKnownRow + 1;
    m_hasKnownRow = false;
    if (m_textsWithoutKnownRow > kMaximumForeignTexts) {
        m_knownRows.clear();
    }
}

// First what follows from what is known, then what must be looked at: those rows are known in
// advance then, and their texts can be sent for.
void LogTextLayout::measureRowsFrom(qsizetype firstRow)
{
    const auto& rows = m_text.rows();
    const auto count = static_cast<std::size_t>(rows.size());
    const auto first = static_cast<std::size_t>(firstRow);
    m_lineEnds.resize(count);
    const auto take = [this](std::size_t row, const RowExtent& extent) {
        m_lineEnds[row] = static_cast<quint32>(extent.lineCount);
        m_width = std::max(m_width, extent.width);
    };
    std::vector<std::size_t> unknownRows;
    const std::size_t measured = std::clamp(m_measures.size(), first, count);
    for (std::size_t row = first; row < measured; ++row) {
        if (const auto extent = m_layouter->recall(m_measures[row])) {
            take(row, *extent);
        } else {
            unknownRows.push_back(row);
        }
    }
    for (std::size_t i = 0; i < unknownRows.size(); ++i) {
        if (i + kPrefetchAhead < unknownRows.size()) {
            m_layouter->prefetch(rows[static_cast<qsizetype>(unknownRows[i + kPrefetchAhead])]);
        }
        take(unknownRows[i], extentOf(unknownRows[i]));
    }
    for (std::size_t row = measured; row < count; ++row) {
        m_measures.push_back(firstLook(rows[static_cast<qsizetype>(row)]));
        if (m_measures.back().range == CharacterRange::Any) {
            m_mixedRows.push_back(row);
        }
        take(row, extentOf(row));
    }
    quint32 lines = first == 0 ? 0 : m_lineEnds[first - 1];
    for (std::size_t row = first; row < count; ++row) {
        lines += m_lineEnds[row];
        m_lineEnds[row] = lines;
    }
}

RowMeasure LogTextLayout::firstLook(const AttributedRow& row)
{
    RowMeasure measure = m_layouter->firstLook(row);
    if (measure.range != CharacterRange::Any) {
        return measure;
    }
    const auto known = m_knownRows.constFind(row.text().constData());
    if (known == m_knownRows.constEnd() || known->prefixLength != row.prefixLength()) {
        return measure;
    }
    m_hasKnownRow = true;
    return known->measure;
}

RowExtent LogTextLayout::extentOf(std::size_t index)
{
    const auto position = static_cast<qsizetype>(index);
    const AttributedRow& row = m_text.rows()[position];
    if (row.text().size() > kLongRow) {
        // It will be looked at soon, being most of the log.
        const RowLayout& layout = rowLayout(position);
        return m_layouter->extentOf(layout);
    }
    RowMeasure& measure = m_measures[index];
    const auto extent = m_layouter->measure(row, measure);
    return extent ? *extent : m_layouter->measureShaped(row, measure);
}

qint64 LogTextLayout::lineCount() const
{
    return firstLineOf(m_text.rows().size()) + 1;
}

qint64 LogTextLayout::firstLineOf(qsizetype row) const
{
    return row == 0 ? 0 : m_lineEnds[static_cast<std::size_t>(row) - 1];
}

VisualLine LogTextLayout::visualLine(qint64 line) const
{
    const auto end = std::upper_bound(m_lineEnds.begin(), m_lineEnds.end(), line);
    const qsizetype row = end - m_lineEnds.begin();
    return VisualLine{row, line - firstLineOf(row)};
}

LogTextLayout::CachedRow& LogTextLayout::cachedRow(qsizetype row) const
{
    const auto cached = std::find_if(m_cachedRows.begin(), m_cachedRows.end(),
                                     [row](const CachedRow& entry) { return entry.row == row; });
    if (cached != m_cachedRows.end()) {
        m_cachedRows.splice(m_cachedRows.begin(), m_cachedRows, cached);
        return m_cachedRows.front();
    }
    m_cachedRows.push_front(CachedRow{row, m_layouter->layOut(m_text.rows()[row]), std::nullopt});
    if (m_cachedRows.size() > kMaximumCachedRows) {
        m_cachedRows.pop_back();
    }
    return m_cachedRows.front();
}

const RowLayout& LogTextLayout::rowLayout(qsizetype row) const
{
    return cachedRow(row).layout;
}

const std::vector<AttributeRun>& LogTextLayout::rowRuns(qsizetype row) const
{
    CachedRow& cached = cachedRow(row);
    if (!cached.runs) {
        cached.runs = m_text.rows()[row].runs();
    }
    return *cached.runs;
}

} // namespace quillon
