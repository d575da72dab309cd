// SPDX-License-Identifier: MIT
#include "ui/windows/text_area.h"

#include "ui/log_text/log_text_view.h"
#include "ui/windows/bottom_fade.h"
#include "ui/windows/log_focus_ring.h"
#include "ui/windows/log_hint.h"
#include "ui/windows/status_overlay.h"

#include <QEvent>
#include <QVBoxLayout>

namespace quillon {

TextArea::TextArea(LogTextView* logView, StatusOverlay* overlay, LogHint* hint, QWidget* parent)
    : QWidget(parent), m_logView(logView), m_fade(new BottomFade(this)), m_overlay(overlay),
      m_hint(hint), m_ring(new LogFocusRing(*logView, this))
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_logView);
    // In this order, from the log up.
    for (QWidget* const over : {static_cast<QWidget*>(m_fade), static_cast<QWidget*>(m_overlay),
                                static_cast<QWidget*>(m_hint), static_cast<QWidget*>(m_ring)}) {
        over->setParent(this);
        over->raise();
    }
    // The viewport, not this area, ends where a scroll bar begins.
    m_logView->viewport()->installEventFilter(this);
}

bool TextArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        placeOverlays();
    }
    return QWidget::eventFilter(watched, event);
}

bool TextArea::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        // Once the status has it too.
        QMetaObject::invokeMethod(this, &TextArea::placeOverlays, Qt::QueuedConnection);
    }
    return QWidget::event(event);
}

void TextArea::placeOverlays()
{
    const QWidget& viewport = *m_logView->viewport();
    const QRect shown(viewport.mapTo(this, QPoint()), viewport.size());
    const int height = m_overlay->sizeHint().height();
    const QRect bottom(shown.left(), shown.bottom() + 1 - height, shown.width(), height);
    m_fade->setGeometry(bottom);
    m_overlay->setGeometry(bottom);
    m_hint->setGeometry(shown);
}

} // namespace quillon
