// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_units.h"

#include <QString>

#include <list>
#include <memory>
#include <optional>

class QTextLayout;

namespace quillon {

class MonospaceMetrics;

// A part of a row that goes through a text layout of its own.
struct ShapedPiece {
    qsizetype start = 0; // UTF-16 units from the start of the row
    qsizetype end = 0;
    // Tabs that the text layout has before the piece's own text: as many as the row's number and
    // its tab are wide, in the place of these, so that the digits take no part in the shaping. None
    // where the piece begins a line.
    qsizetype lead = 0;
};

// What a piece takes, its lead included.
struct ShapedMeasure {
    int lineCount = 1;
    // The width of the widest line without the white space at its end.
    Fixed widestLine = 0;
    // The least width that the piece would take on one line; white space at its end may hang.
    Fixed oneLine = 0;
};

// Makes the text layouts of pieces of rows, for one font and one width, and keeps the 128 last
// used: drawing and hit-testing ask for the same ones line by line.
class PieceShaper {
public:
    // `metrics` must outlive the shaper; `lineWidth` as for RowLayouter.
    PieceShaper(const MonospaceMetrics& metrics, std::optional<Fixed> lineWidth);
    ~PieceShaper();

    // The layout of a piece of a row's displayed text, from its lead on.
    [[nodiscard]] std::shared_ptr<const QTextLayout> layOut(const QString& row,
                                                            const ShapedPiece& piece) const;

    // The same without keeping it, which is quicker.
    [[nodiscard]] ShapedMeasure measure(const QString& row, const ShapedPiece& piece) const;

private:
    struct Entry {
        QString row; // kept so that its address stays its own
        qsizetype start;
        qsizetype length;
        std::shared_ptr<const QTextLayout> layout;
    };

    [[nodiscard]] std::unique_ptr<QTextLayout> makeLayout() const;
    void fill(QTextLayout& layout, const QString& row, const ShapedPiece& piece) const;
    void keep(Entry entry) const;

    const MonospaceMetrics& m_metrics;
    std::optional<Fixed> m_lineWidth;
    std::unique_ptr<QTextLayout> m_scratch; // one for all that is merely measured
    mutable std::list<Entry> m_entries;     // most recently used first
    mutable qsizetype m_keptLength = 0;
};

} // namespace quillon
