// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_clip.h"

#include "ui/layout/hit_testing.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

#include <cmath>

namespace quillon {

QPointF LogTextClip::offset() const
{
    return QPointF(m_area.horizontalScrollBar()->value(), m_area.verticalScrollBar()->value());
}

TextPosition LogTextClip::positionAt(QPoint point) const
{
    return quillon::positionAt(m_layout, point + offset());
}

TextPosition LogTextClip::characterAt(QPoint point) const
{
    return quillon::characterAt(m_layout, point + offset());
}

QRect LogTextClip::boxOf(TextPosition position) const
{
    return boxAt(m_layout, position).translated(-offset()).toAlignedRect();
}

void LogTextClip::scrollTo(TextPosition position)
{
    const QRectF box = boxAt(m_layout, position);
    const auto bring = [](QScrollBar& bar, double from, double to, int visible) {
        if (from < bar.value()) {
            bar.setValue(static_cast<int>(std::floor(from)));
        } else if (to > bar.value() + visible) {
            bar.setValue(static_cast<int>(std::ceil(to)) - visible);
        }
    };
    const QSize visible = m_area.viewport()->size();
    bring(*m_area.verticalScrollBar(), box.top(), box.bottom(), visible.height());
    bring(*m_area.horizontalScrollBar(), box.left() - textOrigin().x(),
          box.right() + textOrigin().x(), visible.width());
}

void LogTextClip::scrollBy(QPoint distance)
{
    QScrollBar& vertical = *m_area.verticalScrollBar();
    vertical.setValue(vertical.value() + distance.y());
    QScrollBar& horizontal = *m_area.horizontalScrollBar();
    horizontal.setValue(horizontal.value() + distance.x());
}

void LogTextClip::scrollToEnd()
{
    m_area.verticalScrollBar()->setValue(m_area.verticalScrollBar()->maximum());
}

bool LogTextClip::isAtEnd() const
{
    return m_area.verticalScrollBar()->value() == m_area.verticalScrollBar()->maximum();
}

} // namespace quillon
