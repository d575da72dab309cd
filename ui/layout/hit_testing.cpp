// SPDX-License-Identifier: MIT
#include "ui/layout/hit_testing.h"

#include "ui/layout/text_geometry.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

qint64 lineAtHeight(const LogTextLayout& layout, double y)
{
    const double line = std::floor((y - textOrigin().y()) / layout.metrics().lineHeight());
    return std::clamp<qint64>(static_cast<qint64>(line), 0, layout.lineCount() - 1);
}

// Where the character at an offset of the row begins and ends in its line.
LineSpan edgesOf(const LogTextLayout& layout, qsizetype row, const RowFragment& fragment,
                 qsizetype offset)
{
    const RowPlaces& places = layout.places();
    const RowLayout& rowLayout = layout.rowLayout(row);
    const double left = toPoints(places.xOf(rowLayout, fragment, offset));
    if (offset == fragment.end) {
        return {left, left};
    }
    if (!fragment.needsShaping()) {
        return {left, toPoints(places.xOf(rowLayout, fragment, offset + 1))};
    }
    const qsizetype end =
        std::min(fragment.end, positionAfter(layout.text(), TextPosition{row, offset}).offset);
    const auto spans = places.shapedLine(rowLayout, fragment).spansOf(offset, end);
    return spans.empty() ? LineSpan{left, left} : spans.front();
}

} // namespace

QPointF textOrigin()
{
    return {kTextInsetWidth + TextContainer().lineFragmentPadding, kTextInsetHeight};
}

TextPosition positionAt(const LogTextLayout& layout, QPointF point)
{
    const qint64 line = lineAtHeight(layout, point.y());
    if (line >= layout.lineCount() - 1) {
        return TextPosition{layout.text().rows().size(), 0};
    }
    const VisualLine visual = layout.visualLine(line);
    const RowLayout& row = layout.rowLayout(visual.row);
    const auto [first, last] = row.fragmentsOfLine(visual.lineInRow);
    const Fixed x = toFixed(point.x() - textOrigin().x());
    std::size_t fragment = first;
    while (fragment + 1 < last && row.fragments[fragment + 1].x <= x) {
        ++fragment;
    }
    return TextPosition{visual.row, layout.places().offsetAt(row, row.fragments[fragment], x)};
}

TextPosition characterAt(const LogTextLayout& layout, QPointF point)
{
    const TextPosition position = positionAt(layout, point);
    if (position.offset == 0 || position.row >= layout.text().rows().size()) {
        return position;
    }
    const bool isOnNextLine = lineOf(layout, position) > lineAtHeight(layout, point.y());
    if (isOnNextLine || boxAt(layout, position).left() > point.x()) {
        return positionBefore(layout.text(), position);
    }
    return position;
}

QRectF boxAt(const LogTextLayout& layout, TextPosition position)
{
    const double height = layout.metrics().lineHeight();
    const QPointF origin = textOrigin();
    if (position.row >= layout.text().rows().size()) {
        return {origin.x(), origin.y() + static_cast<double>(layout.lineCount() - 1) * height, 0,
                height};
    }
    const RowLayout& row = layout.rowLayout(position.row);
    const qsizetype offset = std::min(position.offset, row.text.size());
    const RowFragment& fragment = row.fragments[row.fragmentAt(offset)];
    const double top =
        origin.y() + static_cast<double>(layout.firstLineOf(position.row) + fragment.line) * height;
    const auto [left, right] = edgesOf(layout, position.row, fragment, offset);
    return {origin.x() + left, top, right - left, height};
}

qint64 lineOf(const LogTextLayout& layout, TextPosition position)
{
    if (position.row >= layout.text().rows().size()) {
        return layout.lineCount() - 1;
    }
    const RowLayout& row = layout.rowLayout(position.row);
    const qsizetype offset = std::min(position.offset, row.text.size());
    return layout.firstLineOf(position.row) + row.fragments[row.fragmentAt(offset)].line;
}

} // namespace quillon
