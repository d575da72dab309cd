// SPDX-License-Identifier: MIT
#include "ui/windows/log_focus_ring.h"

#include "ui/controls/flat_controls.h"
#include "ui/log_text/log_text_view.h"

#include <QFocusEvent>
#include <QPainter>

namespace quillon {

LogFocusRing::LogFocusRing(LogTextView& view, QWidget* parent) : QWidget(parent), m_view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
}

bool LogFocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // A menu or another window gives back what it has taken.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            m_isTabbedInto = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        }
        setVisible(m_isTabbedInto);
        break;
    }
    case QEvent::FocusOut:
        hide();
        break;
    case QEvent::MouseButtonPress:
        m_isTabbedInto = false;
        hide();
        break;
    case QEvent::Resize:
    case QEvent::Move:
        if (watched == &m_view) {
            setGeometry(QRect(m_view.pos(), m_view.size()));
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void LogFocusRing::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawFocusRing(painter, rect(), palette());
}

} // namespace quillon
