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
        m_measures.clear();
        m_measures.reserve(static_cast<std::size_t>(text.rows().size()));
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
    m_width = 0;
    const ShapedExtents known = std::exchange(m_shapedExtents, ShapedExtents());
    measureRowsFrom(0, known);
}

// First what follows from what is known, then what must be looked at: those rows are known in
// advance then, and their texts can be sent for.
void LogTextLayout::measureRowsFrom(qsizetype firstRow, const ShapedExtents& known)
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
        take(unknownRows[i], extentOf(unknownRows[i], known));
    }
    for (std::size_t row = measured; row < count; ++row) {
        m_measures.push_back(m_layouter->firstLook(rows[static_cast<qsizetype>(row)]));
        take(row, extentOf(row, known));
    }
    quint32 lines = first == 0 ? 0 : m_lineEnds[first - 1];
    for (std::size_t row = first; row < count; ++row) {
        lines += m_lineEnds[row];
        m_lineEnds[row] = lines;
    }
}

RowExtent LogTextLayout::extentOf(std::size_t index, const ShapedExtents& known)
{
    const auto position = static_cast<qsizetype>(index);
    const AttributedRow& row = m_text.rows()[position];
    if (row.text().size() > kLongRow) {
        // It will be looked at soon, being most of the log.
        const RowLayout& layout = rowLayout(position);
        return m_layouter->extentOf(layout);
    }
    if (const auto extent = m_layouter->measure(row, m_measures[index])) {
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
