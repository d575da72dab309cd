// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_painter.h"

#include "ui/layout/control_letters.h"
#include "ui/layout/displayed_text.h"
#include "ui/layout/hit_testing.h"
#include "ui/log_text/log_text_selection.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

// What a selected line end shows, in points.
constexpr double kLineEndMark = 4.0;
// Of processor time, after which a picture is painted without the matches that are not found yet.
constexpr std::chrono::milliseconds kSearchSlice{20};

} // namespace

LogTextPainter::LogTextPainter(QPainter& painter, const LogTextLayout& layout,
                               const QPalette& palette, QPointF offset)
    : m_painter(painter), m_layout(layout), m_palette(palette), m_offset(offset), m_colors(palette),
      m_slice(kSearchSlice)
{
}

LogTextPainter::~LogTextPainter() = default;

bool LogTextPainter::paint(const QRectF& clip, const LogTextSelection& selection)
{
    const double height = m_layout.metrics().lineHeight();
    const double top = clip.top() + m_offset.y() - textOrigin().y();
    const auto first = std::max<qint64>(0, static_cast<qint64>(std::floor(top / height)));
    const auto last = std::min<qint64>(
        m_layout.lineCount() - 1, static_cast<qint64>(std::ceil((top + clip.height()) / height)));
    for (qint64 line = first; line < last; ++line) {
        paintLine(line, clip, selection);
    }
    paintGlyphs();
    return m_isComplete;
}

LogTextPainter::Runs LogTextPainter::runsOf(const PlacedFragment& placed)
{
    const RowFragment& fragment = placed.fragment;
    const auto [runs, isComplete] =
        m_layout.runsIn(placed.row, TextRange{fragment.start, fragment.end - fragment.start},
                        [this] { return m_slice.isOver(); });
    m_isComplete &= isComplete;
    const auto first =
        std::partition_point(runs.begin(), runs.end(), [&fragment](const AttributeRun& run) {
            return run.end() <= fragment.start;
        });
    const auto last = std::partition_point(first, runs.end(), [&fragment](const AttributeRun& run) {
        return run.start < fragment.end;
    });
    return Runs{first, last};
}

void LogTextPainter::paintLine(qint64 line, const QRectF& clip, const LogTextSelection& selection)
{
    const VisualLine visual = m_layout.visualLine(line);
    const RowLayout& row = m_layout.rowLayout(visual.row);
    const QPointF origin = textOrigin() - m_offset +
                           QPointF(0, static_cast<double>(line) * m_layout.metrics().lineHeight());
    const auto [first, last] = row.fragmentsOfLine(visual.lineInRow);
    // Of a long unbroken line only the fragments on screen are drawn.
    const Fixed left = toFixed(clip.left() - origin.x());
    const Fixed right = toFixed(clip.right() - origin.x());
    const auto begin = row.fragments.begin();
    const auto from = begin + static_cast<std::ptrdiff_t>(first);
    const auto to = begin + static_cast<std::ptrdiff_t>(last);
    auto fragment =
        std::partition_point(from, to, [left](const RowFragment& each) { return each.x <= left; });
    for (fragment = fragment == from ? from : fragment - 1; fragment != to; ++fragment) {
        if (fragment->x > right) {
            break;
        }
        const PlacedFragment placed{visual.row, row, *fragment, origin};
        locateCharacters(placed);
        paintBackgrounds(placed);
        paintSelection(placed, selection);
        paintCharacters(placed, clip);
    }
}

void LogTextPainter::locateCharacters(const PlacedFragment& placed)
{
    const RowFragment& fragment = placed.fragment;
    m_places.clear();
    m_shaped.reset();
    if (fragment.needsShaping()) {
        m_shaped.emplace(m_layout.places().shapedLine(placed.layout, fragment));
        return;
    }
    Fixed x = fragment.x;
    for (qsizetype at = fragment.start; at < fragment.end; ++at) {
        m_places.push_back(x);
        const char16_t character = placed.layout.text[at].unicode();
        x = character == u'\t' ? nextTabStop(x, m_layout.metrics())
                               : x + m_layout.metrics().advance(character).value_or(0);
    }
    m_places.push_back(x);
}

