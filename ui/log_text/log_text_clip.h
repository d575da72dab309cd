// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_position.h"

#include <QPoint>
#include <QPointF>
#include <QRect>

class QAbstractScrollArea;

namespace quillon {

class LogTextLayout;

// The part of a laid-out text that the viewport of a scroll area shows: it tells which place of the
// text a point of the viewport is, and brings places into view. Points are those of the viewport.
class LogTextClip {
public:
    // Both must outlive the clip. The scroll bars' values are the distance, in points, from the top
    // left corner of the text's frame to that of the viewport.
    LogTextClip(QAbstractScrollArea& area, const LogTextLayout& layout)
        : m_area(area), m_layout(layout)
    {
    }

    // What the scroll bars stand at.
    [[nodiscard]] QPointF offset() const;

    // The place nearest to a point, the place before the character that holds it or is nearest to
    // it, and the box of a character there.
    [[nodiscard]] TextPosition positionAt(QPoint point) const;
    [[nodiscard]] TextPosition characterAt(QPoint point) const;
    [[nodiscard]] QRect boxOf(TextPosition position) const;

    // Brings a place into view with as little scrolling as possible.
    void scrollTo(TextPosition position);
    // In points; the ends of the scroll bars are the limit.
    void scrollBy(QPoint distance);
    void scrollToEnd();
    // Whether it can be scrolled no farther down.
    [[nodiscard]] bool isAtEnd() const;

private:
    QAbstractScrollArea& m_area;
    const LogTextLayout& m_layout;
};

} // namespace quillon
