// SPDX-License-Identifier: MIT
#include "render/row_style.h"

#include <algorithm>

namespace quillon {

std::vector<AttributeRun> SettledStyle::runsIn(const TextRange& part) const
{
    auto run = std::partition_point(m_runs.begin(), m_runs.end(), [&](const AttributeRun& each) {
        return each.end() <= part.start;
    });
    std::vector<AttributeRun> runs;
    for (; run != m_runs.end() && run->start < part.end(); ++run) {
        const qsizetype start = std::max(run->start, part.start);
        runs.push_back({start, std::min(run->end(), part.end()) - start, run->attributes});
    }
    return runs;
}

} // namespace quillon
