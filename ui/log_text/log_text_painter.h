// SPDX-License-Identifier: MIT
#pragma once

#include "platform/time_slice.h"
#include "ui/layout/log_text_layout.h"
#include "ui/log_text/log_text_colors.h"

#include <QGlyphRun>
#include <QList>
#include <QPalette>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <utility>
#include <vector>

class QPainter;

namespace quillon {

class LogTextSelection;

// Draws the visible part of a laid-out text. Every row on screen is visited once; the glyphs are
// gathered by font and colour over the whole screen and drawn together, since each call for a run
// of its own costs more than its few glyphs.
class LogTextPainter {
public:
    // The references must outlive the painter. `offset` is the point of the text's frame that
    // stands at the painter's origin.
    LogTextPainter(QPainter& painter, const LogTextLayout& layout, const QPalette& palette,
                   QPointF offset);
    ~LogTextPainter();
    LogTextPainter(const LogTextPainter&) = delete;
    LogTextPainter& operator=(const LogTextPainter&) = delete;

    // Draws what lies in `clip` (in the painter's coordinates). False where it takes more than 20
    // ms to find all matches of the search there: then some are not marked, and the next painting
    // goes on.
    bool paint(const QRectF& clip, const LogTextSelection& selection);

private:
    struct GlyphBatch {
        int font;
        QRgb color;
        QList<quint32> indexes;
        QList<QPointF> positions;
    };
    // One fragment of a row at its place on the screen.
    struct PlacedFragment {
        qsizetype row;
        const RowLayout& layout;
        const RowFragment& fragment;
        QPointF origin; // top left of the line that the fragment is part of
    };
    // Characters [start, end) of a row of one style.
    struct Span {
        qsizetype start;
        qsizetype end;
        FontWeight weight;
        QRgb color;
    };

    // From one run to the one behind the last.
    struct Runs {
        std::vector<AttributeRun>::const_iterator first;
        std::vector<AttributeRun>::const_iterator last;

        [[nodiscard]] auto begin() const { return first; }
        [[nodiscard]] auto end() const { return last; }
    };

    void paintLine(qint64 line, const QRectF& clip, const LogTextSelection& selection);
    void paintBackgrounds(const PlacedFragment& placed);
    void paintSelection(const PlacedFragment& placed, const LogTextSelection& selection);
    void paintCharacters(const PlacedFragment& placed, const QRectF& clip);
    void gatherGlyphs(const PlacedFragment& placed, const Span& span, const QRectF& clip);
    void gatherSpelling(char16_t picture, const Span& span, QPointF place);
    void paintShaped(const PlacedFragment& placed, const Span& span);
    void paintShapedGlyphs(const PlacedFragment& placed, qsizetype start, qsizetype end);
    void paintGlyphs();

    // The runs that the fragment has a part of, in order.
    [[nodiscard]] Runs runsOf(const PlacedFragment& placed);
    void locateCharacters(const PlacedFragment& placed);
    [[nodiscard]] double xOf(const PlacedFragment& placed, qsizetype offset) const;
    void fillCharacters(const PlacedFragment& placed, qsizetype start, qsizetype end,
                        const QColor& color);
    GlyphBatch& batchFor(int font, QRgb color);

    QPainter& m_painter;
    const LogTextLayout& m_layout;
    const QPalette& m_palette;
    QPointF m_offset;
    LogTextColors m_colors;
    TimeSlice m_slice;
    bool m_isComplete = true;
    std::vector<GlyphBatch> m_batches;
    std::size_t m_lastBatch = 0;
    // Of the fragment at hand: where its characters begin in their line, and where the last ends;
    // or the line of a text layout that knows it.
    std::vector<Fixed> m_places;
    std::optional<ShapedLine> m_shaped;
    // The characters of it that are selected; none where both are the same.
    std::pair<qsizetype, qsizetype> m_selected;
};

} // namespace quillon
