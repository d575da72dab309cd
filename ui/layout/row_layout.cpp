// SPDX-License-Identifier: MIT
#include "ui/layout/row_layout.h"

#include <algorithm>

namespace quillon {

std::size_t RowLayout::fragmentAt(qsizetype offset) const
{
    const auto after = std::upper_bound(
        fragments.begin(), fragments.end(), offset,
        [](qsizetype at, const RowFragment& fragment) { return at < fragment.start; });
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, after - fragments.begin() - 1));
}

std::pair<std::size_t, std::size_t> RowLayout::fragmentsOfLine(qsizetype line) const
{
    const auto range = std::equal_range(
        fragments.begin(), fragments.end(), RowFragment{.line = line},
        [](const RowFragment& a, const RowFragment& b) { return a.line < b.line; });
    return {static_cast<std::size_t>(range.first - fragments.begin()),
            static_cast<std::size_t>(range.second - fragments.begin())};
}

} // namespace quillon
