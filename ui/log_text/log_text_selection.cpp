// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_selection.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace quillon {

namespace {

// Words are looked for this far around the place, so that a double click in a line of two million
// characters does not read it all.
constexpr qsizetype kWordReach = 1024;

} // namespace

void LogTextSelection::begin(const AttributedString& text, TextPosition position,
                             SelectionGranularity granularity)
{
    m_granularity = granularity;
    m_anchor = widened(text, position);
    extendTo(text, position);
}

void LogTextSelection::extendTo(const AttributedString& text, TextPosition position)
{
    const Span span = widened(text, position);
    m_caret = position;
    m_start = std::min(m_anchor.first, span.first);
    m_end = std::max(m_anchor.second, span.second);
}

void LogTextSelection::selectAll(const AttributedString& text)
{
    select(TextPosition{}, TextPosition{text.rows().size(), 0});
}

void LogTextSelection::select(TextPosition start, TextPosition end)
{
    m_granularity = SelectionGranularity::Character;
    m_anchor = {start, start};
    m_caret = end;
    m_start = std::min(start, end);
    m_end = std::max(start, end);
}

QString LogTextSelection::textIn(const AttributedString& text) const
{
    QString selected;
    for (qsizetype row = m_start.row; row <= m_end.row && row < text.rows().size(); ++row) {
        const QString string = text.rows()[row].string();
        const qsizetype from = row == m_start.row ? m_start.offset : 0;
        const qsizetype to = row == m_end.row ? m_end.offset : string.size();
        selected += QStringView(string).sliced(from, std::max<qsizetype>(0, to - from));
    }
    return selected;
}

QString LogTextSelection::linesIn(const AttributedString& text) const
{
    // A selection that ends where a row begins holds nothing of that row.
    const qsizetype last =
        std::min(m_end.offset > 0 ? m_end.row : m_end.row - 1, text.rows().size() - 1);
    QString lines;
    for (qsizetype row = m_start.row; row <= last; ++row) {
        lines += text.rows()[row].text();
        lines += u'\n';
    }
    return lines;
}

LogTextSelection::Span LogTextSelection::widened(const AttributedString& text,
                                                 TextPosition position) const
{
    if (m_granularity == SelectionGranularity::Character || position.row >= text.rows().size()) {
        return {position, position};
    }
    if (m_granularity == SelectionGranularity::Row) {
        return {TextPosition{position.row, 0}, TextPosition{position.row + 1, 0}};
    }
    const QString string = text.rows()[position.row].string();
    const qsizetype start = std::max<qsizetype>(0, position.offset - kWordReach);
    const qsizetype end = std::min(string.size() - 1, position.offset + kWordReach);
    const QString around = string.sliced(start, end - start);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, around);
    const qsizetype offset = std::clamp<qsizetype>(position.offset - start, 0, around.size());
    finder.setPosition(offset);
    const qsizetype wordStart =
        finder.isAtBoundary() && offset < around.size() ? offset : finder.toPreviousBoundary();
    finder.setPosition(offset);
    const qsizetype wordEnd = finder.toNextBoundary();
    return {TextPosition{position.row, start + std::max<qsizetype>(0, wordStart)},
            TextPosition{position.row, start + (wordEnd < 0 ? around.size() : wordEnd)}};
}

} // namespace quillon
