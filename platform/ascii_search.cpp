// SPDX-License-Identifier: MIT
#include "platform/ascii_search.h"

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
    qsizetype at = from;
    while (at < starts) {
        qsizetype stop = starts;
        if (at + kUtf16BlockSize <= starts) {
            // Where no place has both the first and the last character, none needs a closer look.
            const Utf16Block first = loadUtf16Block(units + at);
            const Utf16Block last = loadUtf16Block(units + at + toLast);
            const auto candidates = ((first | m_first.caseBit) == m_first.value) &
                                    ((last | m_last.caseBit) == m_last.value);
            if (!hasAnyBit(reinterpret_cast<const Utf16Block&>(candidates))) {
                at += kUtf16BlockSize;
                continue;
            }
            stop = at + kUtf16BlockSize;
        }
        for (; at < stop; ++at) {
            if (mayStart(at) && isAt(units + at)) {
                return at;
            }
        }
    }
    return -1;
}

} // namespace quillon
