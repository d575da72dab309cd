// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/character_range.h"

#include <QtGlobal>

#include <array>
#include <cstdint>
#include <limits>
#include <optional>

namespace quillon {

// How many lines one row takes at which widths, as far as it has been found out. A text without
// tabs never takes more lines on a wider line, so what holds at two widths holds between them too:
// while a window's edge is dragged to and fro, or text sizes are tried, hardly a row has to be
// looked at again.
class KnownLineCounts {
public:
    // The number of lines at a width in columns; none where it is not known.
    [[nodiscard]] std::optional<qsizetype> at(qsizetype columns) const
    {
        for (const Span& span : m_spans) {
            if (columns >= span.from && columns <= span.to) {
                return span.lines;
            }
        }
        return std::nullopt;
    }

    // Notes that the row takes so many lines at all widths from `from` to `to` columns. The two
    // latest line counts are kept. Widths above 65,535 columns are not noted, and nothing is where
    // there is no such width.
    void add(qsizetype from, qsizetype to, qsizetype lines);

    static constexpr qsizetype kWidest = std::numeric_limits<quint16>::max();

private:
    struct Span {
        quint16 from = 1; // columns; an empty range knows nothing
        quint16 to = 0;
        quint32 lines = 0;
    };

    std::array<Span, 2> m_spans; // latest first
};

// What it takes to find out how wide a row of many widths is. Whether characters need shaping is
// the same in all fonts; by words, those do that are known.
enum class RowShaping : std::uint8_t { Unknown, None, ByWords, ByLayout };

// What is kept of a row so that its extent need not be asked from its text again. Of a row of range
// Any it holds for one font, since its characters are of many widths.
struct RowMeasure {
    // What the row would take on one line, the room of its number included: in columns, as if all
    // its characters were of one width; of a row of range Any in 1/64 of a point, 0 where it is not
    // known. What is beyond 32 bits is cut off to their largest.
    quint32 width = 0;
    CharacterRange range = CharacterRange::Any;
    RowShaping shaping = RowShaping::Unknown;
    // Of a row of range Any: UTF-16 units at its beginning that are known to be ASCII.
    quint16 asciiLength = 0;
    KnownLineCounts lineCounts;
};

} // namespace quillon
