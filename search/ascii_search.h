// SPDX-License-Identifier: MIT
#pragma once

#include "search/text_range.h"

#include <QLatin1StringView>
#include <QStringView>

#include <cstdint>
#include <string>
#include <vector>

namespace quillon {

// Finds an ASCII text in others without regard to the case of ASCII letters.
class AsciiSearch {
public:
    // `needle` must be ASCII and not empty.
    explicit AsciiSearch(QLatin1StringView needle);

    // Where the first occurrence at or after `from` begins, in UTF-16 units; −1 where there is
    // none.
    [[nodiscard]] qsizetype find(QStringView text, qsizetype from = 0) const;

    // Of all occurrences, found one behind the other from the text's beginning, those that have a
    // unit in the range. What lies far before it is not looked at unless the needle can overlap
    // itself there all the way.
    [[nodiscard]] std::vector<TextRange> occurrencesIn(QStringView text,
                                                       const TextRange& range) const;

    // Length of the needle, and so of what is found.
    [[nodiscard]] qsizetype length() const { return static_cast<qsizetype>(m_lower.size()); }

private:
    // One unit of the needle in a form that takes two instructions to compare: bits that are to be
    // set in the text's unit (the one that tells small letters from capitals), then the value.
    struct Unit {
        // Not char16_t, which clang 14 cannot combine with a vector of numbers.
        std::uint16_t caseBit;
        std::uint16_t value;
    };
    [[nodiscard]] static Unit unitOf(char16_t lower);
    [[nodiscard]] static bool isUnit(char16_t unit, Unit wanted)
    {
        return static_cast<char16_t>(unit | wanted.caseBit) == wanted.value;
    }
    [[nodiscard]] bool isAt(const char16_t* units) const;
    // The last place at or before `at` that no occurrence can lie across, so that those behind it
    // are found the same from there.
    [[nodiscard]] qsizetype placeBetween(QStringView text, qsizetype at) const;

    std::u16string m_lower;
    Unit m_first;
    Unit m_last;
};

} // namespace quillon
