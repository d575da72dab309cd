// SPDX-License-Identifier: MIT
#include "ui/layout/log_text_layout.h"

#include <algorithm>

namespace quillon {

namespace {

// Rows kept in detail: more than a large screen shows.
constexpr std::size_t kMaximumCachedRows = 256;
// UTF-16 units from which on a row is laid out in detail at once instead of being measured first
// and laid out when it is shown: for a line of two million, that is half of the work.
constexpr qsizetype kLongRow = 65'536;
constexpr std::size_t kMaximumLongRows = 2;
// UTF-16 units whose style is worked out at a time: whole rows, but for those of dumps and of code
// without line ends.
constexpr qsizetype kPartLength = 16'384;
// Texts without a row that is known before the known ones are given up: as many as keys are typed
// into the search field, and taken back, without a row with such characters being found.
constexpr int kMaximumForeignTexts = 32;

} // namespace

LogTextLayout::LogTextLayout() = default;
LogTextLayout::~LogTextLayout() = default;

bool LogTextLayout::layOut(const AttributedString& text,
                           std::shared_ptr<const MonospaceMetrics> metrics,
                           std::optional<Fixed> lineWidth)
{
    const bool sameLines = m_metrics == metrics && m_lineWidth == lineWidth;
    const bool sameRows = text.isExtensionOf(m_text);
    const qsizetype firstRow = sameLines && sameRows ? m_text.rows().size() : 0;
    const bool isOther = !sameLines || !sameRows || text.rows().size() > firstRow;
    if (firstRow == 0) {
        keepLongRow();
    }
    if (m_metrics != metrics) {
        forgetFont();
    }
    if (!sameRows) {
        keepShapedRows();
        m_mixedRows.clear();
        m_measures.clear();
        m_measures.reserve(text.rows().size());
    }
    if (!sameLines) {
        m_metrics = std::move(metrics);
        m_lineWidth = lineWidth;
        m_engine = std::make_unique<RowEngine>(*m_metrics, m_opportunities, m_lineWidth);
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
    return isOther;
}

void LogTextLayout::forgetFont()
{
    m_longRows.clear();
    m_knownRows.clear();
    for (const qsizetype row : m_mixedRows) {
        const RowMeasure& former = m_measures.at(row);
        RowMeasure unknown;
        unknown.asciiLength = former.asciiLength;
        unknown.shaping = std::min(former.shaping, RowShaping::ByWords);
        m_measures[row] = unknown;
    }
}

void LogTextLayout::keepShapedRows()
{
    for (const qsizetype index : m_mixedRows) {
        if (m_measures.at(index).shaping == RowShaping::ByLayout) {
            const AttributedRow& row = m_text.rows()[index];
            m_knownRows.insert(row.text().constData(),
                               KnownRow{row.text(), row.prefixLength(), m_measures.at(index)});
        }
    }
}

// What another log had need not be kept here either.
void LogTextLayout::keepLongRow()
{
    const auto cached =
        std::find_if(m_cachedRows.begin(), m_cachedRows.end(), [this](const CachedRow& each) {
            return m_text.rows()[each.row].text().size() > kLongRow;
        });
    if (cached == m_cachedRows.end()) {
        m_longRows.clear();
        return;
    }
    const AttributedRow& row = m_text.rows()[cached->row];
    std::erase_if(m_longRows, [&](const KnownLongRow& known) {
        return known.text.constData() != row.text().constData() || known.lineWidth == m_lineWidth;
    });
    m_longRows.push_back({row.text(), row.prefixLength(), m_lineWidth, std::move(cached->layout)});
    if (m_longRows.size() > kMaximumLongRows) {
        m_longRows.erase(m_longRows.begin());
    }
}

RowLayout LogTextLayout::layOutInDetail(const AttributedRow& row) const
{
    const auto known =
        std::find_if(m_longRows.begin(), m_longRows.end(), [&](const KnownLongRow& each) {
            return each.text.constData() == row.text().constData() &&
                   each.prefixLength == row.prefixLength() && each.lineWidth == m_lineWidth;
        });
    if (known == m_longRows.end()) {
        return m_engine->layouter.layOut(row);
    }
    RowLayout layout = std::move(known->layout);
    m_longRows.erase(known);
    return layout;
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

void LogTextLayout::measureRowsFrom(qsizetype firstRow)
{
    const auto& rows = m_text.rows();
    const qsizetype count = rows.size();
    m_lineEnds.resize(count);
    quint32* const lineEnds = m_lineEnds.data();
    quint32 lines = firstRow == 0 ? 0 : lineEnds[firstRow - 1];
    for (qsizetype row = firstRow; row < count; ++row) {
        if (row == m_measures.size()) {
            m_measures.append(initialMeasure(rows[row]));
            if (m_measures.constLast().range == CharacterRange::Any) {
                m_mixedRows.push_back(row);
            }
        }
        RowMeasure& measure = m_measures[row];
        const auto known = m_engine->measurer.knownExtent(measure);
        const RowExtent extent = known ? *known : extentOf(row, measure);
        lines += static_cast<quint32>(extent.lineCount);
        lineEnds[row] = lines;
        m_width = std::max(m_width, extent.width);
    }
}

RowMeasure LogTextLayout::initialMeasure(const AttributedRow& row)
{
    RowMeasure measure = m_engine->measurer.initialMeasure(row);
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

RowExtent LogTextLayout::extentOf(qsizetype index, RowMeasure& measure)
{
    const AttributedRow& row = m_text.rows()[index];
    if (row.text().size() > kLongRow) {
        // It will be looked at soon, being most of the log.
        const RowLayout& layout = rowLayout(index);
        return m_engine->layouter.extentOf(layout);
    }
    return m_engine->measurer.measure(row, measure);
}

qint64 LogTextLayout::lineCount() const
{
    return firstLineOf(m_text.rows().size()) + 1;
}

qint64 LogTextLayout::firstLineOf(qsizetype row) const
{
    return row == 0 ? 0 : m_lineEnds[row - 1];
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
    m_cachedRows.push_front(CachedRow{row, layOutInDetail(m_text.rows()[row]), nullptr, {}, {}});
    if (m_cachedRows.size() > kMaximumCachedRows) {
        m_cachedRows.pop_back();
    }
    return m_cachedRows.front();
}

const RowLayout& LogTextLayout::rowLayout(qsizetype row) const
{
    return cachedRow(row).layout;
}

LogTextLayout::PartRuns LogTextLayout::runsIn(qsizetype row, const TextRange& part,
                                              const std::function<bool()>& isEnough) const
{
    CachedRow& cached = cachedRow(row);
    const bool isThere = part.start >= cached.part.start && part.end() <= cached.part.end();
    if (cached.isComplete && isThere) {
        return {cached.runs, true};
    }
    const AttributedRow& attributed = m_text.rows()[row];
    if (!cached.style) {
        cached.style = attributed.style();
    }
    const qsizetype start = part.start / kPartLength * kPartLength;
    const qsizetype end =
        std::min((part.end() / kPartLength + 1) * kPartLength, attributed.length());
    cached.isComplete = cached.style->advance(end);
    while (!cached.isComplete && !isEnough()) {
        cached.isComplete = cached.style->advance(end);
    }
    cached.part = TextRange{start, end - start};
    cached.runs = cached.style->runsIn(cached.part);
    return {cached.runs, cached.isComplete};
}

} // namespace quillon
