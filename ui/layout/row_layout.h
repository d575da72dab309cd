// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/piece_shaper.h"
#include "ui/layout/text_units.h"

#include <QString>

#include <cstddef>
#include <utility>
#include <vector>

namespace quillon {

// How much room a row takes.
struct RowExtent {
    qsizetype lineCount = 1;
    // Where rows are not wrapped, the row's width; 0 where they are.
    Fixed width = 0;
};

// A part of a row that is drawn in one go: one visual line or a part of one.
struct RowFragment {
    qsizetype start = 0; // UTF-16 units from the start of the row
    qsizetype end = 0;
    qsizetype line = 0; // visual line within the row
    Fixed x = 0;        // where the fragment begins in its line
    // Of a fragment whose characters have their places from a text layout: the piece of the row
    // that was laid out, and the line of that layout. −1 where characters stand side by side.
    int piece = -1;
    int pieceLine = -1;

    [[nodiscard]] bool needsShaping() const { return piece >= 0; }
};

// A row cut into fragments, in order.
struct RowLayout {
    QString text; // as displayed, without the line feed
    std::vector<RowFragment> fragments;
    std::vector<ShapedPiece> pieces; // those that need shaping
    qsizetype lineCount = 1;

    // The index of the fragment that holds the offset; at a place between two, the later one.
    [[nodiscard]] std::size_t fragmentAt(qsizetype offset) const;
    // The range [first, second) of the fragments on a visual line.
    [[nodiscard]] std::pair<std::size_t, std::size_t> fragmentsOfLine(qsizetype line) const;
};

} // namespace quillon
