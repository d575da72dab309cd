// SPDX-License-Identifier: MIT
#include "ui/log_text/caret_movement.h"

#include "ui/layout/hit_testing.h"
#include "ui/log_text/log_text_selection.h"
#include "ui/log_text/word_movement.h"

#include <QKeyEvent>

#include <algorithm>

namespace quillon {

namespace {

Caret movedByLines(const LogTextLayout& layout, const Caret& caret, qint64 lines)
{
    const double x = caret.x.value_or(boxAt(layout, caret.position).left());
    const qint64 target =
        std::clamp<qint64>(lineOf(layout, caret.position) + lines, 0, layout.lineCount() - 1);
    const double height = layout.metrics().lineHeight();
    const double y = textOrigin().y() + (static_cast<double>(target) + 0.5) * height;
    const TextPosition position = positionAt(layout, QPointF(x, y));
    // The end of a shorter line is already on the line after it.
    const bool isBeyond = lineOf(layout, position) > target;
    return {isBeyond ? positionBefore(layout.text(), position) : position, x};
}

std::optional<qint64> linesOf(const QKeyEvent& event, int pageLines)
{
    switch (event.key()) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
        return -pageLines;
    case Qt::Key_PageDown:
        return pageLines;
    default:
        return std::nullopt;
    }
}

std::optional<TextPosition> movedWithinText(const QKeyEvent& event, const AttributedString& text,
                                            TextPosition position)
{
    if (event.matches(QKeySequence::SelectPreviousWord)) {
        return wordStartBefore(text, position);
    }
    if (event.matches(QKeySequence::SelectNextWord)) {
        return wordStartAfter(text, position);
    }
    const auto& rows = text.rows();
    const bool isInText = position.row < rows.size();
    const bool toEdge = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left:
        return positionBefore(text, position);
    case Qt::Key_Right:
        return positionAfter(text, position);
    case Qt::Key_Home:
        return toEdge ? TextPosition{} : TextPosition{position.row, 0};
    case Qt::Key_End:
        return toEdge ? TextPosition{rows.size(), 0}
                      : TextPosition{position.row, isInText ? rows[position.row].length() - 1 : 0};
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<Caret> movedBy(const QKeyEvent& event, const LogTextLayout& layout,
                             const Caret& caret, int pageLines)
{
    if (const auto lines = linesOf(event, pageLines)) {
        return movedByLines(layout, caret, *lines);
    }
    const auto position = movedWithinText(event, layout.text(), caret.position);
    return position ? std::optional(Caret{*position, std::nullopt}) : std::nullopt;
}

} // namespace quillon
