// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

namespace quillon {

// The lines of a text, one after the other. A line ends at LF, CR, the pair CR LF, U+0085, U+2028
// or U+2029 and is given without it. Empty lines are given too; a terminator at the very end of the
// text starts no further line, and a text that is nothing but one terminator has no line at all: it
// only ends what was written before it. The text must outlive the enumeration.
class LineEnumeration {
public:
    // Whether the text is all that there is, or a part of it that begins and ends where a line
    // does.
    enum class Scope : std::uint8_t { Whole, Part };

    explicit LineEnumeration(QStringView text, Scope scope = Scope::Whole);

    // The next line, none after the last one.
    std::optional<QStringView> next();

private:
    void findNextLineFeed();

    QStringView m_rest;
    // The span up to the next line feed (or the end) is looked over once, however many lines the
    // rarer terminators make of it.
    qsizetype m_lineFeed = -1;
    bool m_hasRareTerminator = false;
};

} // namespace quillon
