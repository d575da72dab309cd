// SPDX-License-Identifier: MIT
#include "ui/controls/marked_scroll_bar.h"

#include <QEvent>

#include <utility>

namespace quillon {

MarkedScrollBar::MarkedScrollBar(Marks marks, QWidget* parent)
    : QScrollBar(Qt::Vertical, parent), m_find(std::move(marks))
{
}

const std::vector<ScrollBarMark>& MarkedScrollBar::marks() const
{
    if (!std::exchange(m_isKnown, true)) {
        m_marks = m_find(height());
    }
    return m_marks;
}

void MarkedScrollBar::forgetMarks()
{
    m_isKnown = false;
    update();
}

void MarkedScrollBar::resizeEvent(QResizeEvent* event)
{
    forgetMarks();
    QScrollBar::resizeEvent(event);
}

void MarkedScrollBar::changeEvent(QEvent* event)
{
    // Colours are fitted to what they stand on.
    if (event->type() == QEvent::PaletteChange) {
        forgetMarks();
    }
    QScrollBar::changeEvent(event);
}

} // namespace quillon
