// SPDX-License-Identifier: MIT
#include "model/records/line_enumeration.h"

#include "platform/utf16_block.h"

#include <algorithm>
#include <cstdint>

namespace quillon {

namespace {

constexpr bool isRareTerminator(char16_t unit)
{
    return unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

constexpr std::uint16_t kCarriageReturn = 0x000D;
constexpr std::uint16_t kNextLine = 0x0085;
// U+2028 and U+2029, which differ in their last bit.
constexpr std::uint16_t kSeparators = 0x2028;
constexpr std::uint16_t kButLastBit = 0xFFFE;

// Nearly every span has none, so all of it is looked at in any case.
bool hasRareTerminator(QStringView text)
{
    const char16_t* const units = text.utf16();
    Utf16Block found{};
    qsizetype at = 0;
    for (; at + kUtf16BlockSize <= text.size(); at += kUtf16BlockSize) {
        const Utf16Block block = loadUtf16Block(units + at);
        const auto rare = (block == kCarriageReturn) | (block == kNextLine) |
                          ((block & kButLastBit) == kSeparators);
        found |= reinterpret_cast<const Utf16Block&>(rare);
    }
    return hasAnyBit(found) || std::any_of(units + at, units + text.size(), isRareTerminator);
}

// A terminator all by itself ends no line: a program that appends one to a followed log has not
// written a line yet.
bool isOneTerminator(QStringView text)
{
    if (text.size() == 1) {
        return text.front() == u'\n' || isRareTerminator(text.front().unicode());
    }
    return text == u"\r\n";
}

} // namespace

LineEnumeration::LineEnumeration(QStringView text, Scope scope)
    : m_rest(scope == Scope::Whole && isOneTerminator(text) ? QStringView() : text)
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