double LogTextPainter::xOf(const PlacedFragment& placed, qsizetype offset) const
{
    const auto index = static_cast<std::size_t>(offset - placed.fragment.start);
    return placed.origin.x() + toPoints(m_places[index]);
}

void LogTextPainter::fillCharacters(const PlacedFragment& placed, qsizetype start, qsizetype end,
                                    const QColor& color)
{
    const double height = m_layout.metrics().lineHeight();
    if (!m_shaped) {
        const double left = xOf(placed, start);
        m_painter.fillRect(QRectF(left, placed.origin.y(), xOf(placed, end) - left, height), color);
        return;
    }
    for (const auto& [left, right] : m_shaped->spansOf(start, end)) {
        m_painter.fillRect(
            QRectF(placed.origin.x() + left, placed.origin.y(), right - left, height), color);
    }
}

void LogTextPainter::paintBackgrounds(const PlacedFragment& placed)
{
    const RowFragment& fragment = placed.fragment;
    for (const AttributeRun& run : runsOf(placed)) {
        if (run.attributes.background) {
            fillCharacters(placed, std::max(run.start, fragment.start),
                           std::min(run.end(), fragment.end),
                           QColor::fromRgba(m_colors.plain(*run.attributes.background)));
        }
    }
}

void LogTextPainter::paintSelection(const PlacedFragment& placed, const LogTextSelection& selection)
{
    const RowFragment& fragment = placed.fragment;
    const QColor color = selectionBackground(m_palette);
    const TextPosition start =
        std::max(selection.start(), TextPosition{placed.row, fragment.start});
    const TextPosition end = std::min(selection.end(), TextPosition{placed.row, fragment.end});
    m_selected = {};
    if (start < end) {
        m_selected = {start.offset, end.offset};
        fillCharacters(placed, start.offset, end.offset, color);
    }
    const bool isRowEnd = fragment.end == placed.layout.text.size();
    const TextPosition lineFeed{placed.row, placed.layout.text.size()};
    if (isRowEnd && selection.start() <= lineFeed && selection.end() > lineFeed) {
        const double x = placed.origin.x() +
                         (m_shaped ? m_shaped->xOf(fragment.end) : toPoints(m_places.back()));
        m_painter.fillRect(
            QRectF(x, placed.origin.y(), kLineEndMark, m_layout.metrics().lineHeight()), color);
    }
}

// Each run in up to three spans: before, in and after the selection.
void LogTextPainter::paintCharacters(const PlacedFragment& placed, const QRectF& clip)
{
    const RowFragment& fragment = placed.fragment;
    for (const AttributeRun& run : runsOf(placed)) {
        const qsizetype start = std::max(run.start, fragment.start);
        const qsizetype end = std::min(run.end(), fragment.end);
        const std::array cuts{start, std::clamp(m_selected.first, start, end),
                              std::clamp(m_selected.second, start, end), end};
        for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
            if (cuts[i] == cuts[i + 1]) {
                continue;
            }
            const Color& color = run.attributes.foreground;
            const Span span{cuts[i], cuts[i + 1], run.attributes.weight,
                            i == 1 ? m_colors.selected(color) : m_colors.plain(color)};
            if (fragment.needsShaping()) {
                paintShaped(placed, span);
            } else {
                gatherGlyphs(placed, span, clip);
            }
        }
    }
}

