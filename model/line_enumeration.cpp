// SPDX-License-Identifier: MIT
#include "model/line_enumeration.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr bool isRareTerminator(char16_t unit)
{
    return unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

// Branch-free over the whole stretch, which vectorises; nearly every one has none.
bool hasRareTerminator(QStringView text)
{
    unsigned found = 0;
    for (const QChar unit : text) {
        found |= unsigned{isRareTerminator(unit.unicode())};
    }
    return found != 0;
}

bool isOneTerminator(QStringView text)
{
    if (text.size() == 1) {
        return text.front() == u'\n' || isRareTerminator(text.front().unicode());
    }
    return text == u"\r\n";
}

} // namespace

LineEnumeration::LineEnumeration(QStringView text)
    : m_rest(isOneTerminator(text) ? QStringView() : text)
{
}

void LineEnumeration::findNextLineFeed()
{
    const qsizetype found = m_rest.indexOf(u'\n');
    m_lineFeed = found < 0 ? m_rest.size() : found;
    m_hasRareTerminator = hasRareTerminator(m_rest.first(m_lineFeed));
}

std::optional<QStringView> LineEnumeration::next()
{
    if (m_rest.isEmpty()) {
        return std::nullopt;
    }
    if (m_lineFeed < 0) {
        findNextLineFeed();
    }
    qsizetype end = m_lineFeed;
    if (m_hasRareTerminator) {
        const auto* const begin = m_rest.utf16();
        end = std::find_if(begin, begin + m_lineFeed, isRareTerminator) - begin;
    }
    const bool isPair = end + 1 == m_lineFeed && m_lineFeed < m_rest.size() && m_rest[end] == u'\r';
    const qsizetype next = std::min(end + (isPair ? 2 : 1), m_rest.size());
    const QStringView line = m_rest.first(end);
    m_rest = m_rest.sliced(next);
    m_lineFeed = next > m_lineFeed ? -1 : m_lineFeed - next;
    return line;
}

} // namespace quillon
