// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/row_layout.h"
#include "ui/layout/shaped_line.h"

namespace quillon {

class MonospaceMetrics;

// Where the characters of a row that is laid out stand, and which one stands where.
class RowPlaces {
public:
    // Both must outlive the object, and be those that the row was laid out with.
    RowPlaces(const MonospaceMetrics& metrics, const PieceShaper& shaper)
        : m_metrics(metrics), m_shaper(shaper)
    {
    }

    // The place in its line of an offset within the fragment, which may be its end.
    [[nodiscard]] Fixed xOf(const RowLayout& layout, const RowFragment& fragment,
                            qsizetype offset) const;
    // The offset within the fragment whose place is nearest to `x`.
    [[nodiscard]] qsizetype offsetAt(const RowLayout& layout, const RowFragment& fragment,
                                     Fixed x) const;
    // The line that a fragment which needs shaping is, for drawing.
    [[nodiscard]] ShapedLine shapedLine(const RowLayout& layout, const RowFragment& fragment) const;

private:
    const MonospaceMetrics& m_metrics;
    const PieceShaper& m_shaper;
};

} // namespace quillon
