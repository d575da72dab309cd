// SPDX-License-Identifier: MIT
#include "ui/layout/line_breaking.h"

#include "ui/layout/break_opportunities.h"
#include "ui/layout/character_range.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/monospace_metrics.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr char16_t kFirstNonAscii = 0x80;

bool isSpaceAt(QStringView text, qsizetype at)
{
    return text[at] == u' ';
}

} // namespace

LineBreaker::LineBreaker(const MonospaceMetrics& metrics, const BreakOpportunities& opportunities,
                         Fixed width)
    : m_metrics(metrics), m_opportunities(opportunities), m_width(width),
      m_columns(width / metrics.columnAdvance())
{
}

BrokenLines LineBreaker::breakUniform(QStringView text, Fixed firstIndent,
                                      std::vector<qsizetype>* starts) const
{
    // Nearly every row's text begins at the first tab stop; dividing for each takes longer than all
    // the rest of a short row.
    qsizetype indent = firstIndent == m_metrics.tabDistance()
                           ? MonospaceMetrics::kTabColumns
                           : firstIndent / m_metrics.columnAdvance();
    qsizetype available = std::max<qsizetype>(0, m_columns - indent);
    BrokenLines lines;
    qsizetype start = 0;
    bool mayMoveWholeText = firstIndent > 0;
    while (text.size() - start > available) {
        const qsizetype limit = start + available;
        qsizetype next = limit;
        if (isSpaceAt(text, limit)) {
            while (next < text.size() && isSpaceAt(text, next)) {
                ++next;
            }
            // White space at the end hangs, so it never makes a line of its own.
            if (next == text.size()) {
                break;
            }
        } else {
            const qsizetype cut = mayMoveWholeText ? start : std::max(limit, start + 1);
            next = m_opportunities.lastIn(text, start, limit).value_or(cut);
        }
        mayMoveWholeText = false;
        lines.columns = std::max(lines.columns, indent + std::min(next - start, available));
        indent = 0;
        available = std::max<qsizetype>(1, m_columns);
        start = next;
        ++lines.count;
        if (starts != nullptr) {
            starts->push_back(start);
        }
    }
    lines.columns = std::max(lines.columns, indent + std::min(text.size() - start, available));
    return lines;
}

qsizetype LineBreaker::breakMixed(QStringView text, std::vector<qsizetype>* starts) const
{
    qsizetype lines = 1;
    for (qsizetype start = lineEnd(text, 0); start < text.size(); start = lineEnd(text, start)) {
        ++lines;
        if (starts != nullptr) {
            starts->push_back(start);
        }
    }
    return lines;
}

qsizetype LineBreaker::lineEnd(QStringView text, qsizetype start) const
{
    // The first character that is no space: what is before it belongs to the line in any case.
    std::optional<qsizetype> content;
    Fixed x = 0;
    bool isAfterBlocks = false;
    for (qsizetype at = start; at < text.size(); ++at) {
        const char16_t character = text[at].unicode();
        if (character >= kFirstNonAscii) {
            isAfterBlocks = false;
        } else if (content && !isAfterBlocks) {
            // What fits of the ASCII that begins here, but for less than a block.
            const qsizetype room = std::max<Fixed>(0, m_width - x) / m_metrics.columnAdvance();
            const qsizetype count = asciiBlocks(text.sliced(at, std::min(room, text.size() - at)));
            x += count * m_metrics.columnAdvance();
            at += count - 1;
            isAfterBlocks = true;
            continue;
        }
        const bool isFull = x > m_width;
        if (character == u'\t') {
            const Fixed stop = nextTabStop(x, m_metrics);
            // One tab may hang past the width, but none after spaces that already do.
            if (at > start && (isFull || stop > m_width)) {
                return isFull ? at : at + 1;
            }
            x = stop;
        } else {
            const Fixed right = x + m_metrics.advance(character).value_or(0);
            if (character != u' ' && right > m_width) {
                if (content) {
                    return m_opportunities.lastIn(text, *content, at).value_or(at);
                }
                if (isFull) {
                    return at;
                }
            }
            x = right;
        }
        if (!content && character != u' ') {
            content = at;
        }
    }
    return text.size();
}

Fixed nextTabStop(Fixed x, const MonospaceMetrics& metrics)
{
    // In units rounded like those of a text layout: a stop that is all but reached is passed over.
    const Fixed distance = metrics.tabDistance();
    const Fixed reached = (x * kFixedOne + distance / 2) / distance / kFixedOne;
    return (reached + 1) * distance;
}

Fixed widthOf(QStringView text, Fixed start, const MonospaceMetrics& metrics)
{
    Fixed x = start;
    for (const QChar character : text) {
        x = character == u'\t' ? nextTabStop(x, metrics)
                               : x + metrics.advance(character.unicode()).value_or(0);
    }
    return x - start;
}

} // namespace quillon