void LogTextPainter::gatherGlyphs(const PlacedFragment& placed, const Span& span,
                                  const QRectF& clip)
{
    const MonospaceMetrics& metrics = m_layout.metrics();
    const double baseline = placed.origin.y() + metrics.baseline();
    for (qsizetype at = span.start; at < span.end; ++at) {
        const double x = xOf(placed, at);
        if (xOf(placed, at + 1) < clip.left() || x > clip.right()) {
            continue;
        }
        const char16_t character = placed.layout.text[at].unicode();
        if (isBreakableSpace(character)) {
            continue;
        }
        const Glyph glyph = metrics.glyph(character, span.weight);
        if (glyph.font < 0) {
            if (glyph.font == Glyph::kSpelled) {
                gatherSpelling(character, span, QPointF(x, baseline));
            }
            continue;
        }
        GlyphBatch& batch = batchFor(glyph.font, span.color);
        batch.indexes.append(glyph.index);
        batch.positions.append(QPointF(x, baseline));
    }
}

void LogTextPainter::gatherSpelling(char16_t picture, const Span& span, QPointF place)
{
    for (const PictureLetter& letter : m_layout.metrics().spelling(picture, span.weight)) {
        if (letter.glyph.font >= 0) {
            GlyphBatch& batch = batchFor(letter.glyph.font, span.color);
            batch.indexes.append(letter.glyph.index);
            batch.positions.append(place + letter.place);
        }
    }
}

// Around the pictures that are spelled out, which the text layout has an empty box for.
void LogTextPainter::paintShaped(const PlacedFragment& placed, const Span& span)
{
    const MonospaceMetrics& metrics = m_layout.metrics();
    const double baseline = placed.origin.y() + metrics.baseline();
    m_painter.setPen(QColor::fromRgba(span.color));
    qsizetype start = span.start;
    for (qsizetype at = span.start; at < span.end; ++at) {
        const char16_t character = placed.layout.text[at].unicode();
        // Of other characters here the metrics have no glyph to tell.
        if (controlLetters(character).empty() ||
            metrics.glyph(character, FontWeight::Regular).font != Glyph::kSpelled) {
            continue;
        }
        paintShapedGlyphs(placed, start, at);
        start = at + 1;
        const auto boxes = m_shaped->spansOf(at, start);
        if (!boxes.empty()) {
            const double x = placed.origin.x() + boxes.front().left;
            gatherSpelling(character, span, QPointF(x, baseline));
        }
    }
    paintShapedGlyphs(placed, start, span.end);
}

// Glyph by glyph too: a text layout keeps to the pen that it finds, whatever formats it is given to
// draw with, and formats that it is laid out with tear letters that join.
void LogTextPainter::paintShapedGlyphs(const PlacedFragment& placed, qsizetype start, qsizetype end)
{
    if (start == end) {
        return;
    }
    const double rise = m_layout.metrics().baseline() - m_shaped->ascent();
    const QPointF place = placed.origin + QPointF(m_shaped->layoutX(), rise);
    // Bold is left to the rows that need no shaping: here it would move what follows.
    for (const QGlyphRun& glyphs : m_shaped->glyphRuns(start, end)) {
        m_painter.drawGlyphRun(place, glyphs);
    }
}

void LogTextPainter::paintGlyphs()
{
    for (const GlyphBatch& batch : m_batches) {
        QGlyphRun run;
        run.setRawFont(m_layout.metrics().glyphFont(batch.font));
        run.setGlyphIndexes(batch.indexes);
        run.setPositions(batch.positions);
        m_painter.setPen(QColor::fromRgba(batch.color));
        m_painter.drawGlyphRun(QPointF(), run);
    }
    m_batches.clear();
    m_lastBatch = 0;
}

LogTextPainter::GlyphBatch& LogTextPainter::batchFor(int font, QRgb color)
{
    const auto fits = [font, color](const GlyphBatch& batch) {
        return batch.font == font && batch.color == color;
    };
    if (m_lastBatch < m_batches.size() && fits(m_batches[m_lastBatch])) {
        return m_batches[m_lastBatch];
    }
    const auto found = std::find_if(m_batches.begin(), m_batches.end(), fits);
    m_lastBatch = static_cast<std::size_t>(found - m_batches.begin());
    if (found == m_batches.end()) {
        m_batches.push_back(GlyphBatch{font, color, {}, {}});
    }
    return m_batches[m_lastBatch];
}

} // namespace quillon
