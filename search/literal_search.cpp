// SPDX-License-Identifier: MIT
#include "search/literal_search.h"

#include "platform/utf16_block.h"
#include "search/case_folding.h"
#include "search/case_lowering.h"

#include <algorithm>

namespace quillon {

namespace {

bool isAsciiText(const QString& text)
{
    return isAscii(reinterpret_cast<const char16_t*>(text.utf16()), text.size());
}

} // namespace

LiteralSearch::LiteralSearch(const QString& literal) : m_lowerCased(lowerCased(literal))
{
    if (isAsciiText(m_lowerCased)) {
        m_ascii.emplace(QLatin1StringView(m_lowerCased.toLatin1()));
    }
}

// The characters that lower case makes ASCII are among those that folding does.
const AsciiSearch* LiteralSearch::lettersFor(const QString& text) const
{
    return m_ascii && !hasCharacterFoldingToAscii(text) ? &*m_ascii : nullptr;
}

bool LiteralSearch::isIn(const QString& text) const
{
    if (const AsciiSearch* const letters = lettersFor(text)) {
        return letters->find(text) >= 0;
    }
    const bool isOutOfReach = !m_ascii && isAsciiText(text);
    return !isOutOfReach && lowerCased(text).contains(m_lowerCased);
}

std::vector<TextRange> LiteralSearch::rangesIn(const QString& text) const
{
    if (const AsciiSearch* const letters = lettersFor(text)) {
        return letters->occurrencesIn(text, TextRange{0, text.size()});
    }
    const QString lowered = lowerCased(text);
    std::vector<TextRange> ranges;
    for (qsizetype at = lowered.indexOf(m_lowerCased); at >= 0;
         at = lowered.indexOf(m_lowerCased, at + m_lowerCased.size())) {
        const qsizetype end = std::min(at + m_lowerCased.size(), text.size());
        if (at < end) {
            ranges.push_back(TextRange{at, end - at});
        }
    }
    return ranges;
}

} // namespace quillon
