// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

class QTextLayout;

namespace quillon {

// A part of a line from left to right, in points from where the line begins.
struct LineStretch {
    double left = 0;
    double right = 0;
};

// What the characters [start, end) of a text laid out on one line cover; several stretches where
// the font or the direction of writing changes.
std::vector<LineStretch> stretchesOf(const QTextLayout& layout, qsizetype start, qsizetype end);

} // namespace quillon
