// SPDX-License-Identifier: MIT
#include "ui/layout/row_measure.h"

#include <algorithm>
#include <limits>

namespace quillon {

void KnownLineCounts::add(qsizetype from, qsizetype to, qsizetype lines)
{
    if (from > std::min(to, kWidest) || lines > std::numeric_limits<qint32>::max()) {
        return;
    }
    const Span added{static_cast<quint16>(from), static_cast<quint16>(std::min(to, kWidest)),
                     static_cast<quint32>(lines)};
    for (Span& span : m_spans) {
        if (span.lines == added.lines) {
            span.from = std::min(span.from, added.from);
            span.to = std::max(span.to, added.to);
            return;
        }
    }
    m_spans[1] = m_spans[0];
    m_spans[0] = added;
}

} // namespace quillon
