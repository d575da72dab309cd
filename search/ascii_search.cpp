// SPDX-License-Identifier: MIT
#include "search/ascii_search.h"

#include "platform/utf16_block.h"

#include <QString>

#include <algorithm>

namespace quillon {

AsciiSearch::AsciiSearch(QLatin1StringView needle)
    : m_lower(QString(needle).toLower().toStdU16String()), m_first(unitOf(m_lower.front())),
      m_last(unitOf(m_lower.back()))
{
}

// The case bit turns a capital into its small letter; other characters it would turn into a small
// letter are none, so for letters nothing else passes.
AsciiSearch::Unit AsciiSearch::unitOf(char16_t lower)
{
    const bool isLetter = lower >= u'a' && lower <= u'z';
    return Unit{static_cast<char16_t>(isLetter ? 0x20 : 0), lower};
}

bool AsciiSearch::isAt(const char16_t* units) const
{
    return std::equal(m_lower.begin(), m_lower.end(), units,
                      [](char16_t wanted, char16_t unit) { return isUnit(unit, unitOf(wanted)); });
}

qsizetype AsciiSearch::find(QStringView text, qsizetype from) const
{
    const char16_t* const units = text.utf16();
    const qsizetype toLast = length() - 1;
    const qsizetype starts = text.size() - toLast; // places where an occurrence may begin
    const auto mayStart = [&](qsizetype at) {
        return isUnit(units[at], m_first) && isUnit(units[at + toLast], m_last);
    };
    // Whether any of the places of a block has both the first and the last character; where none
    // has, none needs a closer look.
    const auto candidates = [&](qsizetype at) {
        const Utf16Block first = loadUtf16Block(units + at);
        const Utf16Block last = loadUtf16Block(units + at + toLast);
        const auto both = ((first | m_first.caseBit) == m_first.value) &
                          ((last | m_last.caseBit) == m_last.value);
        return reinterpret_cast<const Utf16Block&>(both);
    };
    constexpr qsizetype kStep = 2 * kUtf16BlockSize;
    qsizetype at = from;
    while (at < starts) {
        qsizetype stop = starts;
        if (at + kStep <= starts) {
            stop = at + kStep;
            if (!hasAnyBit(candidates(at) | candidates(at + kUtf16BlockSize))) {
                at = stop;
                continue;
            }
        } else if (starts >= kStep) {
            // The last places, looked at together with some that have been looked at before.
            const qsizetype lastStep = starts - kStep;
            if (!hasAnyBit(candidates(lastStep) | candidates(lastStep + kUtf16BlockSize))) {
                return -1;
            }
        }
        for (; at < stop; ++at) {
            if (mayStart(at) && isAt(units + at)) {
                return at;
            }
        }
    }
    return -1;
}

qsizetype AsciiSearch::placeBetween(QStringView text, qsizetype at) const
{
    const qsizetype overlap = length() - 1;
    while (overlap > 0 && at > 0) {
        const qsizetype from = std::max<qsizetype>(0, at - overlap);
        const qsizetype to = std::min(at + overlap, text.size());
        const qsizetype across = find(text.sliced(from, to - from));
        if (across < 0) {
            break;
        }
        at = from + across;
    }
    return at;
}

std::vector<TextRange> AsciiSearch::occurrencesIn(QStringView text, const TextRange& range) const
{
    std::vector<TextRange> occurrences;
    const qsizetype start = std::clamp<qsizetype>(range.start, 0, text.size());
    for (qsizetype at = find(text, placeBetween(text, start)); at >= 0 && at < range.end();
         at = find(text, at + length())) {
        if (at + length() > start) {
            occurrences.push_back(TextRange{at, length()});
        }
    }
    return occurrences;
}

} // namespace quillon
