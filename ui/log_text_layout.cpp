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
constexpr qsizetype kPrefetchAhead = 8;

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
    if (!sameRows) {
        m_rowRanges.clear();
        m_rowRanges.reserve(static_cast<std::size_t>(text.rows().size()));
    }
    if (!sameLines) {
        m_metrics = std::move(metrics);
        m_lineWidth = lineWidth;
        m_layouter = std::make_unique<RowLayouter>(*m_metrics, m_opportunities, m_lineWidth);
        m_shapedExtents.clear();
    }
    m_text = text;
    if (firstRow > 0) {
        measureRowsFrom(firstRow, ShapedExtents());
        return;
    }
    m_cachedRows.clear();
    m_lineEnds.clear();
    m_width = 0;
    const ShapedExtents known = std::exchange(m_shapedExtents, ShapedExtents());
    measureRowsFrom(0, known);
}

void LogTextLayout::measureRowsFrom(qsizetype firstRow, const ShapedExtents& known)
{
    const auto& rows = m_text.rows();
    quint32 lines = m_lineEnds.empty() ? 0 : m_lineEnds.back();
    if (m_lineEnds.empty()) {
        m_lineEnds.reserve(static_cast<std::size_t>(rows.size()));
    }
    for (qsizetype row = firstRow; row < rows.size(); ++row) {
        if (row + kPrefetchAhead < rows.size()) {
            m_layouter->prefetch(rows[row + kPrefetchAhead]);
        }
        const RowExtent extent = extentOf(row, known);
        lines += static_cast<quint32>(extent.lineCount);
        m_lineEnds.push_back(lines);
        m_width = std::max(m_width, extent.width);
    }
}

RowExtent LogTextLayout::extentOf(qsizetype index, const ShapedExtents& known)
{
    const AttributedRow& row = m_text.rows()[index];
    const auto position = static_cast<std::size_t>(index);
    if (position == m_rowRanges.size()) {
        m_rowRanges.push_back(characterRangeOf(row.text()));
    }
    if (row.text().size() > kLongRow) {
        // It will be looked at soon, being most of the log.
        const RowLayout& layout = rowLayout(index);
        return m_layouter->extentOf(layout);
    }
    if (const auto extent = m_layouter->measure(row, m_rowRanges[position])) {
        return *extent;
    }
    const QChar* const key = row.text().constData();
    const auto found = known.constFind(key);
    const bool isKnown = found != known.constEnd() && found->prefixLength == row.prefixLength();
    const ShapedExtent shaped =
        isKnown ? *found
                : ShapedExtent{row.text(), row.prefixLength(), m_layouter->measureShaped(row)};
    m_shapedExtents.insert(key, shaped);
    return shaped.extent;
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
