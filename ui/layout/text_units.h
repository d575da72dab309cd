// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cmath>

namespace quillon {

// Horizontal distances in 1/64 of a point, the unit in which Qt lays out text (26.6 fixed point).
// Sums of advances are exact in it, so arithmetic and layout agree about what fits on a line.
using Fixed = qint64;

inline constexpr Fixed kFixedOne = 64;

inline Fixed toFixed(double points)
{
    return std::llround(points * static_cast<double>(kFixedOne));
}

inline double toPoints(Fixed distance)
{
    return static_cast<double>(distance) / static_cast<double>(kFixedOne);
}

} // namespace quillon
